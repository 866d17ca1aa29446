// One name space for everything that an owner holds.
#include "repository/model/KYRNamespace.h"

#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRLinks.h"

KYRNamespace::~KYRNamespace() = default;

bool KYRNamespace::addNamespaceElementUniqueName(KYRNamespaceElement* element, char separator) {
  refuseRing(*KYRLinks::required(element));
  return KYRLinks::ownUniqueName(elements, this, element, separator);
}

bool KYRNamespace::addNamespaceElement(KYRNamespaceElement* element) {
  refuseRing(*KYRLinks::required(element));
  return KYRLinks::own(elements, this, element);
}

void KYRNamespace::listOwned(KYROwnedLists& lists) const {
  KYRNamespaceElement::listOwned(lists);
  lists.add(KYRLinks::owned(elements));
}

void KYRNamespace::refuseRing(const KYRNamespaceElement& element) const {
  const auto* const added = dynamic_cast<const KYRNamespace*>(&element);
  if (added == nullptr) return;
  // An empty one cannot stand above this name space, which spares deep trees the climb.
  if (added != this && added->elements.isEmpty()) return;
  for (const KYRObject* object = this; object != nullptr; object = object->getParent()) {
    if (object == added) KYRRepositoryMessages::PACKAGE_IN_ITSELF.throwException(added->getName());
  }
}
