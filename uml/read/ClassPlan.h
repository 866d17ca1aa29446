// ClassPlan: what the reader of one class does, computed once from the metamodel's tables.
//
// It holds the data of the class and of all its bases in the order in which the reader takes it:
// the class, then its direct bases in declared order, depth first, each class once.
#pragma once

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

 private:
  ClassPlan() = default;
  static std::vector<ClassPlan> makeAll();
  void addLineage(int ownKind);
  void addScalars();
  void addReferences();
  void addNestedRows();
};
