// Two classes of a shop, related in every way that the repository knows.
#include "tests/repository/FullModel.h"

#include <type_traits>
#include <vector>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRArgument.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRClassType.h"
#include "repository/model/KYRDatabaseSchema.h"
#include "repository/model/KYRDependency.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRForeignKey.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRRealization.h"
#include "repository/model/KYRRelationshipProjection.h"
#include "repository/model/KYRTraversalOperation.h"
#include "repository/model/KYRTypeValue.h"

namespace {

class Builder {
 public:
  std::unique_ptr<KYRStoreModel> build() {
    fillHead();
    fillTypes();
    fillPackages();
    fillClasses();
    fillAssociation();
    fillOtherRelations();
    fillKeys();
    fillDiagram();
    decorate();
    return std::move(model_);
  }

 private:
  // The texts that every object has, told apart by a number.
  template <class T>
  T* make(const char* name) {
    T* object = new T();
    const KYRString number(++count_);
    object->setName(name);
    object->sourceId = KYRString("id_") + number;
    object->description = KYRString("Description ") + number;
    if constexpr (std::is_base_of_v<KYRModelObject, T>) object->setPhysicalName(KYRString("PHYS_") + number);
    return object;
  }

  void fillHead() {
    model_->setName("Shop");
    model_->sourceId = "model_id";
    model_->description = "A model";
    model_->designLevel = KYRDesignLevelType::logical;
    model_->storeType = KYRStoreType::design;
    model_->modificationTime = "2026-01-01T00:00:00Z";
    model_->dataStore = "ORACLE";
    model_->dataStoreVersion = "12.0.0";
    for (int i = 1; i <= 2; ++i) {
      auto* origin = new KYRMetadataOrigin();
      model_->addMetadataOrigin(origin);
      origin->fileEncoding = "UTF-8";
      origin->formatName = "OMG UML2 XMI";
      origin->formatVersion = "UML 2.1";
      origin->originCode = 346;
      origin->filePath = KYRString("shop") + KYRString(i);
      origin->toolName = "Tool";
      origin->toolVersion = "7";
      origin->toolDetail = "Detail";
      origin->bridgeName = "Bridge";
      origin->originId = "origin";
      origin->buildVersion = "10.0.1";
    }
  }

  void fillTypes() {
    base_ = make<KYRConcreteType>("VARCHAR");
    model_->addType(base_);
    base_->dataType = "SQL_VARCHAR";
    base_->nativeDataType = "varchar";
    base_->length = 255;
    base_->scale = 1;
    derived_ = make<KYRDerivedType>("colour");
    model_->addType(derived_);
    derived_->dataType = "SQL_VARCHAR";
    derived_->nativeDataType = "Colour";
    derived_->length = 30;
    derived_->scale = -2;
    derived_->userDefined = true;
    derived_->addDerivedFromConcreteType(base_);
    for (const char* name : {"red", "green"}) {
      auto* value = make<KYRTypeValue>(name);
      value->position = derived_->getTypeValueCount();
      value->setValue(KYRString("value of ") + name);
      derived_->addTypeValue(value);
    }
    classType_ = make<KYRClassType>("Order");
    model_->addType(classType_);
  }

  void fillPackages() {
    package_ = make<KYRDesignPackage>("Sales");
    package_->isModelPackage = true;
    model_->addDesignPackage(package_);
    inner_ = make<KYRDesignPackage>("Inner");
    package_->addNamespaceElementUniqueName(inner_, '/');
    schema_ = make<KYRDatabaseSchema>("SCHEMA");
    model_->addDataPackage(schema_);
    schema_->addNamespaceElementUniqueName(make<KYRRealization>("in the schema"), '/');
    auto* files = make<KYRDataPackage>("Files");
    model_->addDataPackage(files);
    files->addNamespaceElementUniqueName(make<KYRDependency>("in the files"), '/');
  }

  KYRClass* addClass(const char* name) {
    auto* made = make<KYRClass>(name);
    package_->addNamespaceElementUniqueName(made, '/');
    made->addDataPackage(schema_);
    return made;
  }

  KYRAttribute* addAttribute(KYRClass* owner, const char* name, KYRType* type) {
    auto* attribute = make<KYRAttribute>(name);
    attribute->position = owner->getAttributeCount();
    owner->addFeatureUniqueName(attribute, '/');
    attribute->addType(type);
    return attribute;
  }

  void fillClasses() {
    order_ = addClass("Order");
    order_->isAbstract = true;
    order_->isPhysicalClass = true;
    order_->classCategory = KYRClassCategoryType::interface_;
    order_->visibility = KYRVisibilityType::private_;
    classType_->addAssociatedClass(order_);
    item_ = addClass("Item");
    orderId_ = addAttribute(order_, "id", derived_);
    itemOrder_ = addAttribute(item_, "order", derived_);
    itemOrder_->position = 7;
    itemOrder_->visibility = KYRVisibilityType::protected_;
    itemOrder_->isOptional = true;
    itemOrder_->isDerived = true;
    itemOrder_->isStatic = true;
    itemOrder_->initialValue = "\"quoted\"\\\n\t\x01 caf\xC3\xA9";
    auto* operation = make<KYROperation>("add");
    order_->addOperation(operation);
    operation->position = 3;
    operation->visibility = KYRVisibilityType::package;
    operation->isStatic = true;
    operation->addReturnType(classType_);
    auto* argument = make<KYRArgument>("item");
    operation->addArgument(argument);
    argument->position = 1;
    argument->direction = KYRArgumentType::inOut;
    argument->addType(derived_);
  }

