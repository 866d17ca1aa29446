// An operation, its arguments and its result.
#include "repository/model/KYROperation.h"

#include "repository/model/KYRArgument.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRLinks.h"
#include "repository/model/KYRType.h"

KYROperation::~KYROperation() { dissolve(); }

KYRClass* KYROperation::getOwner() const { return dynamic_cast<KYRClass*>(getParent()); }

void KYROperation::addArgument(KYRArgument* argument) {
  KYRLinks::own(arguments, this, KYRLinks::required(argument));
}

int KYROperation::getArgumentCount() const { return static_cast<int>(arguments.count()); }

void KYROperation::addReturnType(KYRType* type) {
  KYRLinks::tie<KYRModelObject>(*this, returnType, type, &KYRType::typedObjects);
}

void KYROperation::listOwned(KYROwnedLists& lists) const {
  KYRNamespaceElement::listOwned(lists);
  lists.add(KYRLinks::owned(arguments));
}

void KYROperation::unlink() {
  KYRLinks::untie<KYRModelObject>(*this, returnType, &KYRType::typedObjects);
  KYRNamespaceElement::unlink();
}

void KYROperation::replaceType(const KYRType* from, KYRType* to) {
  if (returnType == from) returnType = to;
}
