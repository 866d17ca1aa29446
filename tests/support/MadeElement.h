// madeElement: a UML object of any class, made as the reader makes it, but on the heap.
#pragma once

#include <memory>
#include <new>

#include "uml/UMLElement.h"
#include "uml/UMLMetamodel.h"

inline std::unique_ptr<UMLElement> madeElement(int kind, const char* id = "id", const char* name = "name") {
  const UMLMetamodel::ClassRow& row = UMLMetamodel::classRows[static_cast<std::size_t>(kind)];
  return std::unique_ptr<UMLElement>(row.makeAt(::operator new(row.size), id, name));
}
