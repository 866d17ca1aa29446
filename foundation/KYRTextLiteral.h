// Text literals and their catalogues. Every text that a user sees is a literal with a fixed
// identifier; code names the literal and never writes the text inline.
//
// Literals are static objects, made while a library is loaded, where nobody can be told that there is no
// memory. So they borrow their texts, which must be string literals too, and allocate nothing.
#pragma once

#include "foundation/KYRHashtable.h"
#include "foundation/KYRString.h"
#include "foundation/KYRStringArray.h"

class KYRDOMElement;
class KYRVector;

/// An identifier and a text.
class KYR_EXPORT KYRTextLiteral {
 public:
  /// Both are borrowed: their characters must outlive the literal, as those of string literals do.
  KYRTextLiteral(const char* identifier, const char* text);
  KYRTextLiteral(const KYRTextLiteral&) = delete;
  KYRTextLiteral& operator=(const KYRTextLiteral&) = delete;
  virtual ~KYRTextLiteral();
  const KYRString& getIdentifier() const noexcept { return identifier_; }
  const KYRString& getText() const noexcept { return text_; }

 protected:
  KYRString identifier_;
  KYRString text_;
};

/// A literal whose text may hold the placeholders {0}, {1} and so on.
class KYR_EXPORT KYRParameterizedTextLiteral : public KYRTextLiteral {
 public:
  using KYRTextLiteral::KYRTextLiteral;
  ~KYRParameterizedTextLiteral() override;
  /// Replaces the text by one from a translation file; `element` holds it as its value.
  virtual void update(const KYRString& identifier, const KYRDOMElement* element);

 protected:
  /// The text with each placeholder replaced by its argument, in one pass: an argument that holds
  /// "{1}" stays as it is. A placeholder without an argument stays too.
  KYRString createParameterizedText(const KYRStringArray& arguments) const;
};

/// A numbered message. Its identifier in a catalogue is set by the catalogue's derived classes.
class KYR_EXPORT KYRMessageLiteral : public KYRParameterizedTextLiteral {
 public:
  /// `levelName` is "FATAL", "WARNING" or "STATUS"; `text` is borrowed.
  KYRMessageLiteral(int number, const char* text, const char* levelName);
  ~KYRMessageLiteral() override;
  int getNumber() const noexcept { return number_; }
  int getLevel() const noexcept { return level_; }
  const KYRString& getCode() const noexcept { return code; }

 protected:
  /// Makes code and identifier: catalogue name, "_", first letter of the level, and the number in four
  /// digits.
  void setCode(const char* catalogueName, const char* levelName);

  KYRString code;

 private:
  static constexpr std::size_t codeSize = 32;
  int number_;
  int level_;
  char codeCharacters_[codeSize];  // what the code borrows
};

/// A catalogue: literals by identifier. It borrows them; they are static objects.
class KYR_EXPORT KYRTextLiteralsCollection : public KYRHashtable {
 public:
  KYRTextLiteralsCollection(const KYRString& libraryName, const KYRString& catalogueName);
  ~KYRTextLiteralsCollection() override;
  const KYRString& getLibraryName() const noexcept { return libraryName_; }
  const KYRString& getCatalogueName() const noexcept { return catalogueName_; }
  /// False when a literal of that identifier is already there.
  bool add(KYRTextLiteral* literal);
  /// Called once after the last `add`.
  void init();
  /// The literal of that identifier (exact), or null.
  const KYRTextLiteral* get(const KYRString& identifier) const;
  /// Appends all literals as `const KYRTextLiteral *`, in order of adding.
  void listAllLiterals(KYRVector& out) const;

  int compare2Object(const void* first, const void* second) const override;
  int compare2Key(const void* object, const void* key) const override;
  unsigned int hashObject(const void* object) const override;
  unsigned int hashKey(const void* key) const override;

 private:
  using KYRHashtable::add;
  KYRString libraryName_;
  KYRString catalogueName_;
};
