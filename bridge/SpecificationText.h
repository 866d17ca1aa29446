// SpecificationText: the description that a specification shows to users.
#pragma once

#include "foundation/KYRString.h"

class KYRBridgeSpecificationLiteral;

/// The catalogue's text for the literal. A text that the catalogue does not know shows as a visible mark,
/// "*** " and its id, and is no error.
KYRString descriptionOf(const KYRBridgeSpecificationLiteral& literal);
