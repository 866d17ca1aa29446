// The linker: one pending link fills in every end of its association that the class tree declares.
//
// The direct order of the two objects is tried first, then the swapped one, so the readers may note
// a reference in either order. Where an object fits both roles the direct order wins; that gives the
// attribute form of some references the reverse sense of their child form, which is kept. See
// "TheAttributeFormOfGeneralRunsInTheReversedSense" in LinkerTest.
#include "bridge/messages/KBI_UML2XMI.h"
#include "uml/UMLCast.h"
#include "uml/UMLMetamodel.h"
#include "xmi/XMIParser.h"

namespace {

bool fits(const UMLMetamodel::LinkRow& row, const UMLElement& first, const UMLElement& second) {
  return first.isKindOf(row.first.owner) && second.isKindOf(row.second.owner);
}

bool apply(const UMLMetamodel::LinkRow& row, UMLElement* first, UMLElement* second) {
  void* const firstPart = umlCastTo(first, row.first.owner);
  void* const secondPart = umlCastTo(second, row.second.owner);
  if (firstPart == nullptr || secondPart == nullptr) return false;
  if (row.first.fill != nullptr) row.first.fill(firstPart, secondPart);
  if (row.second.fill != nullptr) row.second.fill(secondPart, firstPart);
  return true;
}

}  // namespace

bool XMIParser::linkRelationship(UMLElement* first, UMLElement* second, int kind) {
  if (kind < 0 || kind >= UMLMetamodel::linkKindCount) return false;
  const UMLMetamodel::LinkRow& row = UMLMetamodel::linkRows[static_cast<unsigned int>(kind)];
  // What one link raises must not stop the others.
  try {
    if (fits(row, *first, *second)) return apply(row, first, second);
    if (fits(row, *second, *first)) return apply(row, second, first);
  } catch (...) {
    KBI_UML2XMI::UML2_I_RELATIONSHIP_CREATING_ERROR_DETAILED.log(*log, row.name);
  }
  return false;
}
