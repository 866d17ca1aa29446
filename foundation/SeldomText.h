// SeldomText: a text field that most objects leave empty, for eight bytes instead of the sixteen of a text.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "foundation/KYRString.h"

/// Reads as a KYRString and takes one on. The text stands on the heap, and only when it is not empty.
/// Ownership is that of the text inside: a borrowed one that is moved in stays borrowed, a copy owns.
class SeldomText {
 public:
  SeldomText() noexcept = default;
  SeldomText(const SeldomText& other) { *this = other.get(); }
  SeldomText(SeldomText&& other) noexcept = default;
  ~SeldomText() = default;
  SeldomText& operator=(const SeldomText& other) { return *this = other.get(); }
  SeldomText& operator=(SeldomText&& other) noexcept = default;
  /// Without memory for the text std::bad_alloc is raised, and the text that was there stays.
  SeldomText& operator=(KYRString text) {
    if (text.isEmpty()) {
      text_.reset();
    } else if (text_) {
      *text_ = std::move(text);
    } else {
      text_ = std::make_unique<KYRString>(std::move(text));
    }
    return *this;
  }

  operator const KYRString&() const noexcept { return get(); }  // NOLINT: it is a text
  const KYRString& get() const noexcept { return text_ ? *text_ : KYRString::getEmptyString(); }
  bool isEmpty() const noexcept { return text_ == nullptr; }
  std::string_view view() const noexcept { return get().view(); }
  unsigned int getLength() const noexcept { return text_ ? text_->getLength() : 0; }
  /// The characters, ending in a zero. Never null.
  const char* getCharacters() const noexcept { return get().getCharacters(); }
  bool isBorrowed() const noexcept { return text_ && text_->isBorrowed(); }

 private:
  std::unique_ptr<KYRString> text_;  // null or not empty
};
