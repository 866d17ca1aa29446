// KYRString: the text value of the whole system. 8-bit characters (UTF-8 once a file has been
// read), a known length, and a zero behind the last character.
//
// Ownership. A KYRString normally owns its characters. A *borrowed* one (made only by `borrowed`)
// points at characters that somebody else keeps, such as the arena of an XML document; that is
// how attribute texts travel through the reader without being copied. A copy always owns, so
// a text that is kept by copying never dangles. A move keeps what the source was.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "foundation/Export.h"

/// A text value with copy semantics. 16 bytes; the empty text and borrowed texts allocate nothing.
/// Positions and lengths are in bytes. Texts are limited to 4 GiB - 2; a longer one raises
/// std::length_error.
class KYR_EXPORT KYRString {
 public:
  /// The empty text.
  KYRString() noexcept = default;
  /// A copy of the characters up to the zero. Null counts as the empty text.
  KYRString(const char* text);  // NOLINT(google-explicit-constructor): literals are texts
  /// An owning copy of the characters of `text`.
  explicit KYRString(std::string_view text);
  /// An owning copy, also of a borrowed text.
  KYRString(const KYRString& other);
  /// Takes over the characters of `other`, which becomes empty.
  KYRString(KYRString&& other) noexcept
      : characters_(other.characters_), length_(other.length_), capacity_(other.capacity_) {
    other.showNothing();
  }
  /// A text of one character.
  explicit KYRString(char character);
  /// The decimal text of the number.
  explicit KYRString(int number);
  ~KYRString() {
    if (capacity_ != 0) freeBuffer();
  }

  KYRString& operator=(const KYRString& other);
  KYRString& operator=(KYRString&& other) noexcept {
    if (this != &other) {
      if (capacity_ != 0) freeBuffer();
      characters_ = other.characters_;
      length_ = other.length_;
      capacity_ = other.capacity_;
      other.showNothing();
    }
    return *this;
  }
  KYRString& operator=(const char* text);

  /// A text that points at the characters of `text` without copying them.
  /// The byte behind the last one must be a zero, and the characters must outlive the result.
  static KYRString borrowed(std::string_view text);
  /// Makes this text a borrowed view of the characters that `source` shows, which must outlive it.
  void borrow(const KYRString& source) noexcept {
    if (this == &source) return;
    if (capacity_ != 0) freeBuffer();
    capacity_ = 0;
    length_ = source.length_;
    characters_ = length_ == 0 ? emptyCharacters_ : source.characters_;
  }
  /// Whether the characters belong to somebody else. The empty text is never borrowed.
  bool isBorrowed() const noexcept { return capacity_ == 0 && length_ != 0; }

  /// Sets the value to the first `length` characters of `text`; -1 means up to the zero.
  void init(const char* text, int length);
  KYRString& operator+=(const KYRString& other);
  KYRString& operator+=(std::string_view other);
  KYRString& operator+=(const char* other);
  /// Makes the text empty. It is not a test; `isEmpty` is.
  void empty() noexcept {
    if (capacity_ != 0) freeBuffer();
    showNothing();
  }
  /// Makes the text empty but keeps its buffer for the next text.
  void clearKeepingBuffer() noexcept;
  /// One empty text that lives for the whole process.
  static const KYRString& getEmptyString() noexcept;

  /// The characters, ending in a zero. Never null.
  const char* getCharacters() const noexcept { return characters_; }
  /// Number of bytes, the ending zero not counted.
  unsigned int getLength() const noexcept { return length_; }
  bool isEmpty() const noexcept { return length_ == 0; }
  std::string_view view() const noexcept { return {characters_, length_}; }

  /// Equal texts. With `caseSensitive` false the letters A to Z equal a to z (ASCII only, no locale).
  bool equals(const KYRString& other, bool caseSensitive) const noexcept;
  bool startsWith(const KYRString& prefix, bool caseSensitive) const noexcept;
  bool endsWith(const KYRString& suffix, bool caseSensitive) const noexcept;

  /// Position of the first match at or behind `from`, or -1. The empty text is found at `from`.
  int find(const KYRString& text, unsigned int from) const noexcept;
  /// Position of the last match that starts at or before `from`, or -1.
  int reverseFind(const KYRString& text, unsigned int from) const noexcept;
  /// The text from a position on; empty beyond the end.
  KYRString mid(unsigned int from) const;
  /// At most `count` characters from a position on.
  KYRString mid(unsigned int from, unsigned int count) const;
  /// The first `count` characters. A negative count, which arrives as a huge one, gives the whole text.
  KYRString left(unsigned int count) const;
  /// A copy without leading and trailing blank, tab, newline, return, form feed and vertical tab.
  KYRString trim() const;

  /// The decimal value: leading white space and a sign are accepted, digits count as far as they
  /// go, 0 when there are none; values beyond 32 bits saturate to the limits of int.
  int getInt() const noexcept;
  /// The same number as `stringHashCode` of the characters.
  unsigned int hashCode() const noexcept;

 private:
  void showNothing() noexcept {
    characters_ = emptyCharacters_;
    length_ = 0;
    capacity_ = 0;
  }
  void freeBuffer() noexcept;  // the value is then to be set anew
  friend KYR_EXPORT KYRString operator+(const KYRString& first, const KYRString& second);
  char* reserve(std::size_t length);  // makes an owned buffer for `length` characters; value lost
  void assign(std::string_view text);

  static const char emptyCharacters_[1];
  const char* characters_ = emptyCharacters_;
  std::uint32_t length_ = 0;
  std::uint32_t capacity_ = 0;  // bytes owned, ending zero included; 0: nothing owned
};

KYR_EXPORT KYRString operator+(const KYRString& first, const KYRString& second);
inline bool operator==(const KYRString& first, const KYRString& second) noexcept {
  return first.view() == second.view();
}
inline bool operator!=(const KYRString& first, const KYRString& second) noexcept {
  return first.view() != second.view();
}

/// A deterministic hash of the characters up to the zero: equal texts give equal codes for as long as the
/// process runs. Another run draws another seed, so that no file can be made whose ids collide.
KYR_EXPORT unsigned int stringHashCode(const char* text) noexcept;
/// The same for a text of known length.
KYR_EXPORT unsigned int stringHashCode(std::string_view text) noexcept;

/// The decimal value by the rules of `KYRString::getInt`.
KYR_EXPORT int parseInt(std::string_view text) noexcept;
/// `character` in small letters, ASCII only: the locale never plays a part.
constexpr char foldCase(char character) noexcept {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}
/// Equal but for the case of ASCII letters.
KYR_EXPORT bool equalsIgnoringCase(std::string_view first, std::string_view second) noexcept;
