// The classes of which objects are saved, each with the rows of its whole lineage.
#include "repository/storage/StoredClasses.h"

#include <algorithm>
#include <array>
#include <unordered_map>

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
#include "repository/model/KYRNote.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRRealization.h"
#include "repository/model/KYRRelationshipProjection.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTypeValue.h"
#include "repository/storage/StoredRows.h"

namespace {

using Type = KYRElementType;

struct Made {
  int elementType;
  KYRObject* (*make)();
};

template <class Class>
KYRObject* makeNew() {
  return new Class();
}

const Made made[] = {
    {Type::model, nullptr},
    {Type::note, makeNew<KYRNote>},
    {Type::propertyType, [] { return static_cast<KYRObject*>(new KYRPropertyType(Type::object)); }},
    {Type::baseType, makeNew<KYRConcreteType>},
    {Type::derivedType, makeNew<KYRDerivedType>},
    {Type::typeValue, makeNew<KYRTypeValue>},
    {Type::classType, makeNew<KYRClassType>},
    {Type::designPackage, makeNew<KYRDesignPackage>},
    {Type::dataPackage, makeNew<KYRDataPackage>},
    {Type::databaseSchema, makeNew<KYRDatabaseSchema>},
    {Type::class_, makeNew<KYRClass>},
    {Type::attribute, makeNew<KYRAttribute>},
    {Type::operation, makeNew<KYROperation>},
    {Type::argument, makeNew<KYRArgument>},
    {Type::candidateKey, makeNew<KYRCandidateKey>},
    {Type::foreignKey, makeNew<KYRForeignKey>},
    {Type::association, makeNew<KYRAssociation>},
    {Type::associationRole, makeNew<KYRAssociationRole>},
    {Type::generalization, makeNew<KYRGeneralization>},
    {Type::generalizationRole, makeNew<KYRGeneralizationRole>},
    {Type::dependency, makeNew<KYRDependency>},
    {Type::realization, makeNew<KYRRealization>},
    {Type::classDiagram, makeNew<KYRClassDiagram>},
    {Type::projection, makeNew<KYRProjection>},
    {Type::relationshipProjection, makeNew<KYRRelationshipProjection>},
};

// The rows of a class behind those of its bases.
void appendRows(StoredClass& stored, int elementType) {
  std::vector<int> lineage;
  for (int type = elementType; type != 0; type = Type::getBase(type)) lineage.push_back(type);
  stored.isElement = std::find(lineage.begin(), lineage.end(), Type::element) != lineage.end();
  for (std::size_t at = lineage.size(); at > 0; --at) {
    const StoredRows* const declared = findStoredRows(lineage[at - 1]);
    for (std::size_t i = 0; declared != nullptr && i < declared->count; ++i) {
      const bool isList = declared->rows[i].kind == StoredKind::children;
      (isList ? stored.lists : stored.values).push_back(&declared->rows[i]);
      if (declared->rows[i].kind == StoredKind::reference) stored.references.push_back(&declared->rows[i]);
    }
  }
}

struct Tables {
  std::vector<StoredClass> classes;
  std::array<std::size_t, 256> byNumber{};
  std::unordered_map<std::string_view, std::size_t> byName;

  Tables() {
    for (const Made& entry : made) {
      StoredClass stored{
          entry.elementType, Type::getClassName(entry.elementType), entry.make, false, {}, {}, {}};
      appendRows(stored, entry.elementType);
      byNumber[static_cast<std::size_t>(entry.elementType)] = classes.size();
      byName.emplace(stored.name, classes.size());
      classes.push_back(std::move(stored));
    }
  }
};

const Tables& tables() {
  static const Tables built;
  return built;
}

}  // namespace

const StoredClass& StoredClasses::get(int elementType) {
  return tables().classes[tables().byNumber[static_cast<std::size_t>(elementType)]];
}

const StoredClass* StoredClasses::find(std::string_view name) {
  const auto found = tables().byName.find(name);
  return found == tables().byName.end() ? nullptr : &tables().classes[found->second];
}

const std::vector<StoredClass>& StoredClasses::getAll() { return tables().classes; }
