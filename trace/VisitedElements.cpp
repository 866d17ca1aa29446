// The lists that the conversion has walked, walked once more.
#include "trace/VisitedElements.h"

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "xmi/UMLObjectTable.h"

template <class List>
void VisitedElements::insert(Set& set, const List& list) {
  for (const auto* entry : list) {
    if (entry != nullptr) set.insert(entry);
  }
}

VisitedElements::VisitedElements(KYROmgUml2XmiImportBridge& bridge, const UMLObjectTable& elements) {
  if (bridge.umlModel == nullptr) return;
  insert(topMembers_, bridge.getMembers(bridge.umlModel));
  members_ = topMembers_;
  for (unsigned int i = 0; i < elements.getSlotCount(); ++i) {
    UMLElement* const element = elements.at(i);
    if (element->repositoryObject == nullptr) continue;
    switch (element->getKind()) {
      case UMLPackage::kind:
        insert(members_, bridge.getMembers(umlCast<UMLPackage>(element)));
        break;
      case UMLClass::kind:
      case UMLAssociationClass::kind:
        insert(features_, umlCast<UMLClass>(element)->UMLClass::ownedAttribute);
        insert(features_, umlCast<UMLClass>(element)->ownedOperation);
        break;
      case UMLInterface::kind:
        insert(features_, umlCast<UMLInterface>(element)->ownedAttribute);
        insert(features_, umlCast<UMLInterface>(element)->ownedOperation);
        break;
      case UMLOperation::kind:
        insert(features_, umlCast<UMLOperation>(element)->UMLOperation::ownedParameter);
        break;
      default:
        break;
    }
  }
  insert(relations_, bridge.pendingAssociations);
  insert(relations_, bridge.pendingGeneralizations);
  insert(relations_, bridge.pendingRealizations);
  insert(relations_, bridge.pendingDependencies);
}
