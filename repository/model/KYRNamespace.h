// KYRNamespace: an owner of elements that are told apart by their names.
#pragma once

#include "repository/model/KYRNamespaceElement.h"

class KYR_EXPORT KYRNamespace : public KYRNamespaceElement {
 public:
  KYRCollection<KYRNamespaceElement> elements;  // owned
  ~KYRNamespace() override;

  /// Adds the element; a name that is taken gets the separator and the smallest free number from 1:
  /// "Order", "Order/1", "Order/2". Names compare exactly; the empty name is always free. The result
  /// is false when the element is already there. Raises a KYRException when a name space would hold
  /// itself.
  bool addNamespaceElementUniqueName(KYRNamespaceElement* element, char separator);
  /// Adds the element as it is named, taken or not. Otherwise as above.
  bool addNamespaceElement(KYRNamespaceElement* element);

 protected:
  KYRNamespace() = default;
  void listOwned(KYROwnedLists& lists) const override;
  /// Raises when this name space stands in `element` or is it.
  void refuseRing(const KYRNamespaceElement& element) const;
};
