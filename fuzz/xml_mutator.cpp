// The mutator of the fuzzers that are fed XML: most of the time it changes one thing of a file and keeps
// the file well-formed, so that the deeper layers are reached; the rest is left to libFuzzer.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>

#include "fuzz/Vocabulary.h"
#include "fuzz/XmlPieces.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

class XmlMutator {
 public:
  XmlMutator(std::string_view text, unsigned int seed) : text_(text), pieces_(text), random_(seed) {}

  std::string mutate() {
    if (pieces_.elements.empty()) return {};
    switch (below(11)) {
      case 0:
        return withReplaced(text_, anElement().whole, "");
      case 1: {
        const TextSpan span = anElement().whole;
        return withCopyAt(text_, span, span.end);
      }
      case 2:
        return move();
      case 3:
        return withCopyAt(text_, anElement().whole, anElement().whole.begin);
      case 4:
        return rename();
      case 5:
        return addAttribute();
      case 6:
        return withValue("");
      case 7:  // a reference to something else
        return withValue(std::string(anAttribute().value.of(text_)));
      case 8:
        return withValue(anyOf(Vocabulary::get().values));
      case 9:
        return withType();
      default:
        return withAttributeName();
    }
  }

 private:
  std::size_t below(std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
  }
  const std::string& anyOf(const std::vector<std::string>& words) { return words[below(words.size())]; }
  const XmlPieces::Element& anElement() { return pieces_.elements[below(pieces_.elements.size())]; }
  XmlPieces::Attribute anAttribute() {
    if (pieces_.attributes.empty()) return {};
    return pieces_.attributes[below(pieces_.attributes.size())];
  }

  std::string move() {
    const TextSpan span = anElement().whole;
    const std::size_t place = anElement().whole.begin;
    if (place > span.begin && place < span.end) return {};
    return withMoved(text_, span, place);
  }

  // Start and end tag both, when there are two.
  std::string rename() {
    const XmlPieces::Element element = anElement();
    const std::string& tag = anyOf(Vocabulary::get().tags);
    const std::string end = "</" + std::string(element.tag.of(text_)) + ">";
    std::string whole(element.whole.of(text_));
    if (whole.size() > end.size() && whole.ends_with(end)) {
      whole.replace(whole.size() - end.size(), end.size(), "</" + tag + ">");
    }
    whole.replace(1, element.tag.size(), tag);
    return withReplaced(text_, element.whole, whole);
  }

  std::string addAttribute() {
    const std::size_t place = anElement().tag.end;
    const std::string& name = anyOf(Vocabulary::get().attributes);
    const std::string value(anAttribute().value.of(text_));
    const char quote = value.find('"') == std::string::npos ? '"' : '\'';
    return withReplaced(text_, {place, place}, " " + name + "=" + quote + value + quote);
  }

  std::string withValue(const std::string& value) {
    if (pieces_.attributes.empty()) return {};
    return withReplaced(text_, anAttribute().value, value);
  }

  std::string withType() {
    for (int tries = 0; tries < 20; ++tries) {
      const XmlPieces::Attribute attribute = anAttribute();
      if (attribute.name.of(text_) != "xmi:type") continue;
      return withReplaced(text_, attribute.value, anyOf(Vocabulary::get().types));
    }
    return {};
  }

  std::string withAttributeName() {
    if (pieces_.attributes.empty()) return {};
    return withReplaced(text_, anAttribute().name, anyOf(Vocabulary::get().attributes));
  }

  std::string_view text_;
  XmlPieces pieces_;
  std::mt19937 random_;
};

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
  constexpr unsigned int oneIn = 4;  // is left to libFuzzer
  if (seed % oneIn != 0) {
    const std::string result = XmlMutator({reinterpret_cast<const char*>(data), size}, seed / oneIn).mutate();
    if (!result.empty() && result.size() <= maxSize) {
      std::memcpy(data, result.data(), result.size());
      return result.size();
    }
  }
  return LLVMFuzzerMutate(data, size, maxSize);
}
