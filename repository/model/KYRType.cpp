// A type and what has it.
#include "repository/model/KYRType.h"

#include "repository/model/KYRLinks.h"
#include "repository/model/KYRModel.h"

KYRType::~KYRType() = default;

void KYRType::addModel(KYRModel* model) { KYRLinks::required(model)->addType(this); }

void KYRType::moveTypedObjects(KYRType* other) {
  if (KYRLinks::required(other) == this) return;
  while (KYRModelObject* object = typedObjects[0]) {
    KYRLinks::refer(other->typedObjects, object);
    object->replaceType(this, other);
    KYRLinks::remove(typedObjects, object);
  }
}

void KYRType::unlink() {
  for (KYRModelObject* object : typedObjects) object->replaceType(this, nullptr);
  KYRLinks::clear(typedObjects);
  KYRNamespaceElement::unlink();
}
