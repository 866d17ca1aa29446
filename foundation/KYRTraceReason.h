// KYRTraceReason: why an element of a file is not an object of its own in the model.
//
// One table gives each reason its code, what it says of the element, and the sentence in which it is told.
// docs/trace.md shows the same table. Codes are what scripts look for, so they stay as they are.
#pragma once

#include <cstddef>
#include <string_view>

#include "foundation/KYRTextLiteral.h"

/// What became of an element.
enum class KYRTraceOutcome {
  absorbed,  // it lives on inside another object
  lost,      // the model holds nothing of it
  noted,     // no element: something in the file that the import could not use
};

enum class KYRTraceReason {
  // Absorbed. What the sentence names is the object.
  initialValue,
  multiplicity,
  literalValue,
  returnType,
  description,
  mergedGeneralization,
  sharedType,
  typeName,
  ownColumn,
  // Lost for what the element is.
  noId,
  sameId,
  kindNotConverted,
  noName,
  boundary,
  noEndNames,
  emptyPackage,
  typeNotUsed,
  sameLiteral,
  valueKind,
  emptyValue,
  emptyComment,
  noReturnType,
  laterReturn,
  // Lost for where it stands.
  outsideModel,
  otherModel,
  ownerNotConverted,
  nestedClassifier,
  typeFeature,
  otherPlace,
  topInterface,
  noPlace,
  noPackage,
  // Lost for what it refers to.
  endMissing,
  endNotClass,
  endNotConverted,
  associationNotConverted,
  noGeneralization,
  noTarget,
  // No rule of the import is known that would explain it.
  unexplained,
  // Not of elements.
  referenceNotFound,
  referenceWrongClass,
  typeUnknown,
  tagIgnored,
  stereotypeNotFound,
};

class KYR_EXPORT KYRTraceReasons : public KYRTextLiteralsCollection {
 public:
  static constexpr std::size_t count = static_cast<std::size_t>(KYRTraceReason::stereotypeNotFound) + 1;

  /// A row of the table. The identifier of the literal is the code, its text the sentence.
  class KYR_EXPORT Row : public KYRParameterizedTextLiteral {
   public:
    Row(KYRTraceReason rowReason, KYRTraceOutcome rowOutcome, const char* code, const char* sentence);
    ~Row() override;
    /// The finished sentence; `other` is what plays a part in it besides the element.
    KYRString tell(const KYRString& other) const;

    const KYRTraceReason reason;
    const KYRTraceOutcome outcome;
  };

  static const Row& get(KYRTraceReason reason) noexcept;
  /// "absorbed", "lost" or "noted".
  static const char* getName(KYRTraceOutcome outcome) noexcept;
  /// The one catalogue, built at the first call.
  static const KYRTraceReasons& initLiterals();

 private:
  KYRTraceReasons();
};
