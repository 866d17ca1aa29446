// A presentation element between its diagram and what it shows.
#include "repository/model/KYRPresentationElement.h"

#include "repository/model/KYRDiagram.h"
#include "repository/model/KYRLinks.h"
#include "repository/model/KYRModelObject.h"

KYRPresentationElement::~KYRPresentationElement() = default;

KYRDiagram* KYRPresentationElement::getDiagram() const { return dynamic_cast<KYRDiagram*>(getParent()); }

void KYRPresentationElement::addDiagram(KYRDiagram* diagram) {
  KYRLinks::required(diagram)->addPresentationElement(this);
}

void KYRPresentationElement::addSubjectModelObject(KYRModelObject* object) {
  if (KYRLinks::required(object) == subject) return;
  KYRDiagram* const diagram = getDiagram();
  if (diagram != nullptr && subject != nullptr) diagram->forgetSubjects();
  KYRLinks::tie(*this, subject, object, &KYRModelObject::presentationElements);
  if (diagram != nullptr) diagram->noteSubject(*this);
}

void KYRPresentationElement::forgetSubject() noexcept {
  subject = nullptr;
  if (KYRDiagram* diagram = getDiagram()) diagram->forgetSubjects();
}

void KYRPresentationElement::leavingOwner() {
  if (KYRDiagram* diagram = getDiagram()) diagram->forgetSubjects();
}

void KYRPresentationElement::unlink() {
  KYRLinks::untie(*this, subject, &KYRModelObject::presentationElements);
  KYRObject::unlink();
}
