// ReadObserver: what a host can learn of a read beyond its objects. None is set unless somebody
// asks, and then nothing is computed for it.
#pragma once

#include <cstdint>

#include "foundation/KYRString.h"

class UMLElement;

class ReadObserver {
 public:
  /// What became of a noted reference.
  enum class LinkResult { linked, firstMissing, secondMissing, wrongClass };

  virtual ~ReadObserver() = default;
  /// An object was made; `line` is that of its element's "<".
  virtual void element(const UMLElement& /*object*/, std::uint64_t /*line*/) {}
  /// An element was skipped whole because its xmi:type is not in the type table.
  virtual void skippedType(const KYRString& type, const KYRString& position) = 0;
  /// An element matched no row, also one whose tag holds a ":" and is never reported in the log.
  virtual void unknownTag(const KYRString& tag, const KYRString& position) = 0;
  /// A reference was resolved or dropped.
  virtual void link(const KYRString& first, const KYRString& second, int kind, LinkResult result) = 0;
};
