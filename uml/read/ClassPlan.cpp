// From the rows of the metamodel to the plan of each reader.
#include "uml/read/ClassPlan.h"

#include <algorithm>

#include "uml/UMLMetamodel.h"
#include "xmi/ReaderNames.h"

namespace {

// A class's rows among the rows of all classes, for one end of a link row.
template <class Visit>
void forEachEnd(Visit visit) {
  int linkKind = 0;
  for (const UMLMetamodel::LinkRow& row : UMLMetamodel::linkRows) {
    if (row.first.role != nullptr) visit(row.first, linkKind);
    if (row.second.role != nullptr) visit(row.second, linkKind);
    ++linkKind;
  }
}

bool derivesFrom(int kind, int other) { return kind != other && UMLLineage::isKindOf(kind, other); }

}  // namespace

const ClassPlan& ClassPlan::of(int kind) {
  static const std::vector<ClassPlan> plans = makeAll();
  return plans[static_cast<unsigned int>(kind)];
}

std::vector<ClassPlan> ClassPlan::makeAll() {
  std::vector<ClassPlan> plans;
  plans.reserve(UMLLineage::kindCount);
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    ClassPlan plan;
    plan.kind = kind;
    plan.addLineage(kind);
    plan.addScalars();
    plan.addReferences();
    plan.addNestedRows();
    plan.addMeanings();
    plans.push_back(std::move(plan));
  }
  return plans;
}

// NOLINTNEXTLINE(misc-no-recursion): over the classes of the metamodel, a dozen levels deep
void ClassPlan::addLineage(int ownKind) {
  if (std::find(lineage.begin(), lineage.end(), ownKind) != lineage.end()) return;
  lineage.push_back(ownKind);
  const UMLMetamodel::ClassRow& row = UMLMetamodel::classRows[static_cast<unsigned int>(ownKind)];
  for (unsigned int i = 0; i < static_cast<unsigned int>(row.baseCount); ++i) addLineage(row.bases[i]);
}

void ClassPlan::addScalars() {
  for (const int owner : lineage) {
    for (const UMLMetamodel::ScalarRow& row : UMLMetamodel::scalarRows) {
      if (row.owner != owner) continue;
      const int attribute = ReaderNames::get().find(row.name);
      const auto twin = std::find_if(scalars.begin(), scalars.end(),
                                     [attribute](const Scalar& s) { return s.attribute == attribute; });
      if (twin == scalars.end()) {
        scalars.push_back({attribute, &row});
      } else if (derivesFrom(owner, twin->row->owner)) {
        twin->row = &row;
      }
    }
  }
}

void ClassPlan::addReferences() {
  for (const int owner : lineage) {
    forEachEnd([this, owner](const UMLMetamodel::LinkEnd& end, int linkKind) {
      if (end.owner == owner) references.push_back({ReaderNames::get().find(end.role), linkKind, none});
    });
  }
}

void ClassPlan::addNestedRows() {
  struct Own {
    int owner;
    int linkKind;
  };
  std::vector<Own> taken;
  for (const int target : lineage) {
    forEachEnd([this, target, &taken](const UMLMetamodel::LinkEnd& end, int linkKind) {
      if (end.target != target || !end.nestedRow) return;
      const bool replaced = std::any_of(taken.begin(), taken.end(), [&](const Own& own) {
        return own.linkKind == linkKind && derivesFrom(own.owner, target);
      });
      if (replaced) return;
      taken.push_back({target, linkKind});
      nestedRows.push_back({ReaderNames::get().find(end.role), end.owner, linkKind});
    });
  }
}

// From the last reference to the first, so that each name's chain begins with its first one.
void ClassPlan::addMeanings() {
  meanings.resize(static_cast<std::size_t>(ReaderNames::get().getCount()));
  const auto meaningOf = [this](int name) -> Meaning& { return meanings[static_cast<std::size_t>(name)]; };
  for (std::size_t at = 0; at < scalars.size(); ++at) {
    meaningOf(scalars[at].attribute).scalar = static_cast<std::int16_t>(at);
  }
  for (std::size_t at = references.size(); at > 0; --at) {
    Reference& reference = references[at - 1];
    Meaning& meaning = meaningOf(reference.attribute);
    reference.nextOfName = meaning.firstReference;
    meaning.firstReference = static_cast<std::int16_t>(at - 1);
  }
}
