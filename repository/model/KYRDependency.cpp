// A dependency and its two ends.
#include "repository/model/KYRDependency.h"

#include "repository/model/KYRClass.h"
#include "repository/model/KYRLinks.h"

KYRDependency::~KYRDependency() { dissolve(); }

void KYRDependency::addClientClass(KYRClass* client) {
  KYRLinks::tie(*this, clientClass, client, &KYRClass::clientDependencies);
}

void KYRDependency::addSupplierClass(KYRClass* supplier) {
  KYRLinks::tie(*this, supplierClass, supplier, &KYRClass::supplierDependencies);
}

void KYRDependency::unlink() {
  KYRLinks::untie(*this, clientClass, &KYRClass::clientDependencies);
  KYRLinks::untie(*this, supplierClass, &KYRClass::supplierDependencies);
  KYRRelationship::unlink();
}
