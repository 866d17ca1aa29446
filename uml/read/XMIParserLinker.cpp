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

bool apply(const UMLMetamodel::LinkRow& row, const IdTable::Bearer& first, const IdTable::Bearer& second) {
  void* const firstPart = umlCastTo(first.object, first.kind, row.first.owner);
  void* const secondPart = umlCastTo(second.object, second.kind, row.second.owner);
  if (firstPart == nullptr || secondPart == nullptr) return false;
  if (row.first.fill != nullptr) row.first.fill(firstPart, secondPart);
  if (row.second.fill != nullptr) row.second.fill(secondPart, firstPart);
  return true;
}

}  // namespace

bool XMIParser::linkRelationship(UMLElement* first, UMLElement* second, int kind) {
  return link({first, first->getKind()}, {second, second->getKind()}, kind);
}

bool XMIParser::link(const IdTable::Bearer& first, const IdTable::Bearer& second, int kind) {
  if (kind < 0 || kind >= UMLMetamodel::linkKindCount) return false;
  const UMLMetamodel::LinkRow& row = UMLMetamodel::linkRows[static_cast<unsigned int>(kind)];
  // What one link raises must not stop the others.
  try {
    return apply(row, first, second) || apply(row, second, first);
  } catch (...) {
    KBI_UML2XMI::UML2_I_RELATIONSHIP_CREATING_ERROR_DETAILED.log(*log, row.name);
  }
  return false;
}
