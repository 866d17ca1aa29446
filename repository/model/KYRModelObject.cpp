// What shows an object on diagrams.
#include "repository/model/KYRModelObject.h"

#include "repository/model/KYRLinks.h"
#include "repository/model/KYRPresentationElement.h"

KYRModelObject::~KYRModelObject() = default;

void KYRModelObject::addPresentationPresentationElement(KYRPresentationElement* presentationElement) {
  KYRLinks::required(presentationElement)->addSubjectModelObject(this);
}

void KYRModelObject::unlink() {
  for (KYRPresentationElement* shape : presentationElements) shape->forgetSubject();
  KYRLinks::clear(presentationElements);
}

void KYRModelObject::deleteShapes() {
  while (KYRPresentationElement* shape = presentationElements[0]) delete shape;
}

void KYRModelObject::replaceType(const KYRType*, KYRType*) {}
