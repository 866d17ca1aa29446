// Tables of marks and names, and a reader of just as much of the XML declaration as is needed.
#include "foundation/xml/XmlEncoding.h"

#include <algorithm>
#include <array>
#include <memory>

#include "foundation/xml/XmlLimits.h"
#include "foundation/xml/XmlTranscoder.h"

using namespace std::string_view_literals;

namespace {

std::string& forcedEncoding() noexcept {
  static std::string name;
  return name;
}

struct Signature {
  std::string_view bytes;
  const char* converterName;
};

// The longer marks first: the mark of UTF-32LE begins with that of UTF-16LE.
constexpr std::array<Signature, 5> byteOrderMarks = {{
    {"\x00\x00\xFE\xFF"sv, "UTF-32BE"},
    {"\xFF\xFE\x00\x00"sv, "UTF-32LE"},
    {"\xEF\xBB\xBF"sv, "UTF-8"},
    {"\xFE\xFF"sv, "UTF-16BE"},
    {"\xFF\xFE"sv, "UTF-16LE"},
}};

// Names that iconv does not know, or takes for a smaller set than the one that tools mean by them.
struct Alias {
  std::string_view name;  // in capitals
  const char* converterName;
};
constexpr std::array<Alias, 30> aliases = {{
    {"UTF-8", "UTF-8"},
    {"UTF8", "UTF-8"},
    {"UTF_8", "UTF-8"},
    {"CSUTF8", "UTF-8"},
    {"WINDOWS-1252", "CP1252"},
    {"WINDOWS_1252", "CP1252"},
    {"CP1252", "CP1252"},
    {"MS-ANSI", "CP1252"},
    {"SHIFT_JIS", "CP932"},
    {"SHIFT-JIS", "CP932"},
    {"SJIS", "CP932"},
    {"MS_KANJI", "CP932"},
    {"CSSHIFTJIS", "CP932"},
    {"WINDOWS-31J", "CP932"},
    {"CSWINDOWS31J", "CP932"},
    {"GB2312", "GBK"},
    {"GB_2312-80", "GBK"},
    {"CSGB2312", "GBK"},
    {"EUC-CN", "GBK"},
    {"KS_C_5601", "CP949"},
    {"KS_C_5601-1987", "CP949"},
    {"KS_C_5601-1989", "CP949"},
    {"KSC_5601", "CP949"},
    {"KSC5601", "CP949"},
    {"CSKSC56011987", "CP949"},
    {"WINDOWS-949", "CP949"},
    {"MAC-ROMAN", "MACINTOSH"},
    // Forms of text in the memory of the C library; no file is written in them.
    {"INTERNAL", ""},
    {"WCHAR_T", ""},
    {"CHAR", ""},
}};

constexpr std::string_view declarationStart = "<?xml";
constexpr std::string_view ebcdicStart = "\x4C\x6F\xA7\x94\x93"sv;  // the same in EBCDIC
constexpr const char* ebcdicName = "IBM037";  // any EBCDIC serves: they agree in what a declaration needs
constexpr std::string_view whiteSpace = " \t\r\n";

// XML 1.0, production 81; nothing else ever reaches iconv, which reads "/" and the empty name in its
// own way.
bool isEncodingName(std::string_view name) noexcept {
  const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  const auto isRest = [&](char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || c == '.' || c == '_' || c == '-';
  };
  return !name.empty() && isLetter(name.front()) && std::all_of(name.begin(), name.end(), isRest);
}

std::string toConverterName(std::string_view name) {
  if (!isEncodingName(name)) return {};
  std::string capitals(name);
  for (char& c : capitals) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  if (capitals.size() > 2 && capitals.starts_with("X-")) capitals.erase(0, 2);  // names never registered
  const auto found = std::find_if(aliases.begin(), aliases.end(),
                                  [&](const Alias& alias) { return alias.name == capitals; });
  return found == aliases.end() ? capitals : found->converterName;
}

bool isUtf16Name(std::string_view converterName) noexcept {
  return converterName == "UTF-16" || converterName == "UCS-2" || converterName == "ISO-10646-UCS-2";
}

// The encoding that the first bytes betray; null when they look like ASCII, or like nothing known.
const char* guessFromFirstBytes(std::string_view head) noexcept {
  if (head.starts_with("\x00\x00\x00\x3C"sv)) return "UTF-32BE";
  if (head.starts_with("\x3C\x00\x00\x00"sv)) return "UTF-32LE";
  if (head.size() < 2) return nullptr;
  if (head[0] == '\0' && head[1] != '\0') return "UTF-16BE";
  if (head[0] != '\0' && head[1] == '\0') return "UTF-16LE";
  return nullptr;
}

std::string decodeEbcdic(std::string_view head) {
  const std::unique_ptr<XmlTranscoder> transcoder = XmlTranscoder::open(ebcdicName);
  std::string text(head.size() * 4, '\0');
  if (!transcoder) return {};
  const char* input = head.data();
  char* output = text.data();
  transcoder->convert(input, input + head.size(), output, text.data() + text.size());
  text.resize(static_cast<std::size_t>(output - text.data()));
  return text;
}

bool startsDeclaration(std::string_view text) noexcept {
  return text.starts_with(declarationStart) && text.size() > declarationStart.size() &&
         whiteSpace.find(text[declarationStart.size()]) != std::string_view::npos;
}

// Reads name="value" pairs off the declaration and gives the value of "encoding": a view of `text`,
// null data when there is none. What is not well-formed here the tokenizer reports.
std::string_view findDeclaredName(std::string_view text) noexcept {
  if (!startsDeclaration(text)) return {};
  std::string_view rest = text.substr(declarationStart.size(), text.find("?>") - declarationStart.size());
  const auto skip = [&rest] {
    rest.remove_prefix(std::min(rest.find_first_not_of(whiteSpace), rest.size()));
  };
  for (;;) {
    skip();
    const std::string_view name = rest.substr(0, rest.find_first_of(" \t\r\n="));
    rest.remove_prefix(name.size());
    skip();
    if (name.empty() || !rest.starts_with('=')) return {};
    rest.remove_prefix(1);
    skip();
    if (!rest.starts_with('"') && !rest.starts_with('\'')) return {};
    const std::size_t end = rest.find(rest.front(), 1);
    if (end == std::string_view::npos) return {};
    if (name == "encoding") return rest.substr(1, end - 1);
    rest.remove_prefix(end + 1);
  }
}

XmlEncoding readDeclaration(std::string_view text) {
  XmlEncoding encoding;
  const std::string_view name = findDeclaredName(text);
  if (name.data() == nullptr) {
    encoding.name = encoding.converterName = "UTF-8";
    return encoding;
  }
  encoding.name = name;
  encoding.converterName = toConverterName(name);
  encoding.isDeclared = true;
  encoding.position.advance(text.substr(0, static_cast<std::size_t>(name.data() - text.data())));
  return encoding;
}

XmlEncoding useForced(std::string_view head, std::string_view forcedName) {
  XmlEncoding encoding;
  encoding.name = forcedName;
  encoding.converterName = toConverterName(forcedName);
  if (isUtf16Name(encoding.converterName)) {
    const char* const guess = guessFromFirstBytes(head);
    const bool isLittle = head.starts_with("\xFF\xFE") || (guess != nullptr && guess == "UTF-16LE"sv);
    encoding.converterName = isLittle ? "UTF-16LE" : "UTF-16BE";
  }
  for (const Signature& mark : byteOrderMarks) {
    if (encoding.converterName == mark.converterName && head.starts_with(mark.bytes)) {
      encoding.markLength = mark.bytes.size();
    }
  }
  return encoding;
}

}  // namespace

