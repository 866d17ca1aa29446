// Schemas: an element is in one at most, and a schema holds no two elements of one name.
#include "repository/model/KYRNamespaceElement.h"

#include "repository/KYRRepositoryMessages.h"
#include "repository/model/KYRDataPackage.h"
#include "repository/model/KYRLinks.h"

KYRNamespaceElement::~KYRNamespaceElement() = default;

KYRDataPackage* KYRNamespaceElement::getDataPackage() const { return dataPackage; }

void KYRNamespaceElement::addDataPackage(KYRDataPackage* package) {
  if (KYRLinks::required(package) == dataPackage) return;
  if (package->dataElements.get(getName()) != nullptr) {
    KYRRepositoryMessages::SCHEMA_HOLDS_NAME.throwException(package->getName(), getName());
  }
  KYRLinks::tie(*this, dataPackage, package, &KYRDataPackage::dataElements, true);
}

void KYRNamespaceElement::unlink() {
  if (dataPackage != nullptr) KYRLinks::remove(dataPackage->dataElements, this);
  dataPackage = nullptr;
  KYRModelObject::unlink();
}

void KYRNamespaceElement::leaveNames() {
  if (dataPackage != nullptr) KYRLinks::leaveNames(dataPackage->dataElements, *this);
}

void KYRNamespaceElement::joinNames() {
  if (dataPackage != nullptr) KYRLinks::joinNames(dataPackage->dataElements, *this);
}
