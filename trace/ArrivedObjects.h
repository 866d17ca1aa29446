// ArrivedObjects: what a model holds of the elements of a file once the import is done with it.
//
// Objects say themselves which element they were made of: most point at it, relations and types bear its
// id. So nothing is taken for converted that is not in the model: objects that were made and destroyed
// again, or that no package took, are not found, nor is what the release step will take out.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "repository/model/KYRModelForward.h"
#include "uml/UMLForward.h"

class KYRObject;
class KYROmgUml2XmiImportBridge;
class KYRString;
class UMLObjectTable;

class ArrivedObjects {
 public:
  ArrivedObjects(const KYROmgUml2XmiImportBridge& bridge, const UMLObjectTable& elements);
  ArrivedObjects(const ArrivedObjects&) = delete;
  ArrivedObjects& operator=(const ArrivedObjects&) = delete;

  /// The object of its own that the element has become, or null.
  KYRObject* find(const UMLElement* element) const;
  /// The derived type that a type of that name has become, or null.
  KYRObject* findTypeNamed(const KYRString& name) const;

 private:
  class Gather;
  void leaveOutEmptyPackages();

  std::vector<KYRObject*> objects_;
  std::unordered_set<const KYRObject*> leaving_;
  std::unordered_map<const UMLElement*, KYRObject*> byElement_;
  std::unordered_map<std::string, KYRObject*> typesByName_;  // names in small letters
};
