// NamespaceVersions: the version that a UML or XMI namespace URI stands for.
#pragma once

#include "foundation/KYRString.h"

namespace NamespaceVersions {
/// The UML version for a URI (exact, the whole of it), or null. The dated URIs are table values.
const char* uml(const KYRString& uri) noexcept;
/// The XMI version, on the same terms.
const char* xmi(const KYRString& uri) noexcept;
}  // namespace NamespaceVersions
