// Keys are `const char *`, entries `UnknownTag *`.
#include "xmi/UnknownTag.h"

#include <cstring>

namespace {
const UnknownTag* record(const void* object) { return static_cast<const UnknownTag*>(object); }
}  // namespace

UnknownTag* UnknownTagHashtable::at(unsigned int index) const noexcept {
  return const_cast<UnknownTag*>(record(getAt(index)));
}

int UnknownTagHashtable::compare2Object(const void* first, const void* second) const {
  return compare2Key(first, record(second)->tag.getCharacters());
}

int UnknownTagHashtable::compare2Key(const void* object, const void* key) const {
  return std::strcmp(record(object)->tag.getCharacters(), static_cast<const char*>(key));
}

unsigned int UnknownTagHashtable::hashObject(const void* object) const {
  return record(object)->tag.hashCode();
}

unsigned int UnknownTagHashtable::hashKey(const void* key) const {
  return stringHashCode(static_cast<const char*>(key));
}
