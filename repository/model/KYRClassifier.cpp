// The features of a classifier and their name space.
#include "repository/model/KYRClassifier.h"

#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRLinks.h"

KYRClassifier::~KYRClassifier() = default;

bool KYRClassifier::addFeatureUniqueName(KYRFeature* feature, char separator) {
  auto* const attribute = dynamic_cast<KYRAttribute*>(KYRLinks::required(feature));
  if (attribute == nullptr || !KYRLinks::ownUniqueName(attributes, this, attribute, separator)) return false;
  attribute->owner = dynamic_cast<KYRClass*>(this);
  return true;
}

bool KYRClassifier::addAttribute(KYRAttribute* attribute) {
  if (!KYRLinks::own(attributes, this, KYRLinks::required(attribute))) return false;
  attribute->owner = dynamic_cast<KYRClass*>(this);
  return true;
}

void KYRClassifier::listOwned(KYROwnedLists& lists) const {
  KYRModelElement::listOwned(lists);
  lists.add(KYRLinks::owned(attributes));
}
