// The class tree as one table: number, name, base.
#include "repository/model/KYRElementType.h"

#include <array>

#include "repository/model/KYREnumeration.h"

namespace {

struct Row {
  int number;
  const char* name;
  int base;
};

using Type = KYRElementType;

constexpr Row rows[] = {
    {Type::object, "KYRObject", 0},
    {Type::element, "KYRElement", Type::object},
    {Type::note, "KYRNote", Type::object},
    {Type::presentationElement, "KYRPresentationElement", Type::object},
    {Type::projection, "KYRProjection", Type::presentationElement},
    {Type::relationshipProjection, "KYRRelationshipProjection", Type::presentationElement},
    {Type::propertyType, "KYRPropertyType", Type::object},
    {Type::model, "KYRStoreModel", Type::element},
    {Type::modelObject, "KYRModelObject", Type::element},
    {Type::namespaceElement, "KYRNamespaceElement", Type::modelObject},
    {Type::modelElement, "KYRModelElement", Type::namespaceElement},
    {Type::classifier, "KYRClassifier", Type::modelElement},
    {Type::class_, "KYRClass", Type::classifier},
    {Type::relationship, "KYRRelationship", Type::modelElement},
    {Type::association, "KYRAssociation", Type::relationship},
    {Type::dependency, "KYRDependency", Type::relationship},
    {Type::generalization, "KYRGeneralization", Type::relationship},
    {Type::realization, "KYRRealization", Type::relationship},
    {Type::namespace_, "KYRNamespace", Type::namespaceElement},
    {Type::package, "KYRPackage", Type::namespace_},
    {Type::designPackage, "KYRDesignPackage", Type::package},
    {Type::dataPackage, "KYRDataPackage", Type::package},
    {Type::databaseSchema, "KYRDatabaseSchema", Type::dataPackage},
    {Type::operation, "KYROperation", Type::namespaceElement},
    {Type::type, "KYRType", Type::namespaceElement},
    {Type::baseType, "KYRConcreteType", Type::type},
    {Type::derivedType, "KYRDerivedType", Type::baseType},
    {Type::classType, "KYRClassType", Type::type},
    {Type::feature, "KYRFeature", Type::modelObject},
    {Type::structuralFeature, "KYRStructuralFeature", Type::feature},
    {Type::attribute, "KYRAttribute", Type::structuralFeature},
    {Type::argument, "KYRArgument", Type::modelObject},
    {Type::associationRole, "KYRAssociationRole", Type::modelObject},
    {Type::generalizationRole, "KYRGeneralizationRole", Type::modelObject},
    {Type::typeValue, "KYRTypeValue", Type::modelObject},
    {Type::key, "KYRKey", Type::modelObject},
    {Type::candidateKey, "KYRCandidateKey", Type::key},
    {Type::foreignKey, "KYRForeignKey", Type::key},
    {Type::diagram, "KYRDiagram", Type::modelObject},
    {Type::classDiagram, "KYRClassDiagram", Type::diagram},
};

constexpr std::size_t numberCount = 256;

constexpr std::array<const Row*, numberCount> sortByNumber() {
  std::array<const Row*, numberCount> sorted{};
  for (const Row& row : rows) sorted[static_cast<std::size_t>(row.number)] = &row;
  return sorted;
}

constexpr std::array<const Row*, numberCount> byNumber = sortByNumber();

const Row* find(int value) noexcept {
  return value < 0 || value >= static_cast<int>(numberCount) ? nullptr
                                                             : byNumber[static_cast<std::size_t>(value)];
}

}  // namespace

int KYRElementType::isValid(int value) {
  if (find(value) == nullptr) raiseInvalidEnumeration("KYRElementType", value);
  return value;
}

const char* KYRElementType::getClassName(int value) noexcept {
  const Row* row = find(value);
  return row == nullptr ? nullptr : row->name;
}

int KYRElementType::findClass(std::string_view name) noexcept {
  for (const Row& row : rows) {
    if (row.name == name) return row.number;
  }
  return 0;
}

int KYRElementType::getBase(int value) noexcept {
  const Row* row = find(value);
  return row == nullptr ? 0 : row->base;
}
