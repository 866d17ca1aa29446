// Keys. UML has none; MagicDraw marks properties with stereotypes of an entity-relationship profile,
// which stand beside the model and point at the property. Marks that point at nothing, or at anything
// but an attribute, are passed over, and so are foreign keys that find no primary key to refer to.
#include <unordered_set>

#include "bridge/state/FoldedText.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "uml/UMLNamespaces.h"

namespace {

// A foreign key attribute is named after the far role and the attribute there: "parent.id".
struct ColumnName {
  explicit ColumnName(const KYRString& name) : column(name) {
    const int point = name.find(".", 0);
    if (point < 1) return;  // a point at the front belongs to the name
    role = name.left(static_cast<unsigned int>(point));
    column = name.mid(static_cast<unsigned int>(point) + 1);
  }
  KYRString role;
  KYRString column;
};

// The primary key of `target` when it holds the attribute of that name, else null.
KYRCandidateKey* primaryKeyWith(const KYRClass* target, const KYRString& column) {
  if (target == nullptr || target->primaryKey == nullptr) return nullptr;
  const KYRAttribute* const attribute = target->getAttribute(column);
  return attribute != nullptr && target->primaryKey->attributes.contains(attribute) ? target->primaryKey
                                                                                    : nullptr;
}

// A foreign key of `keyClass` over that attribute, tied to the role near the class.
template <class Role>
void makeForeignKey(const KYRString& keyName, KYRAttribute* attribute, KYRClass* keyClass, Role* role,
                    KYRCandidateKey* primaryKey) {
  auto key = std::make_unique<KYRForeignKey>();
  if (!keyName.isEmpty()) key->setName(keyName);
  key->addAttribute(attribute);
  role->addForeignKey(key.get());
  primaryKey->addForeignKey(key.get());
  key->addAssociatedClass(keyClass);
  key.release();  // ownership: the class
}

bool isPrimaryKey(const KYRKey* key) {
  const auto* const candidate = dynamic_cast<const KYRCandidateKey*>(key);
  return candidate != nullptr && candidate->primaryKeyClass != nullptr;
}

bool isInPrimaryKey(const KYRAttribute& attribute) {
  for (const KYRKey* key : attribute.keys) {
    if (isPrimaryKey(key)) return true;
  }
  return false;
}

}  // namespace

// All primary keys are complete before the first foreign key looks for one.
void KYROmgUml2XmiImportBridge::convertKeys() {
  if (domModel == nullptr || !umlModel->exporter.equals("MagicDraw UML", false)) return;
  convertKeysOf("Entity_Relationship:PrimaryKey", &KYROmgUml2XmiImportBridge::addPrimaryKeyAttribute);
  convertKeysOf("Entity_Relationship:ForeignKey", &KYROmgUml2XmiImportBridge::addForeignKeyAttribute);
}

void KYROmgUml2XmiImportBridge::convertKeysOf(const KYRString& tag, KeyOperation add) {
  const int count = domRoot->getElementCount(tag);
  for (int i = 0; i < count; ++i) {
    const KYRDOMElement* const mark = domRoot->getElement(tag, i);
    const KYRString& id = mark->getAttribute("base_Property");
    KYRObject* const object = id.isEmpty() ? nullptr : objects.find(id);
    if (object == nullptr || object->getElementType() != KYRElementType::attribute) continue;
    const KYRDOMElement* const name = mark->getFirstElement("id");
    (this->*add)(name == nullptr ? KYRString::getEmptyString() : name->getValue(),
                 dynamic_cast<KYRAttribute*>(object));
  }
}

// The first mark of a class names its key.
void KYROmgUml2XmiImportBridge::addPrimaryKeyAttribute(const KYRString& keyName, KYRAttribute* attribute) {
  KYRClass* const keyClass = attribute->owner;
  if (keyClass == nullptr) return;
  if (keyClass->primaryKey == nullptr) {
    auto made = std::make_unique<KYRCandidateKey>();
    made->setName(keyName);
    made->isUnique = true;
    keyClass->addKey(made.get());
    KYRCandidateKey* const key = made.release();  // ownership: the class
    keyClass->addPrimaryCandidateKey(key);
  }
  keyClass->primaryKey->addAttribute(attribute);
}

