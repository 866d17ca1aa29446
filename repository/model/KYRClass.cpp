// A class as owner of features and keys, and as the end of relations.
#include "repository/model/KYRClass.h"

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDependency.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRLinks.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRRealization.h"

namespace {

// Empties a field of all entries, which referred to the class, and the list.
template <class T>
void cut(KYRCollection<T>& list, KYRClass* T::*field) noexcept {
  for (T* entry : list) entry->*field = nullptr;
  KYRLinks::clear(list);
}

}  // namespace

KYRClass::~KYRClass() { dissolve(); }

void KYRClass::addOperation(KYROperation* operation) {
  KYRLinks::own(operations, this, KYRLinks::required(operation));
}

void KYRClass::addAssociation(KYRAssociation* classAssociation) {
  KYRLinks::required(classAssociation);
  if (association != nullptr) association->associationClass = nullptr;
  if (KYRClass* former = classAssociation->associationClass) former->association = nullptr;
  association = classAssociation;
  classAssociation->associationClass = this;
}

void KYRClass::addKey(KYRKey* key) {
  if (KYRLinks::own(keys, this, KYRLinks::required(key))) key->associatedClass = this;
}

void KYRClass::addPrimaryCandidateKey(KYRCandidateKey* key) {
  addKey(key);
  if (primaryKey != nullptr) primaryKey->primaryKeyClass = nullptr;
  primaryKey = key;
  key->primaryKeyClass = this;
}

int KYRClass::getAttributeCount() const { return static_cast<int>(attributes.count()); }

int KYRClass::getOperationCount() const { return static_cast<int>(operations.count()); }

KYRAttribute* KYRClass::getAttribute(int index) const {
  return index < 0 ? nullptr : attributes[static_cast<unsigned int>(index)];
}

KYRAttribute* KYRClass::getAttribute(const KYRString& name) const { return attributes.get(name); }

void KYRClass::listOwned(KYROwnedLists& lists) const {
  KYRClassifier::listOwned(lists);
  lists.add(KYRLinks::owned(operations));
  lists.add(KYRLinks::owned(keys));
}

void KYRClass::unlink() {
  if (primaryKey != nullptr) primaryKey->primaryKeyClass = nullptr;
  if (classType != nullptr) classType->associatedClass = nullptr;
  if (association != nullptr) association->associationClass = nullptr;
  primaryKey = nullptr;
  classType = nullptr;
  association = nullptr;
  cut(associationRoles, &KYRAssociationRole::associatedClass);
  cut(generalizationRoles, &KYRGeneralizationRole::associatedClass);
  cut(clientDependencies, &KYRDependency::clientClass);
  cut(supplierDependencies, &KYRDependency::supplierClass);
  cut(realizations, &KYRRealization::realizationClass);
  cut(specifications, &KYRRealization::specificationClass);
  KYRClassifier::unlink();
}
