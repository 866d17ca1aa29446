// UMLTaggedValue: a name and a value that a tool attached to an element. No UML element itself.
#pragma once

#include <utility>

#include "foundation/KYRString.h"

class UMLTaggedValue {
 public:
  UMLTaggedValue(KYRString tagName, KYRString tagValue)
      : name(std::move(tagName)), value(std::move(tagValue)) {}
  UMLTaggedValue(const UMLTaggedValue&) = delete;
  UMLTaggedValue& operator=(const UMLTaggedValue&) = delete;
  virtual ~UMLTaggedValue() = default;

  KYRString name;
  KYRString value;
};
