// XmlTranscoder: single characters, ends of pieces and of buffers.
#include "foundation/xml/XmlTranscoder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

using Stop = XmlTranscoder::Stop;

struct Conversion {
  Stop stop;
  std::string text;
  std::size_t used;
};

Conversion convert(const char* name, std::string_view bytes, std::size_t space = 256) {
  const std::unique_ptr<XmlTranscoder> transcoder = XmlTranscoder::open(name);
  std::string text(space, '\0');
  const char* input = bytes.data();
  char* output = text.data();
  const Stop stop = transcoder->convert(input, bytes.data() + bytes.size(), output, text.data() + space);
  text.resize(static_cast<std::size_t>(output - text.data()));
  return {stop, text, static_cast<std::size_t>(input - bytes.data())};
}

TEST(XmlTranscoder, AnEncodingThatNobodyKnowsHasNone) {
  EXPECT_EQ(XmlTranscoder::open("X-NO-SUCH-ENCODING"), nullptr);
}

TEST(XmlTranscoder, UnderscoresOfTheOlderJavaNamesMeanHyphens) {
  ASSERT_NE(XmlTranscoder::open("ISO8859_5"), nullptr);
  EXPECT_EQ(convert("ISO8859_5", "\xD0").text, "\xD0\xB0");
}

TEST(XmlTranscoder, TheUndefinedBytesOfWindows1252AreControlCharacters) {
  EXPECT_EQ(convert("CP1252", "\x81\x8D\x8F\x90\x9D").text, "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(XmlTranscoder, EveryByteOfWindows1252IsSomeCharacter) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  const Conversion all = convert("CP1252", bytes, 1024);
  EXPECT_EQ(all.stop, Stop::inputUsed);
  EXPECT_EQ(all.text.substr(0, 128), bytes.substr(0, 128));
}

TEST(XmlTranscoder, AnInvalidByteStopsInFrontOfIt) {
  const struct {
    const char* name;
    std::string_view bytes;
  } rows[] = {{"US-ASCII", "abc\x80z"}, {"CP1251", "abc\x98z"}, {"EUC-JP", "abc\xFFz"}, {"GBK", "abc\xFFz"}};
  for (const auto& row : rows) {
    const Conversion result = convert(row.name, row.bytes);
    EXPECT_EQ(result.stop, Stop::invalid) << row.name;
    EXPECT_EQ(result.text, "abc") << row.name;
    EXPECT_EQ(result.used, 3U) << row.name;
  }
}

TEST(XmlTranscoder, TheBeginningOfACharacterWaitsForItsEnd) {
  const Conversion result = convert("CP932", "a\x93");
  EXPECT_EQ(result.stop, Stop::incomplete);
  EXPECT_EQ(result.text, "a");
  EXPECT_EQ(result.used, 1U);
}

TEST(XmlTranscoder, AFullBufferStopsBetweenCharacters) {
  for (const char* name : {"CP1252", "EUC-JP"}) {
    const Conversion result = convert(name, "0123456789012345678", 16);
    EXPECT_EQ(result.stop, Stop::spaceUsed) << name;
    EXPECT_EQ(result.text, "0123456789012345") << name;
    EXPECT_EQ(result.used, 16U) << name;
  }
  const Conversion wide = convert("CP1252", "\x80\x80\x80\x80\x80\x80", 16);  // three bytes each
  EXPECT_EQ(wide.stop, Stop::spaceUsed);
  EXPECT_EQ(wide.used, 5U);
}

TEST(XmlTranscoder, EncodingsThatJoinLettersWithAccentsStayByteByByte) {
  // iconv would hold the letter back to join it with the accent; the columns of a file could not be
  // counted then.
  EXPECT_EQ(convert("CP1258", "a\xECz").text, "a\xCC\x81z");
}

}  // namespace
