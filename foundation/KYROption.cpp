// Options: a handful for each plug-in, so the list is searched from its start.
#include "foundation/KYROption.h"

#include <utility>

KYROption::KYROption(const KYRString& identifier, const KYRString& displayName, OptionType type,
                     const KYRString& description, const KYRString& defaultValue, bool isMandatory)
    : identifier_(identifier),
      displayName_(displayName),
      type_(type),
      description_(description),
      defaultValue_(defaultValue),
      isMandatory_(isMandatory),
      value_(defaultValue) {}

void KYROption::setFileChoice(std::vector<KYRString> extensions, OpenMode mode) {
  fileExtensions_ = std::move(extensions);
  openMode_ = mode;
}

bool KYROptionList::add(KYROption* option) {
  std::unique_ptr<KYROption> owned(option);
  if (owned == nullptr || get(owned->getIdentifier()) != nullptr) return false;
  options_.push_back(std::move(owned));
  return true;
}

KYROption* KYROptionList::get(const KYRString& identifier) const noexcept {
  for (const auto& option : options_) {
    if (option->getIdentifier() == identifier) return option.get();
  }
  return nullptr;
}

const KYRString& KYROptionList::getValue(const KYRString& identifier) const noexcept {
  const KYROption* const option = get(identifier);
  return option == nullptr ? KYRString::getEmptyString() : option->getValue();
}

void KYROptionList::removeAll() noexcept { options_.clear(); }

KYROption* KYROptionList::getAt(unsigned int index) const noexcept {
  return index < options_.size() ? options_[index].get() : nullptr;
}
