// Owners and schemas of a physical model. For Enterprise Architect the owner is a property of each
// table; for MagicDraw a schema is a marked package, and its name and extent come from the package.
#include "bridge/messages/KBI_UML2XMI.h"
#include "bridge/state/FoldedText.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/KYRException.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDatabaseSchema.h"
#include "repository/model/KYRObjectCollector.h"
#include "repository/model/KYRStoreModel.h"
#include "uml/UMLNamespaces.h"

namespace {

const KYRString& defaultSchema() { return KYRString::getEmptyString(); }

// Gathers classes and counts all that it passes: packages that are schemas can stand in one another,
// or be marked again and again.
class CountingCollector : public KYRObjectCollector {
 public:
  explicit CountingCollector(KYROmgUml2XmiImportBridge& bridge)
      : KYRObjectCollector(KYRElementType::class_), bridge_(bridge) {}
  void visit(KYRObject& object) override {
    bridge_.countSteps(1);
    KYRObjectCollector::visit(object);
  }

 private:
  KYROmgUml2XmiImportBridge& bridge_;
};

// One owner for each child of that tag that names an element; `nameAttribute` may be null.
void loadOwnersFrom(const KYRDOMElement& parent, const KYRString& tag, const KYRString& idAttribute,
                    const char* nameAttribute, KYROmgUml2XmiImportBridge::OwnerHashtable& owners) {
  const int count = parent.getElementCount(tag);
  for (int i = 0; i < count; ++i) {
    const KYRDOMElement* const element = parent.getElement(tag, i);
    const KYRString& id = element->getAttribute(idAttribute);
    const KYRString& name =
        nameAttribute == nullptr ? KYRString::getEmptyString() : element->getAttribute(nameAttribute);
    if (id.isEmpty() || (nameAttribute != nullptr && name.isEmpty())) continue;
    auto owner = std::make_unique<KYROmgUml2XmiImportBridge::Owner>(id, name);
    owners.addRecord(owner.get());
    owner.release();  // ownership: the release step
  }
}

}  // namespace

void KYROmgUml2XmiImportBridge::loadOwners() {
  if (!isPhysicalTarget() || domModel == nullptr) return;
  if (umlModel->exporter.equals("Enterprise Architect", false)) {
    loadOwnersFrom(*domModel, "EAUML:table", "base_Class", "Owner", owners);
  } else if (umlModel->exporter.equals("MagicDraw UML", false)) {
    loadOwnersFrom(*domRoot, "SQLProfile:Schema", "base_Package", nullptr, owners);
  }
}

void KYROmgUml2XmiImportBridge::placeClassesInSchemas() {
  if (!isPhysicalTarget()) return;
  if (umlModel->exporter.equals("Enterprise Architect", false)) {
    placeTablesWithOwners();
  } else if (umlModel->exporter.equals("MagicDraw UML", false)) {
    placePackagesAsSchemas();
  }
}

void KYROmgUml2XmiImportBridge::placeTablesWithOwners() {
  KYRObjectCollector classes(KYRElementType::class_);
  storeModel->depthTraversal(classes);
  for (KYRObject* object : classes) {
    const Owner* const owner = owners.find(object->sourceId);
    addToSchema(dynamic_cast<KYRClass*>(object),
                fetchSchema(owner == nullptr ? defaultSchema() : owner->name));
  }
}

void KYROmgUml2XmiImportBridge::placePackagesAsSchemas() {
  for (unsigned int slot = 0; slot < owners.getSlotCount(); ++slot) {
    const Owner* const owner = owners.at(slot);
    KYRObject* const package = owner == nullptr ? nullptr : objects.find(owner->id);
    if (package == nullptr || package->getElementType() != KYRElementType::designPackage) continue;
    KYRDatabaseSchema* const schema = fetchSchema(package->getName());
    CountingCollector classes(*this);
    package->depthTraversal(classes);
    for (KYRObject* object : classes) addToSchema(dynamic_cast<KYRClass*>(object), schema);
  }
  KYRObjectCollector classes(KYRElementType::class_);
  storeModel->depthTraversal(classes);
  for (KYRObject* object : classes) {
    auto* const target = dynamic_cast<KYRClass*>(object);
    if (target->getDataPackage() == nullptr) addToSchema(target, fetchSchema(defaultSchema()));
  }
}

// Names differ by more than the case of letters; a schema is called as it was first written.
KYRDatabaseSchema* KYROmgUml2XmiImportBridge::fetchSchema(const KYRString& name) {
  KYRDatabaseSchema*& known = schemasByName_[foldedText(name.view())];
  if (known != nullptr) return known;
  auto schema = std::make_unique<KYRDatabaseSchema>();
  KYRDatabaseSchema* const result = schema.get();
  result->setName(name);
  keepUnplaced(std::move(schema));  // the model takes it only when all classes are in
  dataPackages.add(result, false);
  known = result;
  return result;
}

// A schema that holds an object of the same name refuses the class, which then stays where it was;
// one such table is no reason to lose the others.
void KYROmgUml2XmiImportBridge::addToSchema(KYRClass* object, KYRDatabaseSchema* schema) {
  try {
    object->addDataPackage(schema);
  } catch (const KYRException&) {
    KBI_UML2XMI::UML2_W_COULD_NOT_ADD_OBJECT_TO_SCHEMA.log(*log, object->getPath(true),
                                                           getPhysicalName(schema));
  }
}
