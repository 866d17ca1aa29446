// LostElements: why an element is neither an object nor part of one.
//
// The rules of the conversion, asked in the order in which they stop an element: what it is, where it
// stands, what it refers to.
#pragma once

#include "foundation/KYRString.h"
#include "foundation/KYRTraceReason.h"
#include "uml/UMLForward.h"

class AbsorbedElements;
class ArrivedObjects;
class ReadNotes;
class UMLObjectTable;
class VisitedElements;

class LostElements {
 public:
  struct Loss {
    KYRTraceReason reason;
    KYRString other;      // what plays a part in it besides the element
    KYRString missingId;  // an id that the element refers to and nothing has
  };

  LostElements(const UMLObjectTable& elements, const ReadNotes& notes, const ArrivedObjects& arrived,
               const VisitedElements& visited, const AbsorbedElements& absorbed);

  Loss explain(const UMLElement& element) const;
  /// "UMLClass 'Order'", by its name, else its id.
  static KYRString describe(const UMLElement& element);

 private:
  Loss explainByKind(const UMLElement& element) const;
  Loss explainPlace(const UMLElement& element) const;
  Loss explainValue(const UMLElement& element) const;
  Loss explainClass(const UMLElement& element) const;
  Loss explainType(const UMLElement& element) const;
  Loss explainLiteral(const UMLEnumerationLiteral& literal) const;
  Loss explainFeature(const UMLElement& feature) const;
  Loss explainProperty(const UMLProperty& property) const;
  Loss explainParameter(const UMLParameter& parameter) const;
  Loss explainAssociation(const UMLAssociation& association) const;
  Loss explainGeneralization(const UMLGeneralization& edge) const;
  Loss explainDependency(const UMLDependency& dependency, int supplierKind) const;
  /// Why that is no end of a relation; unexplained when it is one.
  Loss explainEnd(const UMLElement& relation, const UMLElement* end, bool isRightKind,
                  const char* role) const;
  Loss explainAssociationEnd(const UMLProperty& end) const;
  bool isThere(const UMLElement* element) const;

  const UMLObjectTable& elements_;
  const ReadNotes& notes_;
  const ArrivedObjects& arrived_;
  const VisitedElements& visited_;
  const AbsorbedElements& absorbed_;
};
