// KYRImportTrace: what became of each element of a file, for a host that wants to know.
//
// A host makes one current and runs an import; the plug-in then tells it, at the end of the import, of
// every element that has become no object of its own and of what else in the file it could not use.
// Nobody pays for it otherwise. An import that fails tells nothing.
#pragma once

#include <cstdint>

#include "foundation/KYRString.h"
#include "foundation/KYRTraceReason.h"

/// One thing to tell. The texts live for the call that hands the record over.
struct KYRTraceRecord {
  KYRTraceReason reason = KYRTraceReason::unexplained;
  const char* kind = "";        // the class of the element, "UMLProperty"; empty for xmi:types and tags
  KYRString id;                 // its xmi:id; empty when it has none
  KYRString name;               // its name; an xmi:type or a tag
  std::uint64_t line = 0;       // of its "<", from 1; 0 when it is not known
  std::uint64_t count = 1;      // how often an xmi:type or a tag was met; the line is then that of the first
  const char* objectKind = "";  // absorbed: the class of the object, "KYRAttribute"
  KYRString objectPath;         // absorbed: where it is found, "Sales/Order/number"
  KYRString missingId;          // an id that the element refers to and nothing has, where that is why
  KYRString sentence;
};

/// Elements of the file. The sum of the other three is `read`.
struct KYRTraceTotals {
  std::uint64_t read = 0;
  std::uint64_t converted = 0;
  std::uint64_t absorbed = 0;
  std::uint64_t lost = 0;
};

class KYR_EXPORT KYRImportTrace {
 public:
  KYRImportTrace() = default;
  KYRImportTrace(const KYRImportTrace&) = delete;
  KYRImportTrace& operator=(const KYRImportTrace&) = delete;
  virtual ~KYRImportTrace();

  /// The trace that imports of this process tell, or null. Borrowed; to be set before an import and taken
  /// back after it.
  static void setCurrent(KYRImportTrace* trace) noexcept;
  static KYRImportTrace* getCurrent() noexcept;

  /// Elements in order of reading, then references in order of reading, xmi:types, tags and stereotypes.
  virtual void record(const KYRTraceRecord& told) = 0;
  /// After the last record.
  virtual void finish(const KYRTraceTotals& totals) = 0;
};
