// StandardTypes: the primitive types of the UML library that tools refer to by a fixed id.
#pragma once

#include "foundation/KYRString.h"

namespace StandardTypes {
/// The name of the type with that id, or null. Ids and names compare exactly.
const char* nameOf(const KYRString& id) noexcept;
/// The id of the type of that name, or null.
const char* idOf(const KYRString& name) noexcept;
}  // namespace StandardTypes
