// The six enumerations of UML that attributes bear, as small objects made from the attribute's text.
//
// 0 is the first literal of the UML enumeration and also stands for every text that is no literal:
// nothing is ever rejected. A null pointer means that the attribute was missing or empty.
#pragma once

#include <iterator>

#include "foundation/KYRString.h"

/// A kind object: one number. `Literals` gives the texts of 1 and up.
template <class Literals>
class UMLKindObject {
 public:
  explicit UMLKindObject(const KYRString& text) : value(parse(text)) {}
  virtual ~UMLKindObject() = default;
  int getValue() const noexcept { return value; }

  int value;

 private:
  // From the highest value down, without regard to case; the first match counts.
  static int parse(const KYRString& text) noexcept {
    constexpr int count = static_cast<int>(std::size(Literals::texts));
    for (int i = count; i > 0; --i) {
      if (equalsIgnoringCase(text.view(), Literals::texts[i - 1])) return i;
    }
    return 0;
  }
};

struct UMLVisibilityLiterals {
  static constexpr const char* texts[] = {"private", "protected", "package"};
};
struct UMLAggregationLiterals {
  static constexpr const char* texts[] = {"shared", "composite"};
};
struct UMLCallConcurrencyLiterals {
  static constexpr const char* texts[] = {"guarded", "concurrent"};
};
struct UMLMessageKindLiterals {
  static constexpr const char* texts[] = {"lost", "found", "unknown"};
};
struct UMLMessageSortLiterals {
  static constexpr const char* texts[] = {"asynchCall", "asynchSignal", "createMessage", "deleteMessage",
                                          "reply"};
};
struct UMLParameterDirectionLiterals {
  static constexpr const char* texts[] = {"inout", "out", "return"};
};

/// 0 public, 1 private, 2 protected, 3 package (UML 2.5, 7.8.24).
class UMLVisibilityKind : public UMLKindObject<UMLVisibilityLiterals> {
 public:
  using UMLKindObject::UMLKindObject;
  static constexpr int public_ = 0, private_ = 1, protected_ = 2, package = 3;
};
/// 0 none, 1 shared, 2 composite (UML 2.5, 9.9.1).
class UMLAggregationKind : public UMLKindObject<UMLAggregationLiterals> {
 public:
  using UMLKindObject::UMLKindObject;
  static constexpr int none = 0, shared = 1, composite = 2;
};
/// 0 sequential, 1 guarded, 2 concurrent (UML 2.5, 9.9.3).
class UMLCallConcurrencyKind : public UMLKindObject<UMLCallConcurrencyLiterals> {
 public:
  using UMLKindObject::UMLKindObject;
};
/// 0 complete, 1 lost, 2 found, 3 unknown (UML 2.5, 17.12.20).
class UMLMessageKind : public UMLKindObject<UMLMessageKindLiterals> {
 public:
  using UMLKindObject::UMLKindObject;
};
/// 0 synchCall, 1 asynchCall, 2 asynchSignal, 3 createMessage, 4 deleteMessage, 5 reply
/// (UML 2.5, 17.12.22).
class UMLMessageSort : public UMLKindObject<UMLMessageSortLiterals> {
 public:
  using UMLKindObject::UMLKindObject;
};
/// 0 in, 1 inout, 2 out, 3 return (UML 2.5, 9.9.14).
class UMLParameterDirectionKind : public UMLKindObject<UMLParameterDirectionLiterals> {
 public:
  using UMLKindObject::UMLKindObject;
  static constexpr int in = 0, inout = 1, out = 2, return_ = 3;
};
