// KYRString: characters on the heap behind a pointer, a length and a capacity. A capacity of 0 says
// that nothing is owned: the pointer then shows the shared empty text or somebody else's characters.
#include "foundation/KYRString.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <climits>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

#include "foundation/TextHash.h"

static_assert(sizeof(KYRString) == 16, "objects of a model hold many texts, most of them empty");

namespace {

constexpr std::size_t maximumLength = std::numeric_limits<std::uint32_t>::max() - 1;

void checkLength(std::size_t length) {
  if (length > maximumLength) throw std::length_error("KYRString: the text exceeds 4 GiB - 2");
}

bool isWhiteSpace(char character) noexcept {
  return character == ' ' || (character >= '\t' && character <= '\r');  // tab, line, vertical, form, return
}

std::string_view viewOf(const char* text) noexcept {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

bool equalTexts(std::string_view first, std::string_view second, bool caseSensitive) noexcept {
  return caseSensitive ? first == second : equalsIgnoringCase(first, second);
}

// Positions are ints, so a match beyond their range cannot be told and counts as none.
int position(std::size_t found) noexcept {
  return found > static_cast<std::size_t>(INT_MAX) ? -1 : static_cast<int>(found);
}

}  // namespace

const char KYRString::emptyCharacters_[1] = {};

KYRString::KYRString(const char* text) { assign(viewOf(text)); }

KYRString::KYRString(std::string_view text) { assign(text); }

KYRString::KYRString(const KYRString& other) { assign(other.view()); }

KYRString::KYRString(char character) { assign({&character, 1}); }

KYRString::KYRString(int number) {
  char digits[std::numeric_limits<int>::digits10 + 2];  // one more digit and the sign
  const auto result = std::to_chars(digits, digits + sizeof digits, number);
  assign({digits, static_cast<std::size_t>(result.ptr - digits)});
}

void KYRString::freeBuffer() noexcept { delete[] characters_; }

KYRString& KYRString::operator=(const KYRString& other) {
  if (this != &other) assign(other.view());
  return *this;
}

KYRString& KYRString::operator=(const char* text) {
  assign(viewOf(text));
  return *this;
}

KYRString KYRString::borrowed(std::string_view text) {
  checkLength(text.size());
  KYRString result;
  if (!text.empty()) {
    assert(text.data()[text.size()] == '\0');
    result.characters_ = text.data();
    result.length_ = static_cast<std::uint32_t>(text.size());
  }
  return result;
}

void KYRString::init(const char* text, int length) {
  if (text == nullptr || length < 0) {
    assign(viewOf(text));
  } else {
    assign({text, static_cast<std::size_t>(length)});
  }
}

KYRString& KYRString::operator+=(const KYRString& other) { return *this += other.view(); }

KYRString& KYRString::operator+=(const char* other) { return *this += viewOf(other); }

KYRString& KYRString::operator+=(std::string_view other) {
  if (other.empty()) return *this;
  const std::size_t length = std::size_t{length_} + other.size();
  checkLength(length);
  if (length < capacity_) {
    char* const end = const_cast<char*>(characters_) + length_;
    std::memcpy(end, other.data(), other.size());
    end[other.size()] = '\0';
  } else {
    // Doubling, so that a text collected in many small pieces costs linear time.
    const std::size_t capacity =
        std::min(std::max(length + 1, std::size_t{capacity_} * 2), maximumLength + 1);
    char* const buffer = new char[capacity];
    std::memcpy(buffer, characters_, length_);
    std::memcpy(buffer + length_, other.data(), other.size());  // `other` may lie in the old buffer
    buffer[length] = '\0';
    if (capacity_ != 0) delete[] characters_;
    characters_ = buffer;
    capacity_ = static_cast<std::uint32_t>(capacity);
  }
  length_ = static_cast<std::uint32_t>(length);
  return *this;
}

void KYRString::clearKeepingBuffer() noexcept {
  if (capacity_ == 0) {
    empty();
  } else {
    *const_cast<char*>(characters_) = '\0';
    length_ = 0;
  }
}

const KYRString& KYRString::getEmptyString() noexcept {
  // Never destroyed: destructors of other static objects may still ask for it.
  alignas(KYRString) static unsigned char storage[sizeof(KYRString)];
  static const KYRString* const text = new (storage) KYRString();
  return *text;
}

bool KYRString::equals(const KYRString& other, bool caseSensitive) const noexcept {
  return equalTexts(view(), other.view(), caseSensitive);
}

bool KYRString::startsWith(const KYRString& prefix, bool caseSensitive) const noexcept {
  return prefix.length_ <= length_ &&
         equalTexts(view().substr(0, prefix.length_), prefix.view(), caseSensitive);
}

bool KYRString::endsWith(const KYRString& suffix, bool caseSensitive) const noexcept {
  return suffix.length_ <= length_ &&
         equalTexts(view().substr(length_ - suffix.length_), suffix.view(), caseSensitive);
}

int KYRString::find(const KYRString& text, unsigned int from) const noexcept {
  return position(view().find(text.view(), from));
}

int KYRString::reverseFind(const KYRString& text, unsigned int from) const noexcept {
  return position(view().rfind(text.view(), from));
}

KYRString KYRString::mid(unsigned int from) const { return mid(from, length_); }

KYRString KYRString::mid(unsigned int from, unsigned int count) const {
  return from < length_ ? KYRString(view().substr(from, count)) : KYRString();
}

KYRString KYRString::left(unsigned int count) const { return KYRString(view().substr(0, count)); }

KYRString KYRString::trim() const {
  std::string_view text = view();
  while (!text.empty() && isWhiteSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && isWhiteSpace(text.back())) text.remove_suffix(1);
  return KYRString(text);
}

int KYRString::getInt() const noexcept { return parseInt(view()); }

unsigned int KYRString::hashCode() const noexcept { return stringHashCode(view()); }

char* KYRString::reserve(std::size_t length) {
  checkLength(length);
  if (length >= capacity_) {
    char* const buffer = new char[length + 1];
    empty();
    characters_ = buffer;
    capacity_ = static_cast<std::uint32_t>(length + 1);
  }
  length_ = static_cast<std::uint32_t>(length);
  char* const characters = const_cast<char*>(characters_);
  characters[length] = '\0';
  return characters;
}

void KYRString::assign(std::string_view text) {
  if (text.empty()) {
    empty();
  } else if (text.size() < capacity_) {
    char* const characters = const_cast<char*>(characters_);
    std::memmove(characters, text.data(), text.size());  // `text` may be a piece of this one
    characters[text.size()] = '\0';
    length_ = static_cast<std::uint32_t>(text.size());
  } else {
    KYRString copy;  // `text` may point into what this one borrows or owns
    std::memcpy(copy.reserve(text.size()), text.data(), text.size());
    *this = std::move(copy);
  }
}

KYRString operator+(const KYRString& first, const KYRString& second) {
  KYRString result;
  const std::size_t length = std::size_t{first.length_} + second.length_;
  if (length != 0) {
    char* const characters = result.reserve(length);
    std::memcpy(characters, first.characters_, first.length_);
    std::memcpy(characters + first.length_, second.characters_, second.length_);
  }
  return result;
}

unsigned int stringHashCode(const char* text) noexcept { return stringHashCode(viewOf(text)); }

unsigned int stringHashCode(std::string_view text) noexcept {
  return static_cast<unsigned int>(TextHash::of(text, TextHash::seed()) >> 32);
}

int parseInt(std::string_view text) noexcept {
  std::size_t at = 0;
  while (at < text.size() && isWhiteSpace(text[at])) ++at;
  bool isNegative = false;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) isNegative = text[at++] == '-';
  constexpr std::int64_t beyondInt = std::int64_t{INT_MAX} + 1;
  std::int64_t value = 0;
  for (; at < text.size() && text[at] >= '0' && text[at] <= '9' && value < beyondInt; ++at) {
    value = value * 10 + (text[at] - '0');
  }
  if (isNegative) return value >= beyondInt ? INT_MIN : static_cast<int>(-value);
  return value >= beyondInt ? INT_MAX : static_cast<int>(value);
}

bool equalsIgnoringCase(std::string_view first, std::string_view second) noexcept {
  if (first.size() != second.size()) return false;
  if (first == second) return true;  // which is how nearly all texts that are equal are written
  return std::equal(first.begin(), first.end(), second.begin(),
                    [](char one, char other) { return foldCase(one) == foldCase(other); });
}
