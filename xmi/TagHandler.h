// TagHandler: one row of a dispatch table, and the table that finds rows by tag.
//
// Rows are process-wide and writable: a reader that makes an object turns the end action "none" of
// its row into "pop" (see XMIParser::patchRow).
#pragma once

#include "foundation/KYRHashtable.h"
#include "foundation/KYRString.h"
#include "foundation/KYRStringArray.h"

class ClassPlan;
class UMLElement;
class XMIParser;
struct TagHandler;
namespace UMLMetamodel {
struct ScalarRow;
}

/// What happens at a start tag: a member of the parser, or a marker.
struct StartAction {
  enum class Marker { none, skip, call };
  using Member = void (XMIParser::*)(const TagHandler& row, const KYRString& tag,
                                     const KYRStringArray& attributes);
  Marker marker = Marker::none;
  Member member = nullptr;  // for `call`
};

/// What happens at an end tag.
struct EndAction {
  enum class Marker { none, skip, pop, call };
  using Member = void (XMIParser::*)(const TagHandler& row, const KYRString& tag);
  Marker marker = Marker::none;
  Member member = nullptr;  // for `call`
};

struct TagHandler {
  const char* tag = nullptr;  // a tag, or an xmi:type in the type table; null ends a table
  StartAction startAction;
  EndAction endAction;
  int kind = 0;                     // context table: the kind of object that the row applies to
  const ClassPlan* plan = nullptr;  // reader of the class that the row makes
  int linkKind = 0;                 // child rows: the relationship of a mere reference
  const UMLMetamodel::ScalarRow* field = nullptr;  // text rows: where the text goes
};

/// Rows by tag. Rows of equal tags are all kept.
class TagHandlerHashtable : public KYRHashtable {
 public:
  explicit TagHandlerHashtable(int bucketCount) : KYRHashtable(bucketCount) {}
  /// The first row of that tag, or null.
  TagHandler* find(const KYRString& tag) const;
  /// The row of that tag that applies to the object; of several that do, the one of the most
  /// derived class. Null when there is none.
  TagHandler* findInContext(const KYRString& tag, const UMLElement& current) const;

  int compare2Object(const void* first, const void* second) const override;
  int compare2Key(const void* object, const void* key) const override;
  unsigned int hashObject(const void* object) const override;
  unsigned int hashKey(const void* key) const override;
};