XmlEncoding XmlEncoding::detect(std::string_view head, std::string_view forcedName) {
  if (!forcedName.empty()) return useForced(head, forcedName);
  XmlEncoding encoding;
  for (const Signature& mark : byteOrderMarks) {
    if (!head.starts_with(mark.bytes)) continue;
    encoding.name = encoding.converterName = mark.converterName;
    encoding.markLength = mark.bytes.size();
    return encoding;
  }
  if (const char* const guess = guessFromFirstBytes(head)) {
    encoding.name = encoding.converterName = guess;
    return encoding;
  }
  return readDeclaration(head.starts_with(ebcdicStart) ? decodeEbcdic(head) : head);
}

bool XmlEncoding::isHeadComplete(std::string_view head) noexcept {
  const bool isEbcdic = head.starts_with(ebcdicStart.substr(0, 1));
  const std::string_view start = isEbcdic ? ebcdicStart : declarationStart;
  if (head.size() <= start.size()) return head.size() >= 4 && !start.starts_with(head);
  if (!isEbcdic && !startsDeclaration(head)) return true;
  return !head.starts_with(start) || head.find(isEbcdic ? "\x6F\x6E"sv : "?>"sv) != std::string_view::npos;
}

const std::string& getForcedXmlEncoding() noexcept { return forcedEncoding(); }

void forceXmlEncoding(const char* name) { forcedEncoding() = name == nullptr ? "" : name; }
