// Text literals, the substitution of their placeholders, and the catalogue that finds them.
#include "foundation/KYRTextLiteral.h"

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

KYRTextLiteral::KYRTextLiteral(const KYRString& identifier, const KYRString& text)
    : identifier_(identifier), text_(text) {}

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

KYRMessageLiteral::KYRMessageLiteral(int number, const KYRString& text, const KYRString& levelName)
    : KYRParameterizedTextLiteral(KYRString::getEmptyString(), text),
      number_(number),
      level_(KYRLogLevel::fromName(levelName)) {}

KYRMessageLiteral::~KYRMessageLiteral() = default;

KYRString KYRMessageLiteral::buildCode(const KYRString& catalogueName, const KYRString& levelName,
                                       int number) {
  const KYRString digits(number);
  // A number of more than four digits gives a negative count and so all four zeros.
  return catalogueName + "_" + levelName.left(1) + KYRString("0000").left(4U - digits.getLength()) + digits;
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
