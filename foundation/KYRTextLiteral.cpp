// Text literals, the substitution of their placeholders, and the catalogue that finds them.
#include "foundation/KYRTextLiteral.h"

#include <cassert>
#include <charconv>
#include <cstring>
#include <limits>

#include "foundation/KYRDOM.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRVector.h"

namespace {

constexpr int expectedLiterals = 32;

const KYRTextLiteral* literal(const void* object) noexcept {
  return static_cast<const KYRTextLiteral*>(object);
}

bool isDigit(char character) noexcept { return character >= '0' && character <= '9'; }

// The length of a placeholder "{12}" at the start of `text`, or 0.
std::size_t placeholderLength(std::string_view text) noexcept {
  std::size_t end = 1;
  while (end < text.size() && isDigit(text[end])) ++end;
  return end > 1 && end < text.size() && text[end] == '}' ? end + 1 : 0;
}

}  // namespace

KYRTextLiteral::KYRTextLiteral(const char* identifier, const char* text)
    : identifier_(KYRString::borrowed(identifier)), text_(KYRString::borrowed(text)) {}

KYRTextLiteral::~KYRTextLiteral() = default;

KYRParameterizedTextLiteral::~KYRParameterizedTextLiteral() = default;

void KYRParameterizedTextLiteral::update(const KYRString& identifier, const KYRDOMElement* element) {
  if (element != nullptr && identifier == identifier_) text_ = element->getValue();
}

KYRString KYRParameterizedTextLiteral::createParameterizedText(const KYRStringArray& arguments) const {
  KYRString result;
  std::string_view rest = text_.view();
  while (!rest.empty()) {
    const std::size_t brace = rest.find('{');
    if (brace == std::string_view::npos) break;
    const std::size_t length = placeholderLength(rest.substr(brace));
    const auto index =
        length == 0 ? -1 : parseInt(rest.substr(brace + 1));  // saturates far beyond any argument
    if (index >= 0 && static_cast<unsigned int>(index) < arguments.getCount()) {
      result += rest.substr(0, brace);
      result += arguments.get(static_cast<unsigned int>(index));
      rest.remove_prefix(brace + length);
    } else {
      result += rest.substr(0, brace + 1);
      rest.remove_prefix(brace + 1);
    }
  }
  result += rest;
  return result;
}

KYRMessageLiteral::KYRMessageLiteral(int number, const char* text, const char* levelName)
    : KYRParameterizedTextLiteral("", text),
      number_(number),
      level_(KYRLogLevel::fromName(KYRString::borrowed(levelName))),
      codeCharacters_{} {}

KYRMessageLiteral::~KYRMessageLiteral() = default;

void KYRMessageLiteral::setCode(const char* catalogueName, const char* levelName) {
  char digits[std::numeric_limits<int>::digits10 + 2];  // one more digit and the sign
  const auto result = std::to_chars(digits, digits + sizeof digits, number_);
  const auto digitCount = static_cast<std::size_t>(result.ptr - digits);
  // A number of more than four digits has all four zeros before it.
  const std::size_t zeroCount = digitCount <= 4 ? 4 - digitCount : 4;
  std::size_t length = 0;
  const auto append = [this, &length](std::string_view part) {
    assert(length + part.size() < codeSize);
    part = part.substr(0, codeSize - 1 - length);
    std::memcpy(codeCharacters_ + length, part.data(), part.size());
    length += part.size();
  };
  append(catalogueName);
  append("_");
  append(std::string_view(levelName).substr(0, 1));
  append(std::string_view("0000").substr(0, zeroCount));
  append({digits, digitCount});
  codeCharacters_[length] = '\0';
  code = KYRString::borrowed({codeCharacters_, length});
  identifier_.borrow(code);
}

KYRTextLiteralsCollection::KYRTextLiteralsCollection(const KYRString& libraryName,
                                                     const KYRString& catalogueName)
    : KYRHashtable(expectedLiterals), libraryName_(libraryName), catalogueName_(catalogueName) {}

KYRTextLiteralsCollection::~KYRTextLiteralsCollection() = default;

bool KYRTextLiteralsCollection::add(KYRTextLiteral* added) {
  return KYRHashtable::add(static_cast<const void*>(added), true, nullptr);
}

// The content is final from here on, so the buckets are fitted to it.
void KYRTextLiteralsCollection::init() { resize(static_cast<int>(getCount())); }

const KYRTextLiteral* KYRTextLiteralsCollection::get(const KYRString& identifier) const {
  return literal(findFirst(&identifier, nullptr));
}

void KYRTextLiteralsCollection::listAllLiterals(KYRVector& out) const {
  for (unsigned int slot = 0; slot < getSlotCount(); ++slot) {
    if (getAt(slot) != nullptr) out.add(getAt(slot), false, nullptr);
  }
}

int KYRTextLiteralsCollection::compare2Object(const void* first, const void* second) const {
  return compare2Key(first, &literal(second)->getIdentifier());
}

int KYRTextLiteralsCollection::compare2Key(const void* object, const void* key) const {
  return literal(object)->getIdentifier() == *static_cast<const KYRString*>(key) ? 0 : 1;
}

unsigned int KYRTextLiteralsCollection::hashObject(const void* object) const {
  return literal(object)->getIdentifier().hashCode();
}

unsigned int KYRTextLiteralsCollection::hashKey(const void* key) const {
  return static_cast<const KYRString*>(key)->hashCode();
}
