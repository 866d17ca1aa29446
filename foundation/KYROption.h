// KYROption, KYROptionList: what a host tells a plug-in.
#pragma once

#include <memory>
#include <vector>

#include "foundation/KYRString.h"

/// The kind of value that an option takes.
enum class OptionType : int {
  text = 0,
  file = 5,
};

/// How a host opens the file that an option names.
enum class OpenMode : int {
  read = 0,
  write = 1,
};

class KYR_EXPORT KYROption {
 public:
  /// An option known to hosts by `identifier`; `isMandatory` tells them to ask for a value.
  KYROption(const KYRString& identifier, const KYRString& displayName, OptionType type,
            const KYRString& description, const KYRString& defaultValue, bool isMandatory);
  const KYRString& getIdentifier() const noexcept { return identifier_; }
  const KYRString& getDisplayName() const noexcept { return displayName_; }
  OptionType getType() const noexcept { return type_; }
  const KYRString& getDescription() const noexcept { return description_; }
  const KYRString& getDefaultValue() const noexcept { return defaultValue_; }
  bool isMandatory() const noexcept { return isMandatory_; }
  /// The value; the default until one is set.
  const KYRString& getValue() const noexcept { return value_; }
  void setValue(const KYRString& value) { value_ = value; }
  /// File options: the extensions a file chooser offers, and how the file is opened.
  const std::vector<KYRString>& getFileExtensions() const noexcept { return fileExtensions_; }
  OpenMode getOpenMode() const noexcept { return openMode_; }
  void setFileChoice(std::vector<KYRString> extensions, OpenMode mode);
  /// Whether the extensions are an offer only, so that a file of any name may be chosen.
  bool acceptsAnyFileName() const noexcept { return acceptsAnyFileName_; }
  void setAcceptsAnyFileName(bool acceptsAny) noexcept { acceptsAnyFileName_ = acceptsAny; }

 private:
  KYRString identifier_;
  KYRString displayName_;
  OptionType type_;
  KYRString description_;
  KYRString defaultValue_;
  bool isMandatory_;
  KYRString value_;
  std::vector<KYRString> fileExtensions_;
  OpenMode openMode_ = OpenMode::read;
  bool acceptsAnyFileName_ = false;
};

class KYR_EXPORT KYROptionList {
 public:
  /// Takes ownership. False when an option of that identifier is already there; the new one is
  /// deleted then.
  bool add(KYROption* option);
  /// The option of that identifier (exact), or null.
  KYROption* get(const KYRString& identifier) const noexcept;
  /// The value of that option; the empty text when there is none.
  const KYRString& getValue(const KYRString& identifier) const noexcept;
  void removeAll() noexcept;
  unsigned int getCount() const noexcept { return static_cast<unsigned int>(options_.size()); }
  /// The option at a position from 0, in order of adding; null beyond the end.
  KYROption* getAt(unsigned int index) const noexcept;

 private:
  std::vector<std::unique_ptr<KYROption>> options_;
};
