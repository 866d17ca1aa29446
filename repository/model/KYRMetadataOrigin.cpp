// The destructor stands here so that the class has one home.
#include "repository/model/KYRMetadataOrigin.h"

KYRMetadataOrigin::~KYRMetadataOrigin() = default;
