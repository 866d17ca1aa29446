// The slow path of umlCast.
#include "uml/UMLCast.h"

#include "uml/UMLMetamodel.h"

namespace UMLCasts {

std::int32_t distances[UMLLineage::kindCount][UMLLineage::kindCount];

void* learn(UMLElement* element, int kind) {
  void* const part = UMLMetamodel::classRows[static_cast<unsigned int>(kind)].cast(element);
  if (part == nullptr) return nullptr;
  const std::ptrdiff_t bytes = static_cast<char*>(part) - reinterpret_cast<char*>(element);
  distances[element->getKind()][kind] = static_cast<std::int32_t>(bytes * 2 + 1);
  return part;
}

}  // namespace UMLCasts
