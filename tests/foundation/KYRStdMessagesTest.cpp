// KYRStdMessages: codes, texts, and the ways a message leaves.
#include "foundation/KYRStdMessages.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/KYRVector.h"
#include "foundation/xml/XmlPosition.h"
#include "tests/foundation/XmlTestSupport.h"
#include "tests/support/RecordingLog.h"

namespace {

TEST(KYRStdMessages, CodesAndTextsAreThoseThatUsersKnow) {
  const struct {
    const KYRStdMessages::Base& message;
    const char* code;
    const char* text;
  } rows[] = {
      {KYRStdMessages::FILE_CANNOT_OPEN, "KYRSTD_F0001", "The file '{0}' cannot be opened: {1}"},
      {KYRStdMessages::FILE_CANNOT_READ, "KYRSTD_F0002", "The file '{0}' cannot be read: {1}"},
      {KYRStdMessages::FILE_IS_DIRECTORY, "KYRSTD_F0003", "The file '{0}' cannot be read: it is a directory"},
      {KYRStdMessages::FILE_IS_FIFO, "KYRSTD_F0004", "The file '{0}' cannot be read: it is a FIFO"},
      {KYRStdMessages::FILE_IS_SOCKET, "KYRSTD_F0005", "The file '{0}' cannot be read: it is a socket"},
      {KYRStdMessages::FILE_IS_DEVICE, "KYRSTD_F0006", "The file '{0}' cannot be read: it is a device"},
      {KYRStdMessages::FILE_HAS_CHANGED, "KYRSTD_F0019", "The file '{0}' has changed while it was read"},
      {KYRStdMessages::XML_NOT_WELL_FORMED, "KYRSTD_F0007", "File '{0}', line {1}, column {2}: {3}"},
      {KYRStdMessages::XML_NOT_UTF8, "KYRSTD_F0008",
       "File '{0}', line {1}, column {2}: the byte {3} is not valid UTF-8. Some tools write windows-1252 in "
       "files that say UTF-8; '--encoding windows-1252' reads the file so"},
      {KYRStdMessages::XML_INVALID_BYTES, "KYRSTD_F0009",
       "File '{0}', line {1}, column {2}: the byte {3} is not valid in the encoding '{4}'"},
      {KYRStdMessages::XML_UNKNOWN_ENCODING, "KYRSTD_F0010",
       "File '{0}', line {1}, column {2}: the encoding '{3}' is not known"},
      {KYRStdMessages::XML_CONTRADICTED_ENCODING, "KYRSTD_F0011",
       "File '{0}', line {1}, column {2}: the file says that its encoding is '{3}', but its bytes are not; "
       "'--encoding NAME' reads it in another one"},
      {KYRStdMessages::XML_TOO_DEEP, "KYRSTD_F0012",
       "File '{0}', line {1}, column {2}: the limit of {3} nested elements is exceeded"},
      {KYRStdMessages::XML_TOO_MANY_ATTRIBUTES, "KYRSTD_F0013",
       "File '{0}', line {1}, column {2}: the limit of {3} attributes on one element is exceeded"},
      {KYRStdMessages::XML_VALUE_TOO_LONG, "KYRSTD_F0014",
       "File '{0}', line {1}, column {2}: the limit of {3} bytes for one attribute value is exceeded"},
      {KYRStdMessages::XML_TEXT_TOO_LONG, "KYRSTD_F0015",
       "File '{0}', line {1}, column {2}: the limit of {3} bytes for one text is exceeded"},
      {KYRStdMessages::XML_NAME_TOO_LONG, "KYRSTD_F0016",
       "File '{0}', line {1}, column {2}: the limit of {3} bytes for the name of an element or attribute is "
       "exceeded"},
      {KYRStdMessages::XML_MARKUP_TOO_LONG, "KYRSTD_F0017",
       "File '{0}', line {1}, column {2}: the limit of {3} bytes for one tag, comment or declaration is "
       "exceeded"},
      {KYRStdMessages::XML_TOO_LARGE, "KYRSTD_F0018",
       "File '{0}', line {1}, column {2}: the limit of {3} nodes, attributes or texts in one file is "
       "exceeded"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.message.getCode().view(), row.code);
    EXPECT_EQ(row.message.getText().view(), row.text) << row.code;
    EXPECT_EQ(row.message.getLevel(), KYRLogLevel::fatal) << row.code;
    EXPECT_EQ(KYRStdMessages::findTextLiteral(row.message.getCode()), &row.message);
  }
}

TEST(KYRStdMessages, TheCatalogueListsEveryLiteralOnceInOrderOfNumbers) {
  KYRVector literals;
  KYRStdMessages::getAllLiterals(literals);
  const unsigned int count = literals.getCount();
  ASSERT_GE(count, 19U);
  const auto literalAt = [&literals](unsigned int index) {
    return static_cast<const KYRTextLiteral*>(literals.getAt(index));
  };
  int number = 0;
  for (unsigned int i = 0; i + 1 < count; ++i) {
    const auto* const message = dynamic_cast<const KYRMessageLiteral*>(literalAt(i));
    ASSERT_NE(message, nullptr);
    EXPECT_LT(number, message->getNumber());
    number = message->getNumber();
  }
  EXPECT_EQ(literalAt(0), &KYRStdMessages::FILE_CANNOT_OPEN);
  EXPECT_EQ(literalAt(17), &KYRStdMessages::XML_TOO_LARGE);
  EXPECT_EQ(literalAt(count - 1), &KYRStdMessages::XML_POSITION);
}

TEST(KYRStdMessages, AnUnknownIdentifierHasNoLiteral) {
  EXPECT_EQ(KYRStdMessages::findTextLiteral("KYRSTD_F9999"), nullptr);
}

TEST(KYRStdMessages, AnExceptionCarriesTheCodeAndALogEventCarriesItApart) {
  const KYRString path("a.xmi");
  const KYRString reason("no such file");
  EXPECT_EQ(messageOf([&] { KYRStdMessages::FILE_CANNOT_OPEN.throwException(path, reason); }),
            "[KYRSTD_F0001] The file 'a.xmi' cannot be opened: no such file");
  EXPECT_EQ(KYRStdMessages::FILE_CANNOT_OPEN.getMessage(path, reason).view(),
            "[KYRSTD_F0001] The file 'a.xmi' cannot be opened: no such file");
  RecordingLog log;
  KYRStdMessages::FILE_CANNOT_OPEN.log(log, path, reason);
  EXPECT_EQ(log.lines,
            std::vector<std::string>{"KYRSTD_F0001 The file 'a.xmi' cannot be opened: no such file"});
  EXPECT_EQ(log.levels, std::vector<int>{KYRLogLevel::fatal});
}

TEST(KYRStdMessages, AnArgumentThatLooksLikeAPlaceholderStaysAsItIs) {
  EXPECT_EQ(KYRStdMessages::FILE_CANNOT_OPEN.toString(KYRString("{1}"), KYRString("{0}")).view(),
            "The file '{1}' cannot be opened: {0}");
}

}  // namespace
