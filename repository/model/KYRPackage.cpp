// The destructor stands here so that the class has one home.
#include "repository/model/KYRPackage.h"

KYRPackage::~KYRPackage() = default;
