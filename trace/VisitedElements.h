// VisitedElements: which elements the conversion has come to, whatever it made of them.
//
// It comes to the members of packages, from these to features, from operations to parameters, and it
// collects relations on the way. What it never comes to stands in a place that it does not look at.
#pragma once

#include <unordered_set>

#include "uml/UMLForward.h"

class KYROmgUml2XmiImportBridge;
class UMLObjectTable;

class VisitedElements {
 public:
  VisitedElements(KYROmgUml2XmiImportBridge& bridge, const UMLObjectTable& elements);

  /// A member of the model or of a package that was converted.
  bool isMember(const UMLElement* element) const { return members_.count(element) != 0; }
  /// Of these, one that stands at the top of the model.
  bool isTopMember(const UMLElement* element) const { return topMembers_.count(element) != 0; }
  /// Listed as an attribute, operation or parameter of what was converted.
  bool isFeature(const UMLElement* element) const { return features_.count(element) != 0; }
  /// A relation that was collected.
  bool isRelation(const UMLElement* element) const { return relations_.count(element) != 0; }

 private:
  using Set = std::unordered_set<const UMLElement*>;
  template <class List>
  static void insert(Set& set, const List& list);

  Set members_;
  Set topMembers_;
  Set features_;
  Set relations_;
};
