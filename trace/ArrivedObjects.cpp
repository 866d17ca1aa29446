// One walk over the model.
#include "trace/ArrivedObjects.h"

#include <string>

#include "bridge/state/FoldedText.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTraversalOperation.h"
#include "uml/UMLClasses.h"
#include "xmi/UMLObjectTable.h"

namespace {

// The class of the objects that bear the id of elements of that kind without pointing at them; 0 when there
// is none.
int bearerOf(int kind) {
  switch (kind) {
    case UMLAssociation::kind:
      return KYRElementType::association;
    case UMLDependency::kind:
      return KYRElementType::dependency;
    case UMLInterfaceRealization::kind:
      return KYRElementType::realization;
    case UMLGeneralization::kind:
      return KYRElementType::generalizationRole;
    case UMLGeneralizationSet::kind:
      return KYRElementType::generalization;
    case UMLEnumerationLiteral::kind:
      return KYRElementType::typeValue;
    case UMLEnumeration::kind:
    case UMLPrimitiveType::kind:
    case UMLDataType::kind:
      return KYRElementType::derivedType;
    default:
      return 0;
  }
}

}  // namespace

class ArrivedObjects::Gather : public KYRTraversalOperation {
 public:
  explicit Gather(ArrivedObjects& target) : target_(target) {}
  void visit(KYRObject& object) override { target_.objects_.push_back(&object); }

 private:
  ArrivedObjects& target_;
};

ArrivedObjects::ArrivedObjects(const KYROmgUml2XmiImportBridge& bridge, const UMLObjectTable& elements) {
  Gather gather(*this);
  bridge.storeModel->depthTraversal(gather);
  KYRRBTree::Iterator dropped(bridge.droppedAttributes, true);
  while (const void* attribute = dropped.get()) {
    leaving_.insert(static_cast<const KYRAttribute*>(attribute));
    dropped.next();
  }
  leaveOutEmptyPackages();
  for (KYRObject* object : objects_) {
    if (leaving_.count(object) != 0) continue;
    const auto* const type = dynamic_cast<const KYRDerivedType*>(object);
    if (type != nullptr) typesByName_.try_emplace(foldedText(type->nativeDataType.view()), object);
    // A type points at the enumeration that has filled it last, and bears the id of the one that made it.
    if (object->umlElement != nullptr && type == nullptr) {
      byElement_.try_emplace(object->umlElement, object);
    } else if (!object->sourceId.isEmpty()) {
      const UMLElement* const element = elements.find(object->sourceId);
      if (element != nullptr && bearerOf(element->getKind()) == object->getElementType()) {
        byElement_.try_emplace(element, object);
      }
    }
  }
}

// A package stands before what it holds, so that from the last to the first each is asked when all in it
// have been.
void ArrivedObjects::leaveOutEmptyPackages() {
  for (auto at = objects_.rbegin(); at != objects_.rend(); ++at) {
    if ((*at)->getElementType() != KYRElementType::designPackage) continue;
    const auto* const package = dynamic_cast<const KYRDesignPackage*>(*at);
    bool isEmpty = package->diagrams.isEmpty();
    for (unsigned int i = 0; isEmpty && i < package->elements.count(); ++i) {
      isEmpty = leaving_.count(package->elements[i]) != 0;
    }
    if (isEmpty) leaving_.insert(package);
  }
}

KYRObject* ArrivedObjects::find(const UMLElement* element) const {
  const auto known = byElement_.find(element);
  return known == byElement_.end() ? nullptr : known->second;
}

KYRObject* ArrivedObjects::findTypeNamed(const KYRString& name) const {
  const auto known = typesByName_.find(foldedText(name.view()));
  return known == typesByName_.end() ? nullptr : known->second;
}
