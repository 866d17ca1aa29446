// The metamodel's tables against the tables written out once more in golden/, and all that is
// derived from them.
#include "uml/UMLMetamodel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

#include "tests/support/MadeElement.h"
#include "tests/uml/GoldenText.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "uml/UMLKindPool.h"
#include "uml/read/ClassPlan.h"
#include "xmi/DispatchRows.h"

namespace {

using namespace UMLMetamodel;

const char* className(int kind) { return classRows[static_cast<std::size_t>(kind)].name; }

// The class of the kind object that a scalar holds is told by what its literals parse to.
std::string typeName(const ScalarRow& row) {
  switch (row.type) {
    case FieldType::boolean:
      return "bool";
    case FieldType::integer:
      return "int";
    case FieldType::text:
      return "string";
    case FieldType::kind:
      break;
  }
  const std::pair<const char*, const char*> literals[] = {
      {"shared", "UMLAggregationKind"},
      {"guarded", "UMLCallConcurrencyKind"},
      {"lost", "UMLMessageKind"},
      {"asynchCall", "UMLMessageSort"},
      {"inout", "UMLParameterDirectionKind"},
      {"private", "UMLVisibilityKind"},
  };
  for (const auto& [literal, name] : literals) {
    UMLKindPool pool;
    const auto object = madeElement(row.owner);
    void* const owner = umlCastTo(object.get(), row.owner);
    row.set(owner, literal, pool);
    if (row.getNumber(owner) == 1) return name;
  }
  return "?";
}

TEST(UMLMetamodel, HasTheCountsOfTheMetamodel) {
  int ends = 0;
  int twoEnded = 0;
  int nested = 0;
  int lists = 0;
  for (const LinkRow& row : linkRows) {
    for (const LinkEnd* end : {&row.first, &row.second}) {
      if (end->role == nullptr) continue;
      ++ends;
      if (end->nestedRow) ++nested;
      if (end->isList) ++lists;
    }
    if (row.first.role != nullptr && row.second.role != nullptr) ++twoEnded;
  }
  EXPECT_EQ(classRows.size(), 117U);
  EXPECT_EQ(linkRows.size(), 169U);
  EXPECT_EQ(scalarRows.size(), 55U);
  EXPECT_EQ(ends, 213);
  EXPECT_EQ(twoEnded, 44);
  EXPECT_EQ(nested, 206);
  EXPECT_EQ(lists, 113);  // each has its adder
  EXPECT_EQ(std::count_if(scalarRows.begin(), scalarRows.end(), [](const ScalarRow& r) { return r.textRow; }),
            15);
  std::size_t lineageEntries = 0;
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind)
    lineageEntries += ClassPlan::of(kind).lineage.size();
  EXPECT_EQ(lineageEntries, 684U);
}

TEST(UMLMetamodel, ClassesHaveTheirNumbersNamesTypesAndBases) {
  std::ostringstream dump;
  for (std::size_t kind = 0; kind < classRows.size(); ++kind) {
    const ClassRow& row = classRows[kind];
    dump << kind << ' ' << row.name << ' ' << row.xmiType << " :";
    for (int i = 0; i < row.baseCount; ++i) dump << ' ' << className(row.bases[static_cast<std::size_t>(i)]);
    dump << '\n';
  }
  EXPECT_EQ(dump.str(), readGolden("classes.txt"));
}

TEST(UMLMetamodel, LinksHaveTheirNumbersNamesClassesAndEffects) {
  const auto effect = [](const LinkEnd& end) {
    if (end.role == nullptr) return std::string("nothing");
    return std::string(end.role) + (end.isList ? " add" : " set");
  };
  std::ostringstream dump;
  int kind = 0;
  for (const LinkRow& row : linkRows) {
    dump << kind++ << ' ' << row.name << ' ' << className(row.first.owner) << ' '
         << className(row.second.owner) << " | " << effect(row.first) << " | " << effect(row.second) << '\n';
  }
  EXPECT_EQ(dump.str(), readGolden("links.txt"));
}

// The reader makes links while it reads, and keeps the order of those of one kind only.
TEST(UMLMetamodel, EveryFieldIsFilledByLinksOfOneKind) {
  std::set<void (*)(void*, void*)> fills;
  std::size_t ends = 0;
  for (const LinkRow& row : linkRows) {
    for (const LinkEnd* end : {&row.first, &row.second}) {
      if (end->fill == nullptr) continue;
      fills.insert(end->fill);
      ++ends;
    }
  }
  EXPECT_EQ(fills.size(), ends);
}