  void fillAssociation() {
    association_ = make<KYRAssociation>("holds");
    association_->isComposite = true;
    KYRClass* const ends[] = {order_, item_};
    for (KYRClass* end : ends) {
      auto* role = make<KYRAssociationRole>("end");
      association_->addAssociationRole(role);
      role->addAssociatedClass(end);
      role->visibility = KYRVisibilityType::private_;
      role->isOrdered = true;
      role->isAggregate = true;
      role->multiplicity = buildMultiplicity(0, manyMultiplicity);
    }
    setSourceProperty(association_->roles[0], association_->roles[1]);
    order_->addAssociation(association_);
    package_->addNamespaceElementUniqueName(association_, '/');
  }

  void fillOtherRelations() {
    generalization_ = make<KYRGeneralization>("kinds");
    package_->addNamespaceElementUniqueName(generalization_, '/');
    auto* super = make<KYRGeneralizationRole>("super");
    generalization_->addSupertypeRole(super);
    super->addAssociatedClass(order_);
    auto* sub = make<KYRGeneralizationRole>("sub");
    generalization_->addSubtypeRole(sub);
    sub->addAssociatedClass(item_);
    auto* dependency = make<KYRDependency>("uses");
    package_->addNamespaceElementUniqueName(dependency, '/');
    dependency->addClientClass(item_);
    dependency->addSupplierClass(order_);
    auto* realization = make<KYRRealization>("does");
    inner_->addNamespaceElementUniqueName(realization, '/');
    realization->addRealizationClass(order_);
    realization->addSpecificationClass(item_);
  }

  void fillKeys() {
    auto* primary = make<KYRCandidateKey>("PK");
    primary->isUnique = true;
    order_->addPrimaryCandidateKey(primary);
    primary->addAttribute(orderId_);
    auto* overAssociation = make<KYRForeignKey>("FK1");
    overAssociation->addAttribute(itemOrder_);
    association_->roles[1]->addForeignKey(overAssociation);
    primary->addForeignKey(overAssociation);
    overAssociation->addAssociatedClass(item_);
    auto* overGeneralization = make<KYRForeignKey>("FK2");
    generalization_->subtypeRoles[0]->addForeignKey(overGeneralization);
    item_->addKey(overGeneralization);
  }

  void fillDiagram() {
    auto* diagram = make<KYRClassDiagram>("Overview");
    package_->addDiagramUniqueName(diagram, '/');
    diagram->addModelElement(order_);
    diagram->addModelElement(association_);
    auto* shape = make<KYRProjection>("shape");
    shape->autoSize = true;
    shape->addDiagram(diagram);
    shape->addSubjectModelObject(order_);
    auto* line = make<KYRRelationshipProjection>("line");
    line->linePoints = "1,2;3,4";
    diagram->addPresentationElement(line);
    association_->addPresentationPresentationElement(line);
    KYRPresentationElement* const elements[] = {shape, line};
    for (KYRPresentationElement* element : elements) {
      element->backgroundColor = 0x99CCFF;
      element->displayFlags = 0x190001C;
      element->fontColor = 1;
      element->fontSize = 11;
      element->fontName = "Arial";
      element->isBold = true;
      element->isItalic = true;
      element->lineColor = 2;
      element->lineWidth = 3;
      element->width = 40;
      element->height = 50;
      element->x = -60;
      element->y = 70;
    }
  }

  // A note and property values on every element, and a schema for all that can be in one.
  void decorate() {
    class Elements : public KYRTraversalOperation {
     public:
      void visit(KYRObject& object) override {
        if (auto* element = dynamic_cast<KYRElement*>(&object)) all.push_back(element);
      }
      std::vector<KYRElement*> all;
    } elements;
    model_->depthTraversal(elements);
    for (KYRElement* element : elements.all) {
      auto* note = make<KYRNote>("note");
      note->noteText = "Text of the note";
      element->addNote(note);
      for (const char* name : {"author", "status"}) {
        KYRPropertyType* type = fetchPropertyType(model_.get(), element->getElementType(), name, 1, "USER",
                                                  "none", "SQL_VARCHAR", true);
        type->sourceId = "property";
        type->description = "A property";
        setPropertyValue(type, KYRString("value of ") + name, element);
      }
      auto* inNamespace = dynamic_cast<KYRNamespaceElement*>(element);
      if (inNamespace == nullptr || inNamespace->getDataPackage() != nullptr) continue;
      auto* own = make<KYRDatabaseSchema>((KYRString("SCHEMA") + KYRString(count_)).getCharacters());
      model_->addDataPackage(own);
      inNamespace->addDataPackage(own);
    }
  }

  std::unique_ptr<KYRStoreModel> model_ = std::make_unique<KYRStoreModel>();
  int count_ = 0;
  KYRConcreteType* base_ = nullptr;
  KYRDerivedType* derived_ = nullptr;
  KYRClassType* classType_ = nullptr;
  KYRDesignPackage* package_ = nullptr;
  KYRDesignPackage* inner_ = nullptr;
  KYRDatabaseSchema* schema_ = nullptr;
  KYRClass* order_ = nullptr;
  KYRClass* item_ = nullptr;
  KYRAttribute* orderId_ = nullptr;
  KYRAttribute* itemOrder_ = nullptr;
  KYRAssociation* association_ = nullptr;
  KYRGeneralization* generalization_ = nullptr;
};

}  // namespace

std::unique_ptr<KYRStoreModel> makeFullModel() { return Builder().build(); }
