// KYRBridgeOptionLiteral: the definition of an option in a catalogue, from which the option itself is
// generated for a host to fill in.
#pragma once

#include <memory>

#include "foundation/KYROption.h"
#include "foundation/KYRTextLiteral.h"

class KYR_EXPORT KYRBridgeOptionLiteral : public KYRTextLiteral {
 public:
  /// `enumeration` lists the values a host may offer, one a line; null for free text. Both literals are
  /// borrowed and live as long as this one, and so are the texts. A null `defaultValue` is the empty text.
  KYRBridgeOptionLiteral(const char* identifier, const char* displayName, OptionType type,
                         const char* description, const KYRTextLiteral* enumeration,
                         const KYRTextLiteral* defaultValue);
  ~KYRBridgeOptionLiteral() override;

  const KYRString& getDisplayName() const noexcept { return getText(); }
  OptionType getType() const noexcept { return type_; }
  const KYRString& getDescription() const noexcept { return description_; }
  const KYRTextLiteral* getEnumeration() const noexcept { return enumeration_; }
  const KYRString& getDefaultValue() const noexcept;

  /// A new option at its default value.
  std::unique_ptr<KYROption> generateOption(bool isMandatory) const;
  /// A new option that names a file. `extensions` is a list ending in null, for file choosers;
  /// `acceptsAnyName` tells them that the list is an offer and no condition.
  std::unique_ptr<KYROption> generateOption(bool isMandatory, const char* const* extensions, OpenMode mode,
                                            bool acceptsAnyName) const;

 private:
  OptionType type_;
  KYRString description_;
  const KYRTextLiteral* enumeration_;
  const KYRTextLiteral* defaultValue_;
};
