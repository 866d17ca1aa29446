// Association classes: a class and an association in one. The class is made with all others, but it is
// placed only when it has a name, for which it may have to wait until the classes at its ends exist.
#include <unordered_set>

#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRTraversalOperation.h"
#include "uml/UMLCast.h"
#include "uml/UMLClassifiers.h"
#include "uml/UMLFeatures.h"

namespace {

constexpr unsigned int fewestEnds = 2;

// Makes the import forget a class and its features.
class Forget : public KYRTraversalOperation {
 public:
  Forget(KYROmgUml2XmiImportBridge::ID2ObjectHashtable& objects,
         std::unordered_set<const KYRObject*>& forgotten)
      : objects_(objects), forgotten_(forgotten) {}
  void visit(KYRObject& object) override {
    objects_.removeRecord(&object);
    forgotten_.insert(&object);
    if (object.umlElement != nullptr && object.umlElement->repositoryObject == &object) {
      object.umlElement->repositoryObject = nullptr;
    }
  }

 private:
  KYROmgUml2XmiImportBridge::ID2ObjectHashtable& objects_;
  std::unordered_set<const KYRObject*>& forgotten_;
};

}  // namespace

KYROmgUml2XmiImportBridge::AssociationClass* KYROmgUml2XmiImportBridge::getAssociationClassRecord(
    UMLAssociation* element) {
  AssociationClass*& record = recordsByElement_[element];
  if (record == nullptr) {
    associationClasses.push_back(std::make_unique<AssociationClass>(element));
    record = associationClasses.back().get();
  }
  return record;
}

void KYROmgUml2XmiImportBridge::placeAssociationClasses() {
  std::unordered_set<const KYRObject*> forgotten;
  for (const auto& record : associationClasses) {
    KYRClass* const target = record->class_;
    if (record->association == nullptr || target == nullptr || record->package == nullptr) continue;
    KYRString name = target->getName();
    if (name.isEmpty()) name = buildAssociationClassName(umlCast<UMLAssociationClass>(record->association));
    if (name.isEmpty()) {
      Forget forget(objects, forgotten);
      target->depthTraversal(forget);
      unplacedObjects.removeObject(static_cast<KYRObject*>(target));
      record->class_ = nullptr;
      delete target;
    } else {
      target->setName(name);
      record->package->addNamespaceElementUniqueName(target, '/');
      unplacedObjects.removeObject(static_cast<KYRObject*>(target));
    }
  }
  if (forgotten.empty()) return;
  // In one sweep, so that many dropped classes cost no more than one.
  Borrowed<KYRModelObject> kept;
  for (KYRModelObject* feature : typedFeatures) {
    if (forgotten.count(feature) == 0) kept.add(feature, false);
  }
  typedFeatures = std::move(kept);
}

// The member ends only decide whether there is a name; it is made from the owned ends.
KYRString KYROmgUml2XmiImportBridge::buildAssociationClassName(UMLAssociationClass* element) {
  KYRString name;
  if (element->memberEnd.count() < fewestEnds && element->ownedEnd.count() < fewestEnds) return name;
  bool isFirst = true;
  for (const UMLProperty* end : element->ownedEnd) {
    if (end == nullptr || end->type == nullptr || end->type->repositoryObject == nullptr) continue;
    const int kind = end->type->getKind();
    if (kind != UMLClass::kind && kind != UMLAssociationClass::kind) continue;
    if (!isFirst) name += " ";
    name += end->type->repositoryObject->getName();
    isFirst = false;
  }
  return name;
}
