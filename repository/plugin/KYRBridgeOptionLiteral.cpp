// Definitions of options.
#include "repository/plugin/KYRBridgeOptionLiteral.h"

#include <utility>
#include <vector>

KYRBridgeOptionLiteral::KYRBridgeOptionLiteral(const char* identifier, const char* displayName,
                                               OptionType type, const char* description,
                                               const KYRTextLiteral* enumeration,
                                               const KYRTextLiteral* defaultValue)
    : KYRTextLiteral(identifier, displayName),
      type_(type),
      description_(KYRString::borrowed(description)),
      enumeration_(enumeration),
      defaultValue_(defaultValue) {}

KYRBridgeOptionLiteral::~KYRBridgeOptionLiteral() = default;

const KYRString& KYRBridgeOptionLiteral::getDefaultValue() const noexcept {
  return defaultValue_ != nullptr ? defaultValue_->getText() : KYRString::getEmptyString();
}

std::unique_ptr<KYROption> KYRBridgeOptionLiteral::generateOption(bool isMandatory) const {
  return std::make_unique<KYROption>(getIdentifier(), getDisplayName(), type_, description_,
                                     getDefaultValue(), isMandatory);
}

std::unique_ptr<KYROption> KYRBridgeOptionLiteral::generateOption(bool isMandatory,
                                                                  const char* const* extensions,
                                                                  OpenMode mode, bool acceptsAnyName) const {
  std::unique_ptr<KYROption> option = generateOption(isMandatory);
  std::vector<KYRString> list;
  for (const char* const* extension = extensions; *extension != nullptr; ++extension) {
    list.emplace_back(*extension);
  }
  option->setFileChoice(std::move(list), mode);
  option->setAcceptsAnyFileName(acceptsAnyName);
  return option;
}
