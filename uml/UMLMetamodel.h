// UMLMetamodel: the one description of the metamodel that the readers, the dispatch tables, the
// linker and the inspection of objects stand on.
//
// Three tables say everything: a row for each class (its xmi:type and bases), a row for each scalar
// field, and a row for each association of the metamodel with its two ends. What follows from them
// is never written down a second time:
// - an end that has a field is a reference attribute of the field's class, and a child tag of the
//   same name whose untyped element is made as the class at the other end;
// - seen from that other class, the same end ties an object to the parent under whose tag it stands
//   (a "nested-under" row), but for the seven ends marked `withoutNestedRow`;
// - a scalar marked `textRow` can also be written as the text of a child element of its name.
// Fields are reached through member pointers: `void* owner` is a pointer to the declaring class.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "foundation/KYRString.h"
#include "uml/UMLForward.h"
#include "uml/UMLLineage.h"

class UMLKindPool;

namespace UMLMetamodel {

constexpr int linkKindCount = 169;
constexpr int scalarCount = 55;
constexpr int maxBases = 3;

/// A metaclass. Its kind is its row number.
struct ClassRow {
  const char* name;     // "UMLProperty"
  const char* xmiType;  // "uml:Property"
  int baseCount;
  std::array<int, maxBases> bases;  // kinds of the direct bases, in declared order
  std::size_t size;                 // of an object in bytes
  /// Makes an object at a place of that size, where a pointer may stand.
  UMLElement* (*makeAt)(void* place, KYRString id, KYRString name);
  void* (*cast)(UMLElement* element);  // dynamic_cast to this class
};
extern const std::array<ClassRow, UMLLineage::kindCount> classRows;

enum class FieldType { boolean, integer, text, kind };

/// A scalar field, and the attribute that fills it.
struct ScalarRow {
  const char* name;
  int owner;  // kind of the declaring class
  FieldType type;
  bool textRow;
  /// Sets the field from an attribute's text. A borrowed text stays borrowed.
  void (*set)(void* owner, const KYRString& value, UMLKindPool& kinds);
  /// The field of a boolean or integer; of a kind its number, or -1 when it is null.
  int (*getNumber)(const void* owner);
  /// The field of a text; null for the other types.
  const KYRString* (*getText)(const void* owner);
};
extern const std::array<ScalarRow, scalarCount> scalarRows;

/// Fields that no attribute fills: the reader's own and those of the tool extensions.
constexpr int plainFieldCount = 8;
extern const std::array<ScalarRow, plainFieldCount> plainFieldRows;

/// One end of an association: a reference field of `owner` that holds objects of `target`.
struct LinkEnd {
  const char* role;  // name of the field; null when the class declares none
  int owner;
  int target;
  bool isList;
  bool nestedRow;
  /// Adds to the list, or sets the pointer so that the last link wins.
  void (*fill)(void* owner, void* target);
  unsigned int (*count)(const void* owner);
  UMLElement* (*at)(const void* owner, unsigned int index);

  constexpr LinkEnd withoutNestedRow() const {
    LinkEnd end = *this;
    end.nestedRow = false;
    return end;
  }
};

/// An association of the metamodel. Its relationship kind is its row number.
struct LinkRow {
  const char* name;  // "UML_A_OWNEDELEMENT_OWNER"
  LinkEnd first;
  LinkEnd second;
};
extern const std::array<LinkRow, linkKindCount> linkRows;

/// Kinds with a meaning of their own outside the table.
constexpr int ownedElementLink = 0;

}  // namespace UMLMetamodel
