// umlCast: the dynamic cast of the UML classes at the price of a table lookup.
//
// All bases are virtual, so where a base lies in an object depends on the object's own class alone.
// The distance is asked of dynamic_cast once for each pair of classes and remembered.
#pragma once

#include <cstdint>

#include "uml/UMLElement.h"

namespace UMLCasts {
/// Distance in bytes from the UMLElement part of an object to its part of the other class, times
/// two, plus one; 0 as long as it is not known. Written by one import at a time, like the dispatch
/// rows.
extern std::int32_t distances[UMLLineage::kindCount][UMLLineage::kindCount];
/// Asks dynamic_cast and remembers the answer; null when the cast fails.
void* learn(UMLElement* element, int kind);
}  // namespace UMLCasts

/// As `umlCastTo` below, of an object, not null, whose own class the caller knows: nothing is read of it.
inline void* umlCastTo(UMLElement* element, int own, int kind) {
  if (!UMLLineage::isKindOf(own, kind)) return nullptr;
  const std::int32_t distance = UMLCasts::distances[own][kind];
  if (distance == 0) return UMLCasts::learn(element, kind);
  return reinterpret_cast<char*>(element) + (distance - 1) / 2;
}

/// The part of `element` that is the class of that kind; null when it is null or no such object.
inline void* umlCastTo(UMLElement* element, int kind) {
  return element == nullptr ? nullptr : umlCastTo(element, element->getKind(), kind);
}

/// `element` as a `T`; null when it is null or no `T`.
template <class T>
T* umlCast(UMLElement* element) {
  return static_cast<T*>(umlCastTo(element, T::kind));
}
template <class T>
const T* umlCast(const UMLElement* element) {
  return umlCast<T>(const_cast<UMLElement*>(element));
}
