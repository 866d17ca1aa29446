// Packages with a list of those still to be met, since references can nest them in circles.
#include "host/ArrivalCount.h"

#include <algorithm>

#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"

namespace {
constexpr unsigned int fewestEnds = 2;
}

ArrivalCount::ArrivalCount(UMLModel& model, bool hasRootPackage) {
  const std::vector<UMLNamedElement*> top = membersOf(model);
  // An interface at the top is placed only if something else there makes a package for loose elements.
  const bool isPlaced = hasRootPackage || std::any_of(top.begin(), top.end(), [](UMLNamedElement* member) {
                          return member != nullptr && (member->getKind() == UMLClass::kind ||
                                                       member->getKind() == UMLAssociation::kind);
                        });
  std::unordered_set<const UMLElement*> seen = {&model};
  std::vector<UMLPackage*> packages = {&model};
  while (!packages.empty()) {
    UMLPackage* const package = packages.back();
    packages.pop_back();
    for (UMLNamedElement* member : membersOf(*package)) {
      if (member == nullptr) continue;
      if (member->getKind() == UMLPackage::kind) {
        if (seen.insert(member).second) packages.push_back(umlCast<UMLPackage>(member));
      } else {
        meet(*member, isPlaced || package != &model);
      }
    }
  }
  std::unordered_set<const UMLAssociation*> counted;
  for (const UMLAssociation* association : associations_) {
    if (hasTwoEnds(*association) && counted.insert(association).second) ++associations;
  }
}

std::vector<UMLNamedElement*> ArrivalCount::membersOf(UMLPackage& package) {
  std::vector<UMLNamedElement*> members;
  if (package.packagedElement.isEmpty()) {
    for (UMLNamedElement* member : package.ownedMember) members.push_back(member);
  } else {
    for (UMLPackageableElement* member : package.packagedElement) members.push_back(member);
  }
  return members;
}

void ArrivalCount::meet(UMLNamedElement& member, bool isPlaced) {
  const bool hasName = !member.name.isEmpty();
  switch (member.getKind()) {
    case UMLClass::kind:
      if (hasName) meetClass(*umlCast<UMLClass>(&member));
      break;
    case UMLInterface::kind:
      if (hasName && isPlaced) meetInterface(*umlCast<UMLInterface>(&member));
      break;
    case UMLAssociationClass::kind:
      if (hasName || countEnds(*umlCast<UMLAssociation>(&member)) >= fewestEnds) {
        if (arrived_.count(&member) == 0) meetClass(*umlCast<UMLClass>(&member));
        associations_.push_back(umlCast<UMLAssociation>(&member));
      }
      break;
    case UMLAssociation::kind:
      associations_.push_back(umlCast<UMLAssociation>(&member));
      break;
    default:
      break;
  }
}

void ArrivalCount::meetClass(UMLClass& element) {
  if (element.isBoundary) return;
  ++classes;
  arrived_.insert(&element);
  countAttributes(element.UMLClass::ownedAttribute);
}

void ArrivalCount::meetInterface(UMLInterface& element) {
  ++classes;
  arrived_.insert(&element);
  countAttributes(element.ownedAttribute);
}

template <class Properties>
void ArrivalCount::countAttributes(const Properties& properties) {
  for (const UMLProperty* property : properties) {
    if (property == nullptr || property->getKind() != UMLProperty::kind) continue;
    if (property->association == nullptr && !property->name.isEmpty()) ++attributes;
  }
}

unsigned int ArrivalCount::countEnds(const UMLAssociation& association) {
  return std::max(association.memberEnd.count(), association.ownedEnd.count());
}

bool ArrivalCount::hasTwoEnds(const UMLAssociation& association) const {
  const auto& ends =
      association.memberEnd.count() < fewestEnds ? association.ownedEnd : association.memberEnd;
  unsigned int found = 0;
  for (const UMLProperty* end : ends) {
    if (end != nullptr && end->type != nullptr && arrived_.count(end->type) != 0) ++found;
  }
  return found >= fewestEnds;
}