TEST(UMLMetamodel, EveryFieldOfTheClassTreeIsInATable) {
  // golden: "UMLClass.ownedAttribute KYROrderedVector of UMLProperty"
  std::set<std::string> golden;
  std::istringstream in(readGolden("fields.txt"));
  for (std::string line; std::getline(in, line);) golden.insert(line.substr(0, line.find(' ')));
  std::set<std::string> tables;
  const auto enter = [&tables](int owner, const char* name) {
    const std::string field = std::string(className(owner)) + '.' + name;
    EXPECT_TRUE(tables.insert(field).second) << field << " stands twice";
  };
  for (const ScalarRow& row : scalarRows) enter(row.owner, row.name);
  for (const ScalarRow& row : plainFieldRows) enter(row.owner, row.name);
  for (const LinkRow& row : linkRows) {
    if (row.first.role != nullptr) enter(row.first.owner, row.first.role);
    if (row.second.role != nullptr) enter(row.second.owner, row.second.role);
  }
  for (const char* unlisted : {"id", "repositoryObject", "taggedValues"}) enter(UMLElement::kind, unlisted);
  enter(UMLGeneralizationSet::kind, "reservedReference");
  EXPECT_EQ(tables, golden);
}

TEST(UMLMetamodel, ReaderDataOfEachClassIsAsWrittenOut) {
  std::ostringstream dump;
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    dump << className(kind) << '\n';
    std::set<std::string> scalars;
    for (const ScalarRow& row : scalarRows) {
      if (row.owner == kind) scalars.insert('"' + std::string(row.name) + "\" " + typeName(row));
    }
    for (const std::string& scalar : scalars) dump << "  scalar " << scalar << '\n';
    std::ostringstream children;
    std::ostringstream nested;
    int linkKind = 0;
    for (const LinkRow& row : linkRows) {
      for (const LinkEnd* end : {&row.first, &row.second}) {
        if (end->role == nullptr) continue;
        if (end->owner == kind) {
          dump << "  reference \"" << end->role << "\" " << linkKind << '\n';
          children << "  child \"" << end->role << "\" " << linkKind << ' ' << className(end->target) << '\n';
        }
        if (end->target == kind && end->nestedRow) {
          nested << "  nested \"" << end->role << "\" in " << className(end->owner) << " as " << linkKind
                 << '\n';
        }
      }
      ++linkKind;
    }
    dump << children.str() << nested.str();
  }
  EXPECT_EQ(dump.str(), readGolden("readers.txt"));
}

TEST(UMLMetamodel, IsKindOfAgreesWithDynamicCastForAllPairs) {
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    const auto object = madeElement(kind);
    ASSERT_EQ(object->getKind(), kind);
    EXPECT_EQ(object->id.view(), "id");
    EXPECT_EQ(object->elementName.view(), "name");
    for (int other = 0; other < UMLLineage::kindCount; ++other) {
      void* const cast = classRows[static_cast<std::size_t>(other)].cast(object.get());
      ASSERT_EQ(object->isKindOf(other), cast != nullptr) << className(kind) << " as " << className(other);
      // Twice: the first call asks dynamic_cast, the second one what it remembered.
      ASSERT_EQ(umlCastTo(object.get(), other), cast) << className(kind) << " as " << className(other);
      ASSERT_EQ(umlCastTo(object.get(), other), cast) << className(kind) << " as " << className(other);
    }
    EXPECT_FALSE(object->isKindOf(-1));
    EXPECT_FALSE(object->isKindOf(UMLLineage::kindCount));
  }
}

TEST(UMLMetamodel, LineagesListTheClassThenItsBasesDepthFirst) {
  std::vector<std::string> names;
  for (const int kind : ClassPlan::of(UMLAbstraction::kind).lineage) names.emplace_back(className(kind));
  EXPECT_EQ(names, (std::vector<std::string>{"UMLAbstraction", "UMLDependency", "UMLDirectedRelationship",
                                             "UMLRelationship", "UMLElement", "UMLPackageableElement",
                                             "UMLNamedElement"}));
}

TEST(DispatchRows, ContextRowsAreAsWrittenOut) {
  DispatchRows::resetForTests();
  std::ostringstream dump;
  for (const TagHandler& row : DispatchRows::get().context) {
    if (row.tag == nullptr) break;
    dump << row.tag << ' ' << row.kind;
    if (row.field != nullptr) {
      EXPECT_EQ(row.startAction.marker, StartAction::Marker::none);
      EXPECT_EQ(row.endAction.marker, EndAction::Marker::call);
      EXPECT_STREQ(row.field->name, row.tag);
      EXPECT_EQ(row.field->owner, row.kind);
      dump << " text\n";
    } else {
      EXPECT_EQ(row.startAction.marker, StartAction::Marker::call);
      EXPECT_EQ(row.endAction.marker, EndAction::Marker::none);
      dump << " child " << row.linkKind << ' ' << className(row.plan->kind) << '\n';
    }
  }
  EXPECT_EQ(dump.str(), readGolden("context.txt"));
  EXPECT_EQ(DispatchRows::get().context.size(), 228U + 1U);
}

TEST(DispatchRows, TypeRowsReadTheirClassAndPop) {
  const auto& rows = DispatchRows::get().type;
  ASSERT_EQ(rows.size(), 117U + 1U);
  for (std::size_t kind = 0; kind < 117; ++kind) {
    EXPECT_STREQ(rows[kind].tag, classRows[kind].xmiType);
    EXPECT_EQ(rows[kind].plan->kind, static_cast<int>(kind));
    EXPECT_EQ(rows[kind].startAction.marker, StartAction::Marker::call);
    EXPECT_EQ(rows[kind].endAction.marker, EndAction::Marker::pop);
    EXPECT_EQ(rows[kind].kind, 0);
  }
  EXPECT_EQ(rows.back().tag, nullptr);
}

