// The parts of a shape as the file has them. A part that is missing reads as the empty text.
#pragma once

#include "foundation/KYRDOM.h"

/// The id that a child of that tag refers to.
inline const KYRString& shapeReference(const KYRDOMElement* element, const KYRString& tag) {
  const KYRDOMElement* const child = element->getFirstElement(tag);
  return child == nullptr ? KYRString::getEmptyString() : child->getAttribute("xmi:idref");
}

/// The value attribute of a child of that tag.
inline const KYRString& shapeValue(const KYRDOMElement* element, const KYRString& tag) {
  const KYRDOMElement* const child = element->getFirstElement(tag);
  return child == nullptr ? KYRString::getEmptyString() : child->getAttribute("xmi:value");
}

/// The characters of a child of that tag.
inline const KYRString& shapeText(const KYRDOMElement* element, const KYRString& tag) {
  const KYRDOMElement* const child = element->getFirstElement(tag);
  return child == nullptr ? KYRString::getEmptyString() : child->getValue();
}

/// Whether the shape, or the property of one, is of that class, without regard to case.
inline bool isOfClass(const KYRDOMElement* element, std::string_view name) {
  return equalsIgnoringCase(element->getAttribute("elementClass").view(), name);
}
