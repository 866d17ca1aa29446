// The texts of the messages about files and XML. The table below is the only list: each row enters
// itself into the catalogue when it is made.
#include "foundation/KYRStdMessages.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "foundation/KYRStringArray.h"

namespace {
const char catalogueName[] = "KYRSTD";
const char fatal[] = "FATAL";
}  // namespace

const KYRStdMessages::Message<2> KYRStdMessages::FILE_CANNOT_OPEN(1, fatal,
                                                                  "The file '{0}' cannot be opened: {1}");
const KYRStdMessages::Message<2> KYRStdMessages::FILE_CANNOT_READ(2, fatal,
                                                                  "The file '{0}' cannot be read: {1}");
const KYRStdMessages::Message<1> KYRStdMessages::FILE_IS_DIRECTORY(
    3, fatal, "The file '{0}' cannot be read: it is a directory");
const KYRStdMessages::Message<1> KYRStdMessages::FILE_IS_FIFO(4, fatal,
                                                              "The file '{0}' cannot be read: it is a FIFO");
const KYRStdMessages::Message<1> KYRStdMessages::FILE_IS_SOCKET(
    5, fatal, "The file '{0}' cannot be read: it is a socket");
const KYRStdMessages::Message<1> KYRStdMessages::FILE_IS_DEVICE(
    6, fatal, "The file '{0}' cannot be read: it is a device");
const KYRStdMessages::Message<4> KYRStdMessages::XML_NOT_WELL_FORMED(  //
    7, fatal, "File '{0}', line {1}, column {2}: {3}");
const KYRStdMessages::Message<4> KYRStdMessages::XML_NOT_UTF8(
    8, fatal,
    "File '{0}', line {1}, column {2}: the byte {3} is not valid UTF-8. Some tools write windows-1252 in "
    "files that say UTF-8; '--encoding windows-1252' reads the file so");
const KYRStdMessages::Message<5> KYRStdMessages::XML_INVALID_BYTES(
    9, fatal, "File '{0}', line {1}, column {2}: the byte {3} is not valid in the encoding '{4}'");
const KYRStdMessages::Message<4> KYRStdMessages::XML_UNKNOWN_ENCODING(
    10, fatal, "File '{0}', line {1}, column {2}: the encoding '{3}' is not known");
const KYRStdMessages::Message<4> KYRStdMessages::XML_CONTRADICTED_ENCODING(
    11, fatal,
    "File '{0}', line {1}, column {2}: the file says that its encoding is '{3}', but its bytes are not; "
    "'--encoding NAME' reads it in another one");
const KYRStdMessages::Message<4> KYRStdMessages::XML_TOO_DEEP(
    12, fatal, "File '{0}', line {1}, column {2}: the limit of {3} nested elements is exceeded");
const KYRStdMessages::Message<4> KYRStdMessages::XML_TOO_MANY_ATTRIBUTES(
    13, fatal, "File '{0}', line {1}, column {2}: the limit of {3} attributes on one element is exceeded");
const KYRStdMessages::Message<4> KYRStdMessages::XML_VALUE_TOO_LONG(
    14, fatal,
    "File '{0}', line {1}, column {2}: the limit of {3} bytes for one attribute value is exceeded");
const KYRStdMessages::Message<4> KYRStdMessages::XML_TEXT_TOO_LONG(
    15, fatal, "File '{0}', line {1}, column {2}: the limit of {3} bytes for one text is exceeded");
const KYRStdMessages::Message<4> KYRStdMessages::XML_NAME_TOO_LONG(
    16, fatal,
    "File '{0}', line {1}, column {2}: the limit of {3} bytes for the name of an element or attribute is "
    "exceeded");
const KYRStdMessages::Message<4> KYRStdMessages::XML_MARKUP_TOO_LONG(
    17, fatal,
    "File '{0}', line {1}, column {2}: the limit of {3} bytes for one tag, comment or declaration is "
    "exceeded");
const KYRStdMessages::Message<4> KYRStdMessages::XML_TOO_LARGE(
    18, fatal,
    "File '{0}', line {1}, column {2}: the limit of {3} nodes, attributes or texts in one file is exceeded");
const KYRStdMessages::Message<1> KYRStdMessages::FILE_HAS_CHANGED(
    19, fatal, "The file '{0}' has changed while it was read");
const KYRStdMessages::PositionText KYRStdMessages::XML_POSITION;

KYRStdMessages::Base::Base(int number, const char* levelName, const char* text)
    : KYRMessageLiteral(number, text, levelName), row_{number, this, nullptr} {
  setCode(catalogueName, levelName);
  enter(row_);
}

KYRStdMessages::Base::~Base() = default;

KYRString KYRStdMessages::Base::format(std::initializer_list<const KYRString*> arguments) const {
  initLiterals();
  KYRStringArray texts;
  for (const KYRString* argument : arguments) texts.add(*argument);
  return createParameterizedText(texts);
}

KYRString KYRStdMessages::Base::prefixCode(const KYRString& text) const {
  return KYRString("[") + code + KYRString("] ") + text;
}

void KYRStdMessages::Base::send(KYRLog& log, const KYRString& text) const {
  log.log(KYRLogEvent(text, code, getLevel(), KYRString::getEmptyString()));
}

void KYRStdMessages::Base::raise(const KYRString& text) const {
  throw KYRException(prefixCode(text), buildStackTrace());
}

KYRStdMessages::PositionText::PositionText()
    : KYRParameterizedTextLiteral("KYRSTD_POSITION", "line {0}, column {1}"),
      row_{std::numeric_limits<int>::max(), this, nullptr} {  // behind the messages
  enter(row_);
}

KYRStdMessages::PositionText::~PositionText() = default;

KYRString KYRStdMessages::PositionText::toString(const KYRString& line, const KYRString& column) const {
  initLiterals();
  KYRStringArray texts;
  texts.add(line);
  texts.add(column);
  return createParameterizedText(texts);
}

KYRStdMessages::KYRStdMessages() : KYRTextLiteralsCollection(KYRString("KYRStd"), KYRString(catalogueName)) {
  // The files of the library enter their rows in an order that nobody promises.
  std::vector<const Row*> sorted;
  for (const Row* row = lastEntered; row != nullptr; row = row->next) sorted.push_back(row);
  std::sort(sorted.begin(), sorted.end(),
            [](const Row* first, const Row* second) { return first->number < second->number; });
  for (const Row* row : sorted) add(row->literal);
  init();
}

constinit KYRStdMessages::Row* KYRStdMessages::lastEntered = nullptr;

void KYRStdMessages::enter(Row& row) noexcept {
  row.next = lastEntered;
  lastEntered = &row;
}

const KYRStdMessages& KYRStdMessages::initLiterals() {
  static const KYRStdMessages catalogue;
  return catalogue;
}

const KYRTextLiteral* KYRStdMessages::findTextLiteral(const KYRString& identifier) {
  return initLiterals().get(identifier);
}

void KYRStdMessages::getAllLiterals(KYRVector& out) { initLiterals().listAllLiterals(out); }
