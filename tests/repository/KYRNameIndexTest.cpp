#include "repository/model/KYRNameIndex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRNote.h"

namespace {

std::unique_ptr<KYRNote> note(const std::string& name) {
  auto made = std::make_unique<KYRNote>();
  made->setName(name.c_str());
  return made;
}

TEST(KYRNameIndex, AgreesWithAMapOfListsOverManyChanges) {
  std::vector<std::unique_ptr<KYRNote>> objects;
  objects.reserve(600);
  for (int i = 0; i < 600; ++i) objects.push_back(note("n" + std::to_string(i / 3)));
  std::map<std::string, std::vector<const KYRObject*>> expected;
  std::vector<bool> isIn(objects.size());
  KYRNameIndex index;
  std::mt19937 random(5);
  for (int step = 0; step < 50000; ++step) {
    const std::size_t at = random() % objects.size();
    KYRNote* object = objects[at].get();
    auto& group = expected[object->getName().getCharacters()];
    if (isIn[at]) {
      index.remove(object);
      group.erase(std::find(group.begin(), group.end(), object));
    } else {
      index.add(object);
      group.push_back(object);
    }
    isIn[at] = !isIn[at];
    ASSERT_EQ(index.find(object->getName().view()), group.empty() ? nullptr : group.front());
  }
}

TEST(KYRNameIndex, TheConditionChoosesAmongThoseOfOneName) {
  const auto first = note("x");
  KYRClass second;
  second.setName("x");
  KYRNameIndex index;
  index.add(first.get());
  index.add(&second);
  const auto isOfType = [](const KYRObject& object, int type) { return object.getElementType() == type; };
  EXPECT_EQ(index.find("x", isOfType, KYRElementType::class_), &second);
  EXPECT_EQ(index.find("x", isOfType, KYRElementType::note), first.get());
  EXPECT_EQ(index.find("x", isOfType, KYRElementType::attribute), nullptr);
  EXPECT_EQ(index.find("y", isOfType, KYRElementType::class_), nullptr);
}

TEST(KYRNameIndex, ManyOfOneNameCostNoMoreThanManyNames) {
  constexpr std::size_t count = 100000;
  for (const bool isOneName : {true, false}) {
    std::vector<std::unique_ptr<KYRNote>> objects;
    KYRNameIndex index;
    for (std::size_t i = 0; i < count; ++i) {
      objects.push_back(note(isOneName ? "same" : std::to_string(i)));
      index.add(objects.back().get());
    }
    std::shuffle(objects.begin(), objects.end(), std::mt19937(1));
    for (const auto& object : objects) {
      ASSERT_NE(index.find(object->getName().view()), nullptr);
      index.remove(object.get());
    }
    EXPECT_EQ(index.find("same"), nullptr);
    EXPECT_LT(index.getProbeCount(), 6 * count);
  }
}

}  // namespace
