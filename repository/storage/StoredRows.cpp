// The table of what is saved, class by class.
#include "repository/storage/StoredRows.h"

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
#include "repository/model/KYRLinks.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRRealization.h"
#include "repository/model/KYRRelationshipProjection.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTypeValue.h"

namespace {

using namespace stored;
using Type = KYRElementType;

// References are tied by these. What a model can be saved as it must also be loaded from, so they
// check less than the `add` operations do; a reference that would take the place of one that the file
// has given before is refused.

template <auto add>
constexpr auto by = [](auto& object, auto& target) {
  (object.*add)(&target);
  return true;
};

// The target is the one that adds.
template <auto add>
constexpr auto from = [](auto& object, auto& target) {
  (target.*add)(&object);
  return true;
};

bool putInDataPackage(KYRNamespaceElement& element, KYRDataPackage& package) {
  KYRLinks::tie(element, element.dataPackage, &package, &KYRDataPackage::dataElements, true);
  return true;
}

bool makePrimary(KYRClass& keyClass, KYRCandidateKey& key) {
  if (key.associatedClass != &keyClass) return false;
  keyClass.addPrimaryCandidateKey(&key);
  return true;
}

bool makeAssociationClass(KYRClass& associationClass, KYRAssociation& association) {
  if (association.associationClass != nullptr) return false;
  associationClass.addAssociation(&association);
  return true;
}

bool restOn(KYRDerivedType& type, KYRConcreteType& base) {
  KYRLinks::tie(type, type.baseConcreteType, &base, &KYRConcreteType::derivedTypes);
  return true;
}

bool standFor(KYRClassType& type, KYRClass& typeClass) {
  if (typeClass.classType != nullptr) return false;
  type.addAssociatedClass(&typeClass);
  return true;
}

constexpr StoredField nameRow() {
  StoredField row{"name", StoredKind::text};
  row.getText = [](const KYRObject& object) { return object.getName().view(); };
  row.setText = [](KYRObject& object, std::string_view value) {
    object.setName(KYRString(value));
    return true;
  };
  return row;
}

// The class of objects that have a property, by name: numbers mean nothing outside a program.
constexpr StoredField propertyClassRow() {
  StoredField row{"elementType", StoredKind::text};
  row.getText = [](const KYRObject& object) {
    return std::string_view(Type::getClassName(as<KYRPropertyType>(object).elementType));
  };
  row.setText = [](KYRObject& object, std::string_view value) {
    const int number = Type::findClass(value);
    if (number != 0) as<KYRPropertyType>(object).elementType = number;
    return number != 0;
  };
  return row;
}

// A value that a type cannot hold a second time can still have been given that name afterwards.
constexpr StoredField typeValuesRow() {
  StoredField row =
      children<&KYRDerivedType::typeValues, &KYRDerivedType::addTypeValue>("typeValues", Type::typeValue);
  row.add = [](KYRObject& object, KYRObject& value) {
    return KYRLinks::own(as<KYRDerivedType>(object).typeValues, &object, &as<KYRTypeValue>(value));
  };
  return row;
}

constexpr StoredField dataPackagesRow() {
  StoredField row = children<&KYRStoreModel::dataPackages, &KYRStoreModel::addDataPackage>("dataPackages",
                                                                                           Type::dataPackage);
  row.add = [](KYRObject& object, KYRObject& package) {
    return KYRLinks::own(as<KYRStoreModel>(object).dataPackages, &object, &as<KYRDataPackage>(package));
  };
  return row;
}

constexpr StoredField objectRows[] = {
    nameRow(),
    text<&KYRObject::sourceId>("sourceId"),
    text<&KYRObject::description>("description"),
};
constexpr StoredField elementRows[] = {
    children<&KYRElement::notes, &KYRElement::addNote>("notes", Type::note),
};
constexpr StoredField noteRows[] = {text<&KYRNote::noteText>("noteText")};
constexpr StoredField propertyTypeRows[] = {
    propertyClassRow(),
    enumeration<&KYRPropertyType::designLevel>("designLevel"),
    text<&KYRPropertyType::usage>("usage"),
    text<&KYRPropertyType::initialValue>("initialValue"),
    text<&KYRPropertyType::dataType>("dataType"),
};
constexpr StoredField modelRows[] = {
    children<&KYRStoreModel::propertyTypes, &KYRStoreModel::addPropertyType>("propertyTypes",
                                                                             Type::propertyType),
    children<&KYRStoreModel::types, &KYRStoreModel::addType>("types", Type::type),
    children<&KYRStoreModel::designPackages, &KYRStoreModel::addDesignPackage>("designPackages",
                                                                               Type::designPackage),
    dataPackagesRow(),
};
constexpr StoredField modelObjectRows[] = {text<&KYRModelObject::physicalName>("physicalName")};
constexpr StoredField namespaceElementRows[] = {
    reference<&KYRNamespaceElement::dataPackage, putInDataPackage>("dataPackage", Type::dataPackage),
};
constexpr StoredField namespaceRows[] = {
    children<&KYRNamespace::elements, &KYRNamespace::addNamespaceElement>("elements", Type::namespaceElement),
};
constexpr StoredField designPackageRows[] = {
    flag<&KYRDesignPackage::isModelPackage>("isModelPackage"),
    children<&KYRDesignPackage::diagrams, &KYRDesignPackage::addDiagram>("diagrams", Type::diagram),
};
constexpr StoredField classifierRows[] = {
    children<&KYRClassifier::attributes, &KYRClassifier::addAttribute>("attributes", Type::attribute),
};
constexpr StoredField classRows[] = {
    flag<&KYRClass::isAbstract>("isAbstract"),
    flag<&KYRClass::isPhysicalClass>("isPhysicalClass"),
    enumeration<&KYRClass::classCategory>("classCategory"),
    enumeration<&KYRClass::visibility>("visibility"),
    reference<&KYRClass::primaryKey, makePrimary>("primaryKey", Type::candidateKey),
    reference<&KYRClass::association, makeAssociationClass>("association", Type::association),
    children<&KYRClass::operations, &KYRClass::addOperation>("operations", Type::operation),
    children<&KYRClass::keys, &KYRClass::addKey>("keys", Type::key),
};
constexpr StoredField associationRows[] = {
    flag<&KYRAssociation::isComposite>("isComposite"),
    children<&KYRAssociation::roles, &KYRAssociation::addAssociationRole>("roles", Type::associationRole),
};
constexpr StoredField associationRoleRows[] = {
    enumeration<&KYRAssociationRole::visibility>("visibility"),
    flag<&KYRAssociationRole::isOrdered>("isOrdered"),
    flag<&KYRAssociationRole::isAggregate>("isAggregate"),
    flag<&KYRAssociationRole::isSource>("isSource"),
    text<&KYRAssociationRole::multiplicity>("multiplicity"),
    reference<&KYRAssociationRole::associatedClass, by<&KYRAssociationRole::addAssociatedClass>>(
        "associatedClass", Type::class_),
};
constexpr StoredField generalizationRows[] = {
    children<&KYRGeneralization::supertypeRoles, &KYRGeneralization::addSupertypeRole>(
        "supertypeRoles", Type::generalizationRole),
    children<&KYRGeneralization::subtypeRoles, &KYRGeneralization::addSubtypeRole>("subtypeRoles",
                                                                                   Type::generalizationRole),
};
constexpr StoredField generalizationRoleRows[] = {
    reference<&KYRGeneralizationRole::associatedClass, by<&KYRGeneralizationRole::addAssociatedClass>>(
        "associatedClass", Type::class_),
};
constexpr StoredField dependencyRows[] = {
    reference<&KYRDependency::clientClass, by<&KYRDependency::addClientClass>>("clientClass", Type::class_),
    reference<&KYRDependency::supplierClass, by<&KYRDependency::addSupplierClass>>("supplierClass",
                                                                                   Type::class_),
};
constexpr StoredField realizationRows[] = {
    reference<&KYRRealization::realizationClass, by<&KYRRealization::addRealizationClass>>("realizationClass",
                                                                                           Type::class_),
    reference<&KYRRealization::specificationClass, by<&KYRRealization::addSpecificationClass>>(
        "specificationClass", Type::class_),
};
constexpr StoredField featureRows[] = {
    reference<&KYRFeature::type, by<&KYRFeature::addType>>("type", Type::type),
};
constexpr StoredField attributeRows[] = {
    number<&KYRAttribute::position>("position", 0, KYRPosition::highest),
    enumeration<&KYRAttribute::visibility>("visibility"),
    flag<&KYRAttribute::isOptional>("isOptional"),
    flag<&KYRAttribute::isDerived>("isDerived"),
    flag<&KYRAttribute::isStatic>("isStatic"),
    text<&KYRAttribute::initialValue>("initialValue"),
};
constexpr StoredField operationRows[] = {
    number<&KYROperation::position>("position", 0, KYRPosition::highest),
    enumeration<&KYROperation::visibility>("visibility"),
    flag<&KYROperation::isStatic>("isStatic"),
    reference<&KYROperation::returnType, by<&KYROperation::addReturnType>>("returnType", Type::type),
    children<&KYROperation::arguments, &KYROperation::addArgument>("arguments", Type::argument),
};
constexpr StoredField argumentRows[] = {
    number<&KYRArgument::position>("position", 0, KYRPosition::highest),
    enumeration<&KYRArgument::direction>("direction"),
    reference<&KYRArgument::type, by<&KYRArgument::addType>>("type", Type::type),
};
constexpr StoredField keyRows[] = {
    references<&KYRKey::attributes, &KYRKey::addAttribute>("attributes", Type::attribute),
};
constexpr StoredField candidateKeyRows[] = {flag<&KYRCandidateKey::isUnique>("isUnique")};
constexpr StoredField foreignKeyRows[] = {
    reference<&KYRForeignKey::candidateKey, from<&KYRCandidateKey::addForeignKey>>("candidateKey",
                                                                                   Type::candidateKey),
    reference<&KYRForeignKey::associationRole, from<&KYRAssociationRole::addForeignKey>>(
        "associationRole", Type::associationRole),
    reference<&KYRForeignKey::generalizationRole, from<&KYRGeneralizationRole::addForeignKey>>(
        "generalizationRole", Type::generalizationRole),
};
constexpr StoredField concreteTypeRows[] = {
    text<&KYRConcreteType::dataType>("dataType"),
    text<&KYRConcreteType::nativeDataType>("nativeDataType"),
    integer<&KYRConcreteType::length>("length"),
    integer<&KYRConcreteType::scale>("scale"),
};
constexpr StoredField derivedTypeRows[] = {
    flag<&KYRDerivedType::userDefined>("userDefined"),
    reference<&KYRDerivedType::baseConcreteType, restOn>("baseConcreteType", Type::baseType),
    typeValuesRow(),
};
constexpr StoredField typeValueRows[] = {
    number<&KYRTypeValue::position>("position", 0, KYRPosition::highest),
    text<&KYRTypeValue::value>("value"),
};
constexpr StoredField classTypeRows[] = {
    reference<&KYRClassType::associatedClass, standFor>("associatedClass", Type::class_),
};
constexpr StoredField diagramRows[] = {
    references<&KYRDiagram::modelElements, &KYRDiagram::addModelElement>("modelElements", Type::modelElement),
    children<&KYRDiagram::diagramElements, &KYRDiagram::addPresentationElement>("diagramElements",
                                                                                Type::presentationElement),
};
constexpr StoredField presentationElementRows[] = {
    integer<&KYRPresentationElement::backgroundColor>("backgroundColor"),
    integer<&KYRPresentationElement::displayFlags>("displayFlags"),
    integer<&KYRPresentationElement::fontColor>("fontColor"),
    integer<&KYRPresentationElement::fontSize>("fontSize"),
    text<&KYRPresentationElement::fontName>("fontName"),
    flag<&KYRPresentationElement::isBold>("isBold"),
    flag<&KYRPresentationElement::isItalic>("isItalic"),
    integer<&KYRPresentationElement::lineColor>("lineColor"),
    integer<&KYRPresentationElement::lineWidth>("lineWidth"),
    integer<&KYRPresentationElement::width>("width"),
    integer<&KYRPresentationElement::height>("height"),
    integer<&KYRPresentationElement::x>("x"),
    integer<&KYRPresentationElement::y>("y"),
    reference<&KYRPresentationElement::subject, by<&KYRPresentationElement::addSubjectModelObject>>(
        "subject", Type::modelObject),
};
constexpr StoredField projectionRows[] = {flag<&KYRProjection::autoSize>("autoSize")};
constexpr StoredField relationshipProjectionRows[] = {
    text<&KYRRelationshipProjection::linePoints>("linePoints"),
};

template <std::size_t count>
constexpr StoredRows declare(int elementType, const StoredField (&rows)[count]) {
  return {elementType, rows, count};
}

constexpr StoredRows declared[] = {
    declare(Type::object, objectRows),
    declare(Type::element, elementRows),
    declare(Type::note, noteRows),
    declare(Type::propertyType, propertyTypeRows),
    declare(Type::model, modelRows),
    declare(Type::modelObject, modelObjectRows),
    declare(Type::namespaceElement, namespaceElementRows),
    declare(Type::namespace_, namespaceRows),
    declare(Type::designPackage, designPackageRows),
    declare(Type::classifier, classifierRows),
    declare(Type::class_, classRows),
    declare(Type::association, associationRows),
    declare(Type::associationRole, associationRoleRows),
    declare(Type::generalization, generalizationRows),
    declare(Type::generalizationRole, generalizationRoleRows),
    declare(Type::dependency, dependencyRows),
    declare(Type::realization, realizationRows),
    declare(Type::feature, featureRows),
    declare(Type::attribute, attributeRows),
    declare(Type::operation, operationRows),
    declare(Type::argument, argumentRows),
    declare(Type::key, keyRows),
    declare(Type::candidateKey, candidateKeyRows),
    declare(Type::foreignKey, foreignKeyRows),
    declare(Type::baseType, concreteTypeRows),
    declare(Type::derivedType, derivedTypeRows),
    declare(Type::typeValue, typeValueRows),
    declare(Type::classType, classTypeRows),
    declare(Type::diagram, diagramRows),
    declare(Type::presentationElement, presentationElementRows),
    declare(Type::projection, projectionRows),
    declare(Type::relationshipProjection, relationshipProjectionRows),
};

}  // namespace

const StoredRows* findStoredRows(int elementType) {
  for (const StoredRows& entry : declared) {
    if (entry.elementType == elementType) return &entry;
  }
  return nullptr;
}
