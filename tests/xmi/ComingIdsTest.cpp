// ComingIds: whatever was told ahead, an id has its own hash.
#include "xmi/ComingIds.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// As many as a large file tells ahead in all, so that each place serves many of them.
class ComingIdsTest : public testing::Test {
 protected:
  static constexpr int count = 5000;
  ComingIdsTest() {
    for (int i = 0; i < count; ++i) texts_.emplace_back(("id-" + std::to_string(i)).c_str());
  }
  std::vector<KYRString> texts_;
  IdTable ids_;
  ComingIds coming_{ids_};
};

TEST_F(ComingIdsTest, TheHashIsTheIdsOwnExpectedOrNot) {
  for (int at = 0; at < count; ++at) {
    if (at % 3 != 0) coming_.expect(texts_[static_cast<std::size_t>(at)]);
    for (int back = 0; back <= at && back < 100; back += 7) {
      const KYRString& id = texts_[static_cast<std::size_t>(at - back)];
      ASSERT_EQ(coming_.hashOf(id), IdTable::hashOf(id)) << id.view();
    }
  }
}

TEST_F(ComingIdsTest, IdsAreFoundUnderTheNumberThatTheyHave) {
  std::vector<IdTable::Number> numbers;
  for (const KYRString& id : texts_) {
    coming_.expect(id);
    numbers.push_back(ids_.intern(id, coming_.hashOf(id)));
  }
  for (std::size_t at = 0; at < texts_.size(); ++at) {
    coming_.expect(texts_[at]);
    EXPECT_EQ(ids_.intern(texts_[at], IdTable::hashOf(texts_[at])), numbers[at]);
    EXPECT_EQ(ids_.getText(numbers[at]).view(), texts_[at].view());
  }
}

TEST_F(ComingIdsTest, ExpectedIdsAreHashedOnce) {
  constexpr std::size_t ahead = 12;
  for (std::size_t at = 0; at < texts_.size(); ++at) {
    coming_.expect(texts_[at]);
    if (at >= ahead) coming_.hashOf(texts_[at - ahead]);
  }
  EXPECT_LT(coming_.getComputedCount(), texts_.size() / 5);
  coming_.hashOf(texts_.back());
  const std::uint64_t before = coming_.getComputedCount();
  coming_.hashOf(texts_.back());
  EXPECT_EQ(coming_.getComputedCount(), before);
  coming_.forget();
  coming_.hashOf(texts_.back());
  EXPECT_EQ(coming_.getComputedCount(), before + 1);
}

TEST_F(ComingIdsTest, TheEmptyIdIsNoId) {
  coming_.expect(KYRString());
  EXPECT_EQ(ids_.intern(KYRString(), coming_.hashOf(KYRString())), IdTable::emptyId);
}

}  // namespace
