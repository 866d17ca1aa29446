// KYRModelObject: an element that has a physical name and can be shown on diagrams.
#pragma once

#include "foundation/SeldomText.h"
#include "repository/model/KYRElement.h"

class KYR_EXPORT KYRModelObject : public KYRElement {
 public:
  /// The name in a data store; empty when it is not set. Written through `setPhysicalName`.
  SeldomText physicalName;
  /// What shows the object on diagrams, in order of making; referred to.
  KYRCollection<KYRPresentationElement> presentationElements;
  ~KYRModelObject() override;

  void setPhysicalName(const KYRString& name) { physicalName = name; }
  /// Makes this the object that the presentation element shows.
  void addPresentationPresentationElement(KYRPresentationElement* presentationElement);

 protected:
  KYRModelObject() = default;
  void unlink() override;
  void deleteShapes() override;
  /// Takes `to`, or none, in place of the type `from`. Called by a type on what has that type.
  virtual void replaceType(const KYRType* from, KYRType* to);

 private:
  friend class KYRType;
};
