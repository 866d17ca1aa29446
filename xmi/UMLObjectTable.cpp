// Keys are `const char *`, entries `UMLElement *`.
#include "xmi/UMLObjectTable.h"

#include <cstring>

#include "uml/UMLElement.h"

namespace {
const UMLElement* element(const void* object) { return static_cast<const UMLElement*>(object); }
const char* text(const void* key) { return static_cast<const char*>(key); }
}  // namespace

UMLElement* UMLObjectTable::at(unsigned int index) const noexcept {
  return const_cast<UMLElement*>(element(getAt(index)));
}

UMLElement* UMLObjectTable::find(const KYRString& id) const {
  return const_cast<UMLElement*>(element(findFirst(id.getCharacters(), nullptr)));
}

int UMLObjectTable::compare2Object(const void* first, const void* second) const {
  return compare2Key(first, element(second)->id.getCharacters());
}

int UMLObjectTable::compare2Key(const void* object, const void* key) const {
  const KYRString& id = element(object)->id;
  if (id.isEmpty() || *text(key) == '\0') return -1;
  return std::strcmp(id.getCharacters(), text(key));
}

unsigned int UMLObjectTable::hashObject(const void* object) const { return element(object)->id.hashCode(); }

unsigned int UMLObjectTable::hashKey(const void* key) const { return stringHashCode(text(key)); }
