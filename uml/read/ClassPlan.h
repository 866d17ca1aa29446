// ClassPlan: what the reader of one class does, computed once from the metamodel's tables.
//
// It holds the data of the class and of all its bases in the order in which the reader takes it:
// the class, then its direct bases in declared order, depth first, each class once.
#pragma once

#include <cstdint>
#include <vector>

namespace UMLMetamodel {
struct ScalarRow;
}

class ClassPlan {
 public:
  /// An attribute copied into a field. Of a name that stands twice in the lineage only the field of
  /// the most derived class is here.
  struct Scalar {
    int attribute;  // number in ReaderNames
    const UMLMetamodel::ScalarRow* row;
  };
  /// An attribute that holds one id. Names that stand twice are both here.
  struct Reference {
    int attribute;
    int linkKind;
    int nextOfName = none;  // position of the next one of the same name
  };
  static constexpr int none = -1;
  /// What an attribute name means to the class: positions in `scalars` and `references`, or `none`.
  struct Meaning {
    std::int16_t scalar = none;
    std::int16_t firstReference = none;
  };
  /// Ties a new object to the parent under whose tag it stands. A class's own row of a link kind
  /// replaces an inherited one of the same kind.
  struct NestedRow {
    int tag;  // number in ReaderNames
    int parentKind;
    int linkKind;
  };

  static const ClassPlan& of(int kind);

  int kind = 0;
  std::vector<int> lineage;  // kinds of the class and its bases, in reader order
  std::vector<Scalar> scalars;
  std::vector<Reference> references;
  std::vector<NestedRow> nestedRows;
  std::vector<Meaning> meanings;  // by number in ReaderNames

 private:
  ClassPlan() = default;
  static std::vector<ClassPlan> makeAll();
  void addLineage(int ownKind);
  void addScalars();
  void addReferences();
  void addNestedRows();
  void addMeanings();
};
