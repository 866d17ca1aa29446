// Keys are `const char *`, entries `TagHandler *`.
#include "xmi/TagHandler.h"

#include <cstring>

#include "uml/UMLElement.h"

namespace {
TagHandler* row(const void* object) { return static_cast<TagHandler*>(const_cast<void*>(object)); }
}  // namespace

TagHandler* TagHandlerHashtable::find(const KYRString& tag) const {
  return row(findFirst(tag.getCharacters(), nullptr));
}

TagHandler* TagHandlerHashtable::findInContext(const KYRString& tag, const UMLElement& current) const {
  TagHandler* best = nullptr;
  for (unsigned int slot = getFirstSlot(tag.getCharacters()); slot != noSlot; slot = getNextEqualSlot(slot)) {
    TagHandler* const candidate = row(getAt(slot));
    if (!current.isKindOf(candidate->kind)) continue;
    if (best == nullptr || UMLLineage::isKindOf(candidate->kind, best->kind)) best = candidate;
  }
  return best;
}

int TagHandlerHashtable::compare2Object(const void* first, const void* second) const {
  return std::strcmp(row(first)->tag, row(second)->tag);
}

int TagHandlerHashtable::compare2Key(const void* object, const void* key) const {
  return std::strcmp(row(object)->tag, static_cast<const char*>(key));
}

unsigned int TagHandlerHashtable::hashObject(const void* object) const {
  return stringHashCode(row(object)->tag);
}

unsigned int TagHandlerHashtable::hashKey(const void* key) const {
  return stringHashCode(static_cast<const char*>(key));
}
