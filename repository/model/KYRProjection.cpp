// The end of a presentation element of this kind.
#include "repository/model/KYRProjection.h"

KYRProjection::~KYRProjection() { dissolve(); }
