// ArrivalCount: how many classes, attributes and associations of a file an import would save.
//
// It walks the finished UML objects by the rules of the conversion: packages by what stands under them, what
// is met by exact kind, features by name, associations by their ends. So it tells what an import gives
// without making it.
#pragma once

#include <cstdint>
#include <unordered_set>
#include <vector>

#include "uml/UMLForward.h"

class ArrivalCount {
 public:
  /// `hasRootPackage`: whether the import puts everything into a package of its own.
  ArrivalCount(UMLModel& model, bool hasRootPackage);

  std::uint64_t classes = 0;  // interfaces and association classes included
  std::uint64_t attributes = 0;
  std::uint64_t associations = 0;

 private:
  static std::vector<UMLNamedElement*> membersOf(UMLPackage& package);
  void meet(UMLNamedElement& member, bool isPlaced);
  void meetClass(UMLClass& element);
  void meetInterface(UMLInterface& element);
  template <class Properties>
  void countAttributes(const Properties& properties);
  static unsigned int countEnds(const UMLAssociation& association);
  /// Whether two of its ends are classes that arrive.
  bool hasTwoEnds(const UMLAssociation& association) const;

  std::unordered_set<const UMLElement*> arrived_;  // classes and interfaces
  std::vector<UMLAssociation*> associations_;
};
