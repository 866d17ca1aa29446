// KYRClassifier: a model element with features.
#pragma once

#include "repository/model/KYRModelElement.h"

class KYR_EXPORT KYRClassifier : public KYRModelElement {
 public:
  /// Owned. Attributes are the only features; operations share no name space with them.
  KYRCollection<KYRAttribute> attributes;
  ~KYRClassifier() override;

  /// Adds the feature; a name that is taken among the features gets the separator and the smallest
  /// free number from 1. False when the classifier already has it. The empty name is always free.
  bool addFeatureUniqueName(KYRFeature* feature, char separator);
  /// Adds the attribute as it is named, taken or not. False when the classifier already has it.
  bool addAttribute(KYRAttribute* attribute);

 protected:
  KYRClassifier() = default;
  void listOwned(KYROwnedLists& lists) const override;
};
