// The texts of a picture, written as UML writes them.
#pragma once

#include <string>
#include <vector>

#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYROperation.h"

namespace DrawnTexts {

/// No longer than anybody can read; the end of a longer text is replaced by an ellipsis.
std::string shorten(std::string text);
/// "+name: Type = value"; the type only `withType`.
std::string attribute(const KYRAttribute& attribute, bool withType);
/// "+name(argument: Type): Type".
std::string operation(const KYROperation& operation);
std::string nameOf(const KYRObject& object);

}  // namespace DrawnTexts
