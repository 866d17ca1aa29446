// The destructor stands here so that the class has one home.
#include "repository/model/KYRRelationship.h"

KYRRelationship::~KYRRelationship() = default;
