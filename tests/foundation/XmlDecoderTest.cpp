// XmlDecoder: whole texts in every encoding that design tools write, cut into pieces of every size.
#include "foundation/xml/XmlDecoder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/foundation/XmlTestSupport.h"

using namespace std::string_literals;

namespace {

std::string decode(std::string_view bytes, std::size_t pieceSize, std::size_t bufferSize) {
  XmlMemoryInput input(memoryName, bytes, pieceSize);
  XmlDecoder decoder(input);
  std::string text;
  std::vector<char> buffer(bufferSize);
  for (std::size_t length = 0; (length = decoder.read(buffer.data(), bufferSize)) != 0;) {
    text.append(buffer.data(), length);
  }
  if (decoder.isBroken()) decoder.raiseInvalidByte();
  return text;
}

std::string decodeError(std::string_view bytes) {
  return messageOf([bytes] { decode(bytes, 7, 64); });
}

void expectDecoded(std::string_view bytes, std::string_view expected, const std::string& what) {
  for (const std::size_t pieceSize : {1U, 2U, 3U, 7U, 100000U}) {
    for (const std::size_t bufferSize : {1U, 5U, 16U, 17U, 4096U}) {
      EXPECT_EQ(decode(bytes, pieceSize, bufferSize), expected)
          << what << ", pieces of " << pieceSize << ", buffer of " << bufferSize;
    }
  }
}

std::string widen(std::string_view ascii, bool isBigEndian) {
  std::string wide;
  for (const char c : ascii) {
    if (isBigEndian) wide += '\0';
    wide += c;
    if (!isBigEndian) wide += '\0';
  }
  return wide;
}

TEST(XmlDecoder, DeclaredEncodingsBecomeUtf8) {
  const struct {
    const char* name;
    const char* bytes;
    const char* text;
  } rows[] = {
      {"UTF-8", "\303\251\342\202\254\360\237\230\200", "é€😀"},
      {"utf8", "\303\251\342\202\254", "é€"},
      {"US-ASCII", "plain ~", "plain ~"},
      {"ISO-8859-1", "\351\367\377", "é÷ÿ"},
      {"iso-8859-2", "\243\363d\274", "Łódź"},
      {"ISO-8859-15", "\244\246\275", "€Šœ"},
      {"windows-1252", "\200\223\351\224\231", "€“é”™"},
      {"Cp1252", "\337\200", "ß€"},
      {"windows-1250", "\236lu\235ou\350k\375", "žluťoučký"},
      {"windows-1251", "\317\360\350\342\345\362 \271", "Привет №"},
      {"KOI8-R", "\360\322\311\327\305\324 \276", "Привет ╬"},
      {"Shift_JIS", "\223\372\226{\214\352\207@\261\201`\201\134", "日本語①ｱ～―"},
      {"x-sjis", "\225\134\216\246\203\134", "表示ソ"},
      {"windows-31j", "\207V\207\212", "Ⅲ㈱"},
      {"EUC-JP", "\306\374\313\334\270\354\216\261", "日本語ｱ"},
      {"GB2312", "\272\272\327\326\351F", "汉字镕"},
      {"GBK", "\267\261\363w\235h\327\326", "繁體漢字"},
      {"GB18030", "\272\272\327\326\242\343\2249\3746", "汉字€😀"},
      {"Big5", "\244\244\244\345\263\134\245\134\273\134", "中文許功蓋"},
      {"EUC-KR", "\307\321\261\333", "한글"},
      {"KS_C_5601-1987", "\307\321\261\333\214c\271\346", "한글똠방"},
      {"KS_C_5601", "\214c", "똠"},
      {"IBM850", "\202\245\263", "éÑ│"},
  };
  for (const auto& row : rows) {
    const std::string declaration = "<?xml version='1.0' encoding='"s + row.name + "'?>\n<a b='";
    expectDecoded(declaration + row.bytes + "'>" + row.bytes + "</a>",
                  declaration + row.text + "'>" + row.text + "</a>", row.name);
  }
}

TEST(XmlDecoder, Utf16IsReadWithAndWithoutAMark) {
  const std::string declared = "<?xml version='1.0' encoding='UTF-16'?><a>";
  // e acute, euro sign, and a character beyond 16 bits
  const std::string big = widen(declared, true) + "\0\xE9\x20\xAC\xD8\x3D\xDE\x00"s + widen("</a>", true);
  const std::string little =
      widen(declared, false) + "\xE9\0\xAC\x20\x3D\xD8\x00\xDE"s + widen("</a>", false);
  const std::string text = declared + "é€😀</a>";
  expectDecoded(big, text, "big endian");
  expectDecoded(little, text, "little endian");
  expectDecoded("\xFE\xFF" + big, text, "big endian with mark");
  expectDecoded("\xFF\xFE" + little, text, "little endian with mark");
  expectDecoded(widen("<a/>", true), "<a/>", "big endian without declaration");
  expectDecoded(widen("<a/>", false), "<a/>", "little endian without declaration");
}

TEST(XmlDecoder, Utf32AndEbcdicAreRead) {
  expectDecoded("\0\0\0<\0\0\0a\0\0\0/\0\0\0>"s, "<a/>", "UTF-32BE");
  expectDecoded("\xFF\xFE\0\0<\0\0\0a\0\0\0/\0\0\0>\0\0\0"s, "<a/>", "UTF-32LE with mark");
  // <?xml version='1.0' encoding='IBM037'?><a/>
  expectDecoded(
      "\x4C\x6F\xA7\x94\x93\x40\xA5\x85\x99\xA2\x89\x96\x95\x7E\x7D\xF1\x4B\xF0\x7D\x40"
      "\x85\x95\x83\x96\x84\x89\x95\x87\x7E\x7D\xC9\xC2\xD4\xF0\xF3\xF7\x7D\x6F\x6E\x4C\x81\x61\x6E"s,
      "<?xml version='1.0' encoding='IBM037'?><a/>", "EBCDIC");
}

TEST(XmlDecoder, TheMarkOfUtf8IsNoCharacter) { expectDecoded("\xEF\xBB\xBF<a/>", "<a/>", "UTF-8 with mark"); }

TEST(XmlDecoder, TheUndefinedBytesOfWindows1252AreControlCharacters) {
  const std::string declaration = "<?xml version='1.0' encoding='windows-1252'?>";
  expectDecoded(declaration + "<a>\x81</a>", declaration + "<a>\xC2\x81</a>", "windows-1252");
}

TEST(XmlDecoder, AnEmptyInputGivesNothing) { expectDecoded("", "", "empty"); }

TEST(XmlDecoder, ATextLongerThanEveryBufferKeepsItsCharacters) {
  const std::string declaration = "<?xml version='1.0' encoding='Shift_JIS'?>";
  std::string bytes = declaration;
  std::string text = declaration;
  for (int i = 0; i < 100000; ++i) {
    bytes += i % 3 == 0 ? "x\x93\xFA" : "\x93\xFA";
    text += i % 3 == 0 ? "x日" : "日";
  }
  EXPECT_EQ(decode(bytes, std::string::npos, 65536), text);
}

TEST(XmlDecoder, AnUnknownEncodingIsNamedWithItsPlace) {
  EXPECT_EQ(decodeError("<?xml version='1.0'\n  encoding='x-klingon'?><a/>"),
            "[KYRSTD_F0010] File 'memory.xmi', line 2, column 13: the encoding 'x-klingon' is not known");
  EXPECT_EQ(decodeError("<?xml version='1.0' encoding=''?><a/>"),
            "[KYRSTD_F0010] File 'memory.xmi', line 1, column 31: the encoding '' is not known");
  const TemporaryEncoding forced("nonsense");
  EXPECT_EQ(decodeError("<a/>"),
            "[KYRSTD_F0010] File 'memory.xmi', line 1, column 1: the encoding 'nonsense' is not known");
}

TEST(XmlDecoder, ADeclarationThatItsOwnBytesContradictIsRefused) {
  for (const char* name : {"UTF-16", "UTF-32", "UCS-2", "IBM037"}) {
    EXPECT_EQ(decodeError("<?xml version='1.0' encoding='"s + name + "'?><a/>"),
              "[KYRSTD_F0011] File 'memory.xmi', line 1, column 31: the file says that its encoding is '"s +
                  name + "', but its bytes are not; '--encoding NAME' reads it in another one");
  }
}

TEST(XmlDecoder, AForcedEncodingIsObeyed) {
  const TemporaryEncoding forced("windows-1252");
  EXPECT_EQ(decode("<?xml version='1.0' encoding='UTF-8'?><a>\xE9</a>", 100, 100),
            "<?xml version='1.0' encoding='UTF-8'?><a>é</a>");
}

TEST(XmlDecoder, AnInvalidByteIsToldWithItsPlaceOnceTheTextBeforeItIsGiven) {
  const struct {
    const char* name;
    const char* bytes;
    const char* place;
    const char* byte;
  } rows[] = {
      {"US-ASCII", "<a>\n  abc\200", "line 3, column 6", "0x80"},
      {"windows-1251", "<a>\r\n\317\360\230", "line 3, column 3", "0x98"},
      {"Shift_JIS", "<a>\223\372\223\372\377", "line 2, column 6", "0xFF"},
      {"EUC-JP", "<a>\306\374 \377", "line 2, column 6", "0xFF"},
      {"EUC-JP", "<a>\306", "line 2, column 4", "0xC6"},  // the file ends within a character
  };
  for (const auto& row : rows) {
    const std::string bytes = "<?xml version='1.0' encoding='"s + row.name + "'?>\n" + row.bytes;
    const std::string expected = "[KYRSTD_F0009] File 'memory.xmi', "s + row.place + ": the byte " +
                                 row.byte + " is not valid in the encoding '" + row.name + "'";
    for (const std::size_t pieceSize : {1U, 2U, 3U, 7U, 1000U}) {
      XmlMemoryInput input(memoryName, bytes, pieceSize);
      XmlDecoder decoder(input);
      std::string given;
      char buffer[20];
      EXPECT_EQ(messageOf([&] {
                  for (std::size_t length = 0; (length = decoder.read(buffer, sizeof buffer)) != 0;) {
                    given.append(buffer, length);
                  }
                  if (decoder.isBroken()) decoder.raiseInvalidByte();
                }),
                expected);
      EXPECT_NE(given.find("<a>"), std::string::npos) << row.name;
    }
  }
}

TEST(XmlDecoder, HalfACharacterOfUtf16AtTheEndIsInvalid) {
  EXPECT_EQ(decodeError("\xFF\xFE<\0a\0/\0>"s),
            "[KYRSTD_F0009] File 'memory.xmi', line 1, column 4: the byte 0x3E is not valid in the encoding "
            "'UTF-16LE'");
  EXPECT_EQ(decodeError("\xFE\xFF\0<\xDC\x00\0>"s),  // the second half of a pair without the first
            "[KYRSTD_F0009] File 'memory.xmi', line 1, column 2: the byte 0xDC is not valid in the encoding "
            "'UTF-16BE'");
}

TEST(XmlDecoder, ADeclarationWithoutEndIsRefused) {
  EXPECT_EQ(
      decodeError("<?xml version='1.0'" + std::string(5000, ' ') + "?><a/>"),
      "[KYRSTD_F0017] File 'memory.xmi', line 1, column 1: the limit of 4096 bytes for one tag, comment "
      "or declaration is exceeded");
}

}  // namespace