TEST(DispatchRows, GeneralRowsAreAsWrittenOut) {
  std::ostringstream dump;
  for (const TagHandler& row : DispatchRows::get().general) {
    if (row.tag == nullptr) break;
    const char* const start = row.startAction.marker == StartAction::Marker::none   ? "none"
                              : row.startAction.marker == StartAction::Marker::skip ? "skip"
                                                                                    : "call";
    const char* const end = row.endAction.marker == EndAction::Marker::none   ? "none"
                            : row.endAction.marker == EndAction::Marker::skip ? "skip"
                            : row.endAction.marker == EndAction::Marker::pop  ? "pop"
                                                                              : "call";
    EXPECT_EQ(row.kind, 0);
    dump << row.tag << ' ' << start << ' ' << end << '\n';
  }
  EXPECT_EQ(dump.str(), readGolden("general.txt"));
  EXPECT_EQ(DispatchRows::get().general.size(), 72U + 1U);
}

TEST(ClassPlan, AScalarThatStandsTwiceGoesToTheMostDerivedField) {
  const auto ownerOf = [](int kind, const char* name) {
    std::vector<std::string> owners;
    for (const ClassPlan::Scalar& scalar : ClassPlan::of(kind).scalars) {
      if (std::string(scalar.row->name) == name) owners.emplace_back(className(scalar.row->owner));
    }
    return owners;
  };
  using Owners = std::vector<std::string>;
  EXPECT_EQ(ownerOf(UMLClass::kind, "isAbstract"), Owners{"UMLClass"});
  EXPECT_EQ(ownerOf(UMLAssociationClass::kind, "isAbstract"), Owners{"UMLClass"});
  EXPECT_EQ(ownerOf(UMLInteraction::kind, "isAbstract"), Owners{"UMLClass"});
  EXPECT_EQ(ownerOf(UMLInterface::kind, "isAbstract"), Owners{"UMLClassifier"});
  EXPECT_EQ(ownerOf(UMLProperty::kind, "isReadOnly"), Owners{"UMLProperty"});
  EXPECT_EQ(ownerOf(UMLStructuralFeature::kind, "isReadOnly"), Owners{"UMLStructuralFeature"});
  int namedOnly = 0;
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    const Owners owners = ownerOf(kind, "visibility");
    if (UMLLineage::isKindOf(kind, UMLPackageableElement::kind)) {
      EXPECT_EQ(owners, Owners{"UMLPackageableElement"}) << className(kind);
    } else if (UMLLineage::isKindOf(kind, UMLNamedElement::kind)) {
      EXPECT_EQ(owners, Owners{"UMLNamedElement"}) << className(kind);
      ++namedOnly;
    }
  }
  EXPECT_EQ(namedOnly, 49);
}

TEST(ClassPlan, ReferencesThatStandTwiceAreBothNoted) {
  const auto kindsOf = [](int kind, const char* role) {
    std::vector<int> kinds;
    for (const ClassPlan::Reference& reference : ClassPlan::of(kind).references) {
      const LinkRow& row = linkRows[static_cast<std::size_t>(reference.linkKind)];
      for (const LinkEnd* end : {&row.first, &row.second}) {
        if (end->role != nullptr && std::string(end->role) == role &&
            UMLLineage::isKindOf(kind, end->owner)) {
          kinds.push_back(reference.linkKind);
          break;
        }
      }
    }
    return kinds;
  };
  EXPECT_EQ(kindsOf(UMLOperation::kind, "ownedParameter"), (std::vector<int>{58, 8}));
  EXPECT_EQ(kindsOf(UMLOperation::kind, "raisedException"), (std::vector<int>{60, 164}));
  EXPECT_EQ(kindsOf(UMLStateInvariant::kind, "covered"), (std::vector<int>{133, 118}));
  EXPECT_EQ(kindsOf(UMLExecutionOccurrenceSpecification::kind, "event"), (std::vector<int>{145, 142}));
}

TEST(ClassPlan, OwnNestedRowsReplaceInheritedOnesOfTheSameKindInTwoLineagesOnly) {
  // Counted against keeping all rows: only the dependencies lose "client", the interaction "fragment".
  std::set<std::string> losers;
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    std::size_t all = 0;
    for (const LinkRow& row : linkRows) {
      for (const LinkEnd* end : {&row.first, &row.second}) {
        if (end->role != nullptr && end->nestedRow && UMLLineage::isKindOf(kind, end->target)) ++all;
      }
    }
    if (ClassPlan::of(kind).nestedRows.size() != all) {
      EXPECT_EQ(ClassPlan::of(kind).nestedRows.size(), all - 1) << className(kind);
      losers.insert(className(kind));
    }
  }
  EXPECT_EQ(losers, (std::set<std::string>{"UMLDependency", "UMLAbstraction", "UMLUsage", "UMLRealization",
                                           "UMLSubstitution", "UMLInterfaceRealization", "UMLInteraction"}));
}

}  // namespace
