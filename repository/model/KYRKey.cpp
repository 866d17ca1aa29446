// A key, its attributes and its class.
#include "repository/model/KYRKey.h"

#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRLinks.h"

KYRKey::~KYRKey() = default;

void KYRKey::addAttribute(KYRAttribute* attribute) {
  KYRLinks::required(attribute);
  KYRLinks::linkOnce(attributes, attribute, attribute->keys, this);
}

void KYRKey::addAssociatedClass(KYRClass* keyClass) { KYRLinks::required(keyClass)->addKey(this); }

void KYRKey::leavingOwner() { associatedClass = nullptr; }

void KYRKey::unlink() {
  for (KYRAttribute* attribute : attributes) KYRLinks::remove(attribute->keys, this);
  KYRLinks::clear(attributes);
  KYRModelObject::unlink();
}
