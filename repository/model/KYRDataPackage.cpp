// A data package refers to its elements; they lose it when it goes.
#include "repository/model/KYRDataPackage.h"

#include "repository/model/KYRLinks.h"

KYRDataPackage::~KYRDataPackage() { dissolve(); }

void KYRDataPackage::unlink() {
  for (KYRNamespaceElement* element : dataElements) element->dataPackage = nullptr;
  KYRLinks::clear(dataElements);
  KYRPackage::unlink();
}
