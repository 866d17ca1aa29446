// A diagram, what it lists and what it draws. The index from object to first shape is made when it is
// first asked for and kept while shapes are only added behind the others.
#include "repository/model/KYRDiagram.h"

#include <unordered_map>

#include "repository/model/KYRLinks.h"
#include "repository/model/KYRModelElement.h"
#include "repository/model/KYRPresentationElement.h"

struct KYRDiagram::SubjectIndex {
  std::unordered_map<const KYRModelObject*, KYRPresentationElement*> first;
};

KYRDiagram::KYRDiagram() = default;
KYRDiagram::~KYRDiagram() = default;

void KYRDiagram::addModelElement(KYRModelElement* element) {
  KYRLinks::required(element);
  KYRLinks::linkOnce(modelElements, element, element->diagrams, this);
}

void KYRDiagram::addPresentationElement(KYRPresentationElement* presentationElement) {
  if (KYRLinks::own(diagramElements, this, KYRLinks::required(presentationElement))) {
    noteSubject(*presentationElement);
  }
}

KYRPresentationElement* KYRDiagram::getPresentationElement(const KYRModelObject* subject) const {
  if (subject == nullptr) return nullptr;
  if (!subjects_) {
    auto index = std::make_unique<SubjectIndex>();
    for (KYRPresentationElement* shape : diagramElements) index->first.try_emplace(shape->subject, shape);
    subjects_ = std::move(index);
  }
  const auto found = subjects_->first.find(subject);
  return found == subjects_->first.end() ? nullptr : found->second;
}

void KYRDiagram::listOwned(KYROwnedLists& lists) const {
  KYRModelObject::listOwned(lists);
  lists.add(KYRLinks::owned(diagramElements));
}

void KYRDiagram::unlink() {
  forgetSubjects();
  for (KYRModelElement* element : modelElements) KYRLinks::remove(element->diagrams, this);
  KYRLinks::clear(modelElements);
  KYRModelObject::unlink();
}

void KYRDiagram::noteSubject(KYRPresentationElement& shape) noexcept {
  if (!subjects_ || shape.subject == nullptr) return;
  if (diagramElements[diagramElements.count() - 1] == &shape) {
    try {
      subjects_->first.try_emplace(shape.subject, &shape);
      return;
    } catch (const std::bad_alloc&) {
    }
  }
  forgetSubjects();
}

void KYRDiagram::forgetSubjects() noexcept { subjects_.reset(); }
