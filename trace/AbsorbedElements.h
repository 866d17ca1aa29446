// AbsorbedElements: elements that have no object of their own but live on inside another: a literal as an
// initial value, a comment as a description, a return parameter as a type.
#pragma once

#include <unordered_map>

#include "bridge/state/CommentTargets.h"
#include "foundation/KYRTraceReason.h"
#include "repository/model/KYRModelForward.h"
#include "uml/UMLForward.h"

class ArrivedObjects;
class KYRObject;
class KYROmgUml2XmiImportBridge;
class UMLObjectTable;
class VisitedElements;

class AbsorbedElements {
 public:
  struct Place {
    KYRTraceReason reason;
    const KYRObject* object;
  };

  AbsorbedElements(const KYROmgUml2XmiImportBridge& bridge, const UMLObjectTable& elements,
                   const ArrivedObjects& arrived, const VisitedElements& visited);

  /// Where the element lives on; null when it does not, or is an object itself.
  const Place* find(const UMLElement* element) const;
  /// The generalization that the edge is part of, or null.
  const KYRGeneralization* findGeneralization(const UMLGeneralization* edge) const;

 private:
  void add(const UMLElement* element, KYRTraceReason reason, const KYRObject* object);
  void addContentOf(const UMLElement& element, const KYRObject& object);
  void addComments(const UMLElement& element, const KYRObject& object);
  void addAttributeContent(const UMLProperty& property, const KYRObject& attribute);
  void addEndContent(const UMLProperty& end, const KYRObject& role);
  void addReturnParameters(const UMLOperation& operation, const KYRObject& object);
  void addLiteralContent(const UMLEnumerationLiteral& literal, const KYRObject& value);
  void addGeneralizations(const KYROmgUml2XmiImportBridge& bridge);
  void addTypesOfFeatures(const KYROmgUml2XmiImportBridge& bridge);
  void addTypeMember(const UMLElement& element);
  void addOwnColumns(const KYROmgUml2XmiImportBridge& bridge);

  const ArrivedObjects& arrived_;
  const VisitedElements& visited_;
  CommentTargets commentTargets_;
  std::unordered_map<const UMLElement*, Place> places_;
  std::unordered_map<const KYRObject*, const KYRGeneralization*> generalizationsBySuper_;
};
