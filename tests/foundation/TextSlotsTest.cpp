// TextSlots: what was entered is found, whatever else was, and no choice of texts makes for long walks.
#include "foundation/TextSlots.h"

#include <gtest/gtest.h>

#include <map>
#include <new>
#include <random>
#include <string>
#include <vector>

#include "tests/foundation/AllocationProbe.h"

namespace {

constexpr std::uint64_t seed = 7;

// A set of texts that borrow their characters.
class TextSet {
 public:
  bool contains(std::string_view text) const {
    return isTaken(slots_.seek(hashOf(text), [text](const Slot& slot) { return slot.text == text; }));
  }
  void add(std::string_view text) {
    const std::uint32_t hash = hashOf(text);
    Slot& place = slots_.seek(hash, [text](const Slot& slot) { return slot.text == text; });
    if (!isTaken(place)) slots_.claim(place, hash) = {hash, State::taken, text};
  }
  void remove(std::string_view text) {
    Slot& slot = slots_.seek(hashOf(text), [text](const Slot& other) { return other.text == text; });
    if (isTaken(slot)) slot.state = State::gone;
  }
  bool isGuessed(std::string_view text) const {
    const auto* const slot = slots_.guess(hashOf(text));
    return slot != nullptr && slot->text == text;
  }
  std::size_t getCount() const {
    std::size_t count = 0;
    slots_.forEach([&count](const auto&) { ++count; });
    return count;
  }
  std::size_t getSlotCount() const { return slots_.getCount(); }
  std::uint64_t getProbeCount() const { return slots_.getProbeCount(); }

 private:
  enum class State { free, gone, taken };
  struct Slot {
    std::uint32_t hash = 0;
    State state = State::free;
    std::string_view text;
    bool isFree() const { return state == State::free; }
    bool isGone() const { return state == State::gone; }
  };
  static bool isTaken(const Slot& slot) { return slot.state == State::taken; }
  static std::uint32_t hashOf(std::string_view text) { return TextSlots<Slot>::hashOf(text, seed); }

  TextSlots<Slot> slots_{16};
};

TEST(TextSlots, AgreesWithAMapOverManyChanges) {
  std::vector<std::string> texts{"", "a", "ab"};
  for (int i = 0; i < 400; ++i) texts.push_back("n" + std::to_string(i));
  std::map<std::string_view, bool> expected;
  TextSet set;
  std::mt19937 random(5);
  std::size_t count = 0;
  for (int step = 0; step < 50000; ++step) {
    const std::string_view text = texts[random() % texts.size()];
    bool& isIn = expected[text];
    ASSERT_EQ(set.contains(text), isIn);
    isIn ? set.remove(text) : set.add(text);
    isIn = !isIn;
    count += isIn ? 1 : std::size_t{0} - 1;
  }
  EXPECT_EQ(set.getCount(), count);
  EXPECT_LE(set.getSlotCount(), 2048U);  // slots that were left are used again
}

TEST(TextSlots, GuessesAreRightUnlessTheGroupIsFull) {
  TextSet set;
  std::vector<std::string> texts;
  texts.reserve(1000);
  for (int i = 0; i < 1000; ++i) texts.push_back("Class" + std::to_string(i));
  for (const std::string& text : texts) set.add(text);
  int right = 0;
  for (const std::string& text : texts) right += set.isGuessed(text) ? 1 : 0;
  EXPECT_GT(right, 800);
  ASSERT_TRUE(set.isGuessed(texts[0]));
  set.remove(texts[0]);
  EXPECT_FALSE(set.isGuessed(texts[0]));
  EXPECT_FALSE(TextSet().isGuessed(texts[0]));
}

TEST(TextSlots, WithoutMemoryToGrowNothingIsLost) {
  TextSet set;
  std::vector<std::string> texts;
  texts.reserve(11);
  for (int i = 0; i < 11; ++i) texts.push_back("n" + std::to_string(i));
  for (std::size_t i = 0; i < 10; ++i) set.add(texts[i]);
  {
    const AllocationFailure failure(0);
    EXPECT_THROW(set.add(texts[10]), std::bad_alloc);
  }
  for (std::size_t i = 0; i < 10; ++i) EXPECT_TRUE(set.contains(texts[i]));
  EXPECT_FALSE(set.contains(texts[10]));
  set.add(texts[10]);
  EXPECT_TRUE(set.contains(texts[10]));
}

using Texts = std::vector<std::string>;

Texts counted(const std::string& before, const std::string& behind) {
  Texts texts;
  texts.reserve(200000);
  for (int i = 0; i < 200000; ++i) {
    texts.push_back(before);
    texts.back().append(std::to_string(i)).append(behind);
  }
  return texts;
}

// All pairs of those characters behind each of some prefixes.
Texts paired(unsigned int first, unsigned int last) {
  Texts texts;
  for (int prefix = 0; texts.size() < 200000; ++prefix) {
    for (unsigned int one = first; one <= last; ++one) {
      for (unsigned int other = first; other <= last; ++other) {
        texts.push_back("p" + std::to_string(prefix) + static_cast<char>(one) + static_cast<char>(other));
      }
    }
  }
  return texts;
}

Texts withEqualNeighbours() {
  Texts texts;
  for (int i = 0; texts.size() < 200000; ++i) {
    for (const char one : {'!', '1', 'A', 'Q', 'a', 'q'}) {
      for (const char other : {'!', '1', 'A', 'Q', 'a', 'q'})
        texts.push_back(std::to_string(i) + one + other);
    }
  }
  return texts;
}

TEST(TextSlots, NoTextsMakeForLongWalks) {
  const std::map<std::string, Texts> kinds{
      {"counted", counted("c", "")},          {"counted in the middle", counted("EAID_", "_0")},
      {"lower-case pairs", paired('a', 'z')}, {"printable pairs", paired(0x21, 0x7E)},
      {"all pairs", paired(0x80, 0xFF)},      {"equal neighbours", withEqualNeighbours()}};
  for (const auto& [kind, texts] : kinds) {
    TextSet set;
    for (const std::string& text : texts) set.add(text);
    for (const std::string& text : texts) ASSERT_TRUE(set.contains(text)) << kind;
    EXPECT_LT(set.getProbeCount(), 6 * texts.size()) << kind;
    EXPECT_LT(set.getSlotCount(), 4 * texts.size()) << kind;
  }
}

}  // namespace
