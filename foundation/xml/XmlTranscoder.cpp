// Tables are read off iconv itself, byte by byte, so both roads agree on every encoding.
#include "foundation/xml/XmlTranscoder.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t failed = static_cast<std::size_t>(-1);

// A conversion descriptor with its lifetime.
class Converter {
 public:
  explicit Converter(const std::string& name) : descriptor_(iconv_open("UTF-8", name.c_str())) {
    if (!isOpen() && errno == ENOMEM) throw std::bad_alloc();
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (isOpen()) iconv_close(descriptor_);
  }
  bool isOpen() const noexcept { return std::bit_cast<std::intptr_t>(descriptor_) != -1; }
  // iconv's own results: `failed` with errno, else the number of irreversible conversions.
  std::size_t convert(const char*& input, const char* inputEnd, char*& output, char* outputEnd) {
    auto inputLeft = static_cast<std::size_t>(inputEnd - input);
    auto outputLeft = static_cast<std::size_t>(outputEnd - output);
    char* from = const_cast<char*>(input);  // NOLINT(cppcoreguidelines-pro-type-const-cast): C interface
    const std::size_t result = iconv(descriptor_, &from, &inputLeft, &output, &outputLeft);
    input = from;
    return result;
  }
  std::size_t flush(char*& output, char* outputEnd) {
    auto outputLeft = static_cast<std::size_t>(outputEnd - output);
    return iconv(descriptor_, nullptr, nullptr, &output, &outputLeft);
  }

 private:
  iconv_t descriptor_;
};

class IconvTranscoder final : public XmlTranscoder {
 public:
  explicit IconvTranscoder(const std::string& name) : converter_(name) {}
  Stop convert(const char*& input, const char* inputEnd, char*& output, char* outputEnd) override {
    if (converter_.convert(input, inputEnd, output, outputEnd) != failed) return Stop::inputUsed;
    if (errno == E2BIG) return Stop::spaceUsed;
    return errno == EINVAL ? Stop::incomplete : Stop::invalid;
  }
  void finish(char*& output, char* outputEnd) override { converter_.flush(output, outputEnd); }

 private:
  Converter converter_;
};

struct Character {
  std::uint8_t length = 0;  // 0: the byte is none
  std::array<char, 4> utf8 = {};
};
using CharacterTable = std::array<Character, 256>;

bool isOneCharacter(const char* begin, const char* end) noexcept {
  int characters = 0;
  for (; begin != end; ++begin) characters += (static_cast<unsigned char>(*begin) & 0xC0U) != 0x80U ? 1 : 0;
  return characters == 1;
}

// Fills the table if every byte is either one character by itself or invalid.
bool readTable(const std::string& name, CharacterTable& table) {
  Converter converter(name);
  for (unsigned int byte = 0; byte < table.size(); ++byte) {
    const char source = static_cast<char>(byte);
    const char* input = &source;
    std::array<char, XmlTranscoder::minimumSpace> buffer = {};
    char* output = buffer.data();
    char* const outputEnd = output + buffer.size();
    const bool isValid = converter.convert(input, input + 1, output, outputEnd) != failed;
    if (!isValid && errno != EILSEQ) return false;  // it begins a longer character
    if (!isValid) continue;
    if (converter.flush(output, outputEnd) == failed || !isOneCharacter(buffer.data(), output)) return false;
    Character& entry = table[byte];
    entry.length = static_cast<std::uint8_t>(output - buffer.data());
    if (entry.length > entry.utf8.size()) return false;
    std::memcpy(entry.utf8.data(), buffer.data(), entry.length);
  }
  return true;
}

// Browsers and the tools that write windows-1252 take its undefined bytes for the control characters
// of the same number; iconv takes them for errors.
void defineControlCharacters(CharacterTable& table) {
  for (const unsigned int byte : {0x81U, 0x8DU, 0x8FU, 0x90U, 0x9DU}) {
    table[byte] = {2, {static_cast<char>(0xC2), static_cast<char>(byte)}};
  }
}

class TableTranscoder final : public XmlTranscoder {
 public:
  explicit TableTranscoder(const CharacterTable& table) : table_(table), hasAscii_(true) {
    for (unsigned int byte = 0; byte < 0x80; ++byte) {
      hasAscii_ = hasAscii_ && table[byte].length == 1 && table[byte].utf8[0] == static_cast<char>(byte);
    }
  }
  Stop convert(const char*& input, const char* inputEnd, char*& output, char* outputEnd) override {
    while (input != inputEnd) {
      if (hasAscii_) copyAscii(input, inputEnd, output, outputEnd);
      if (input == inputEnd) break;
      const Character& character = table_[static_cast<unsigned char>(*input)];
      if (character.length == 0) return Stop::invalid;
      if (outputEnd - output < character.length) return Stop::spaceUsed;
      std::memcpy(output, character.utf8.data(), character.length);
      output += character.length;
      ++input;
    }
    return Stop::inputUsed;
  }
  void finish(char*&, char*) override {}

 private:
  // Eight bytes at a time as long as none of them has its highest bit set.
  static void copyAscii(const char*& input, const char* inputEnd, char*& output, char* outputEnd) noexcept {
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::uint64_t word = 0;
    while (inputEnd - input >= 8 && outputEnd - output >= 8) {
      std::memcpy(&word, input, sizeof word);
      if ((word & highBits) != 0) return;
      std::memcpy(output, &word, sizeof word);
      input += sizeof word;
      output += sizeof word;
    }
  }

  CharacterTable table_;
  bool hasAscii_;
};

}  // namespace

XmlTranscoder::~XmlTranscoder() = default;

std::unique_ptr<XmlTranscoder> XmlTranscoder::open(const std::string& converterName) {
  std::string name = converterName;
  if (!Converter(name).isOpen()) {
    // Java calls ISO-8859-5 "ISO8859_5" and EUC-JP "EUC_JP".
    std::replace(name.begin(), name.end(), '_', '-');
    if (!Converter(name).isOpen()) return nullptr;
  }
  CharacterTable table;
  if (readTable(name, table)) {
    if (name == "CP1252") defineControlCharacters(table);
    return std::make_unique<TableTranscoder>(table);
  }
  return std::make_unique<IconvTranscoder>(name);
}
