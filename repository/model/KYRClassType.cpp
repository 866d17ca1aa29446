// A class type and its class, each the only one of the other.
#include "repository/model/KYRClassType.h"

#include "repository/model/KYRClass.h"
#include "repository/model/KYRLinks.h"

KYRClassType::~KYRClassType() { dissolve(); }

void KYRClassType::addAssociatedClass(KYRClass* typeClass) {
  KYRLinks::required(typeClass);
  if (associatedClass != nullptr) associatedClass->classType = nullptr;
  if (KYRClassType* former = typeClass->classType) former->associatedClass = nullptr;
  associatedClass = typeClass;
  typeClass->classType = this;
}

void KYRClassType::unlink() {
  if (associatedClass != nullptr) associatedClass->classType = nullptr;
  associatedClass = nullptr;
  KYRType::unlink();
}