void KYROmgUml2XmiImportBridge::addForeignKeyAttribute(const KYRString& keyName, KYRAttribute* attribute) {
  if (attribute->owner == nullptr) return;
  const ColumnName name(attribute->getName());
  if (!name.role.isEmpty() && !name.column.isEmpty() &&
      addKeyOverAssociation(keyName, attribute, name.role, name.column)) {
    return;
  }
  addKeysOverGeneralizations(keyName, attribute, name.column);
}

// The first role that leads to such a key counts.
bool KYROmgUml2XmiImportBridge::addKeyOverAssociation(const KYRString& keyName, KYRAttribute* attribute,
                                                      const KYRString& role, const KYRString& column) {
  KYRClass* const keyClass = attribute->owner;
  for (KYRAssociationRole* near : rolesTowards(keyClass, role)) {
    countSteps(1);
    KYRCandidateKey* const primaryKey = primaryKeyWith(findReverseRole(near)->associatedClass, column);
    if (primaryKey == nullptr) continue;
    KYRAttribute* keyAttribute = keyClass->getAttribute(column);
    if (keyAttribute == nullptr) {
      keyAttribute = attribute;
      keyAttribute->setName(column);
    } else {
      // It only stood for a column that the class has itself. It stays until all phases are done.
      droppedAttributes.add(attribute, true, nullptr);
    }
    makeForeignKey(keyName, keyAttribute, keyClass, near, primaryKey);
    return true;
  }
  return false;
}

// Every superclass that leads to such a key counts, so one attribute can be in several keys.
void KYROmgUml2XmiImportBridge::addKeysOverGeneralizations(const KYRString& keyName, KYRAttribute* attribute,
                                                           const KYRString& column) {
  KYRClass* const keyClass = attribute->owner;
  for (KYRGeneralizationRole* subRole : keyClass->generalizationRoles) {
    countSteps(1);
    const KYRGeneralization* const generalization = subRole->generalizationAsSubtype;
    if (generalization == nullptr) continue;
    for (const KYRGeneralizationRole* superRole : generalization->supertypeRoles) {
      countSteps(1);
      KYRCandidateKey* const primaryKey = primaryKeyWith(superRole->associatedClass, column);
      if (primaryKey != nullptr) makeForeignKey(keyName, attribute, keyClass, subRole, primaryKey);
    }
  }
}

// The roles of the class whose far role has that name, in their order. Of several that lead to one
// class the first stands for all, since it decides as they would. A class is indexed when it is first
// asked about, so that many keys of a class with many roles cost no more than both together.
const std::vector<KYRAssociationRole*>& KYROmgUml2XmiImportBridge::rolesTowards(const KYRClass* keyClass,
                                                                                const KYRString& farRole) {
  const auto [known, isNew] = rolesByFarName_.try_emplace(keyClass);
  if (isNew) {
    std::unordered_map<std::string, std::unordered_set<const KYRClass*>> targets;
    for (KYRAssociationRole* role : keyClass->associationRoles) {
      const KYRAssociationRole* const far = findReverseRole(role);
      if (far == nullptr) continue;
      const std::string name = foldedText(far->getName().view());
      if (targets[name].insert(far->associatedClass).second) known->second[name].push_back(role);
    }
  }
  return known->second[foldedText(farRole.view())];
}

// Whatever the tool: a file without marks has optional attributes only.
void KYROmgUml2XmiImportBridge::markOptionalAttributes() {
  for (KYRModelObject* feature : typedFeatures) {
    if (feature->getElementType() != KYRElementType::attribute) continue;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-static-cast-downcast): the element type says that it is one
    auto& attribute = static_cast<KYRAttribute&>(*feature);
    if (!isInPrimaryKey(attribute)) attribute.isOptional = true;
  }
}
