// The end of a presentation element of this kind.
#include "repository/model/KYRRelationshipProjection.h"

KYRRelationshipProjection::~KYRRelationshipProjection() { dissolve(); }
