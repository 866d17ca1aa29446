// The destructor stands here so that the class has one home.
#include "repository/model/KYRStructuralFeature.h"

KYRStructuralFeature::~KYRStructuralFeature() = default;
