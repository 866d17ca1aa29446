// kyr-expat-baseline: reads a file with expat and handlers that do nothing, and prints the seconds it
// took. This is the floor under every import, which has to do the same work first.
#include <expat.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

constexpr int blockSize = 1 << 20;

// What windows-1252 has in its second half's first 32 places. Places without a character keep the
// control character of the same number.
constexpr std::array<int, 32> windows1252 = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                             0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

void onStart(void*, const XML_Char*, const XML_Char**) {}
void onEnd(void*, const XML_Char*) {}
void onText(void*, const XML_Char*, int) {}

int onUnknownEncoding(void*, const XML_Char* name, XML_Encoding* encoding) {
  if (std::strcmp(name, "windows-1252") != 0) return XML_STATUS_ERROR;
  for (int i = 0; i < 256; ++i) encoding->map[i] = i;
  for (std::size_t i = 0; i < windows1252.size(); ++i) encoding->map[0x80 + i] = windows1252[i];
  encoding->data = nullptr;
  encoding->convert = nullptr;
  encoding->release = nullptr;
  return XML_STATUS_OK;
}

void parse(std::FILE* file, XML_Parser parser) {
  for (bool isLast = false; !isLast;) {
    void* block = XML_GetBuffer(parser, blockSize);
    if (!block) throw std::runtime_error("out of memory");
    const std::size_t size = std::fread(block, 1, blockSize, file);
    if (std::ferror(file)) throw std::runtime_error(std::strerror(errno));
    isLast = size < blockSize;
    if (XML_ParseBuffer(parser, static_cast<int>(size), isLast) != XML_STATUS_OK)
      throw std::runtime_error(std::string(XML_ErrorString(XML_GetErrorCode(parser))) + " at line " +
                               std::to_string(XML_GetCurrentLineNumber(parser)));
  }
}

double secondsToRead(const char* path) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path, "rb"), std::fclose);
  if (!file) throw std::runtime_error(std::strerror(errno));
  const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                       XML_ParserFree);
  XML_SetElementHandler(parser.get(), onStart, onEnd);
  XML_SetCharacterDataHandler(parser.get(), onText);
  XML_SetUnknownEncodingHandler(parser.get(), onUnknownEncoding, nullptr);
  const auto start = std::chrono::steady_clock::now();
  parse(file.get(), parser.get());
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: kyr-expat-baseline FILE\n");
    return 2;
  }
  try {
    std::printf("%.6f\n", secondsToRead(argv[1]));
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kyr-expat-baseline: %s: %s\n", argv[1], error.what());
    return 1;
  }
}
