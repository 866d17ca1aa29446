// A realization and its two ends.
#include "repository/model/KYRRealization.h"

#include "repository/model/KYRClass.h"
#include "repository/model/KYRLinks.h"

KYRRealization::~KYRRealization() { dissolve(); }

void KYRRealization::addRealizationClass(KYRClass* realization) {
  KYRLinks::tie(*this, realizationClass, realization, &KYRClass::realizations);
}

void KYRRealization::addSpecificationClass(KYRClass* specification) {
  KYRLinks::tie(*this, specificationClass, specification, &KYRClass::specifications);
}

void KYRRealization::unlink() {
  KYRLinks::untie(*this, realizationClass, &KYRClass::realizations);
  KYRLinks::untie(*this, specificationClass, &KYRClass::specifications);
  KYRRelationship::unlink();
}
