// KYRDiagram: a picture of a part of a model.
#pragma once

#include <memory>

#include "repository/model/KYRModelObject.h"

class KYR_EXPORT KYRDiagram : public KYRModelObject {
 public:
  /// What the diagram lists as its content; referred to, each once.
  KYRCollection<KYRModelElement> modelElements;
  KYRCollection<KYRPresentationElement> diagramElements;  // owned: the shapes and lines
  ~KYRDiagram() override;

  /// Lists the element; one that is listed already is passed over.
  void addModelElement(KYRModelElement* element);
  void addPresentationElement(KYRPresentationElement* presentationElement);
  /// The first presentation element made for the object on this diagram; null when there is none.
  /// O(1) between changes of the diagram.
  KYRPresentationElement* getPresentationElement(const KYRModelObject* subject) const;

 protected:
  KYRDiagram();
  void listOwned(KYROwnedLists& lists) const override;
  void unlink() override;

 private:
  friend class KYRPresentationElement;
  struct SubjectIndex;
  void noteSubject(KYRPresentationElement& shape) noexcept;
  void forgetSubjects() noexcept;
  mutable std::unique_ptr<SubjectIndex> subjects_;
};
