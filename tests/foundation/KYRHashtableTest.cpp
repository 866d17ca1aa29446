// KYRHashtable: order, equal keys, growth, removals, and what happens when something raises.
#include "foundation/KYRHashtable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundation/KYRString.h"
#include "tests/foundation/AllocationProbe.h"

namespace {

struct Item {
  explicit Item(const KYRString& text) : id(text) {}
  KYRString id;
};

// Items by id. An item without an id differs from everything, itself included.
class ItemTable : public KYRHashtable {
 public:
  explicit ItemTable(int bucketCount = 0, Hashing hashing = Hashing::atAdd)
      : KYRHashtable(bucketCount, hashing) {}
  int compare2Object(const void* first, const void* second) const override {
    return compare2Key(first, &item(second)->id);
  }
  int compare2Key(const void* object, const void* key) const override {
    step();
    const auto& id = *static_cast<const KYRString*>(key);
    return item(object)->id == id && !id.isEmpty() ? 0 : 1;
  }
  unsigned int hashObject(const void* object) const override { return hashKey(&item(object)->id); }
  unsigned int hashKey(const void* key) const override {
    step();
    const auto& id = *static_cast<const KYRString*>(key);
    return allMeet ? 7 : id.hashCode();
  }

  const Item* find(const KYRString& id) const { return item(findFirst(&id, nullptr)); }
  static const Item* item(const void* object) { return static_cast<const Item*>(object); }

  mutable std::uint64_t calls = 0;             // of comparing and hashing
  mutable std::int64_t callsBeforeRaise = -1;  // -1: never
  bool allMeet = false;                        // every key has one hash

 private:
  void step() const {
    ++calls;
    if (callsBeforeRaise >= 0 && callsBeforeRaise-- == 0) throw std::runtime_error("no key");
  }
};

std::vector<const void*> contentOf(const KYRHashtable& table) {
  std::vector<const void*> content;
  KYRContainer::Iterator* const iterator = table.newIterator(true);
  for (; iterator->get() != nullptr; iterator->next()) content.push_back(iterator->get());
  table.deleteIterator(iterator);
  EXPECT_EQ(content.size(), table.getCount());
  return content;
}

std::vector<const void*> contentByPosition(const KYRHashtable& table) {
  std::vector<const void*> content;
  for (unsigned int slot = 0; slot < table.getSlotCount(); ++slot) {
    if (table.getAt(slot) != nullptr) content.push_back(table.getAt(slot));
  }
  return content;
}

class KYRHashtableTest : public testing::Test {
 protected:
  const Item* make(const KYRString& id) { return &items_.emplace_back(id); }
  const Item* make(int number) { return make(KYRString("id") + KYRString(number)); }
  // Adds `count` items of different ids and returns them.
  std::vector<const void*> fill(KYRHashtable& table, int count) {
    std::vector<const void*> added;
    for (int i = 0; i < count; ++i) {
      added.push_back(make(i));
      table.add(added.back(), false, nullptr);
    }
    return added;
  }
  std::deque<Item> items_;
};

TEST_F(KYRHashtableTest, FindFirstOnAnEmptyTableGivesNull) {
  ItemTable table;
  EXPECT_EQ(table.find("id"), nullptr);
  EXPECT_EQ(table.getCount(), 0U);
  EXPECT_EQ(table.getSlotCount(), 0U);
  EXPECT_EQ(table.getAt(0), nullptr);
  const KYRString key("id");
  EXPECT_EQ(table.getFirstSlot(&key), KYRHashtable::noSlot);
  EXPECT_EQ(table.getNextEqualSlot(KYRHashtable::noSlot), KYRHashtable::noSlot);
  EXPECT_EQ(table.removeKey(&key), nullptr);
  EXPECT_FALSE(table.removeObject(make("id")));
}

TEST_F(KYRHashtableTest, AUniqueAddRefusesASecondObjectOfTheKeyAndTheCallerKeepsIt) {
  ItemTable table;
  const Item* const first = make("a");
  const Item* const second = make("a");
  EXPECT_TRUE(table.add(first, true, nullptr));
  EXPECT_FALSE(table.add(second, true, nullptr));
  EXPECT_EQ(table.getCount(), 1U);
  EXPECT_EQ(table.find("a"), first);
  EXPECT_TRUE(table.contains(second, nullptr));  // an equal one is there
  EXPECT_EQ(second->id, KYRString("a"));
}

TEST_F(KYRHashtableTest, WithoutUniqueEqualKeysAreAllKeptAndTheFirstIsFound) {
  ItemTable table;
  const Item* const first = make("a");
  const Item* const second = make("a");
  const Item* const other = make("b");
  for (const Item* each : {first, other, second, first}) EXPECT_TRUE(table.add(each, false, nullptr));
  EXPECT_EQ(contentOf(table), (std::vector<const void*>{first, other, second, first}));
  EXPECT_EQ(table.find("a"), first);
}

TEST_F(KYRHashtableTest, NullIsRefused) {
  ItemTable table;
  EXPECT_FALSE(table.add(nullptr, false, nullptr));
  EXPECT_FALSE(table.contains(nullptr, nullptr));
  EXPECT_FALSE(table.removeObject(nullptr));
}

TEST_F(KYRHashtableTest, ATableOfItsOwnGoesByAddress) {
  KYRHashtable table(0);
  const Item* const first = make("a");
  const Item* const second = make("a");
  EXPECT_TRUE(table.add(first, true, nullptr));
  EXPECT_TRUE(table.add(second, true, nullptr));
  EXPECT_FALSE(table.add(first, true, nullptr));
  EXPECT_EQ(table.findFirst(second, nullptr), second);
  EXPECT_EQ(table.findFirst(make("a"), nullptr), nullptr);
}

TEST_F(KYRHashtableTest, GrowthKeepsOrderAndFindsEverything) {
  for (const int bucketCount : {-1, 0, 1, 7, 1000}) {
    ItemTable table(bucketCount);
    const auto added = fill(table, 3000);
    EXPECT_EQ(contentOf(table), added);
    EXPECT_EQ(contentByPosition(table), added);
    EXPECT_GE(table.getBucketCount(), table.getCount());
    for (const void* each : added) ASSERT_EQ(table.find(ItemTable::item(each)->id), each);
  }
}

TEST_F(KYRHashtableTest, AWalkByPositionMayAddOnTheWay) {
  ItemTable table;
  fill(table, 1);
  for (unsigned int slot = 0; slot < table.getSlotCount() && slot < 500; ++slot) {
    table.add(make(static_cast<int>(slot) + 1), true, nullptr);
  }
  EXPECT_EQ(table.getCount(), 501U);
}

TEST_F(KYRHashtableTest, ResizeKeepsOrderAndNeverGoesBelowTheContent) {
  ItemTable table;
  const auto added = fill(table, 100);
  for (const int bucketCount : {5000, 1, 0, -3, 300}) {
    table.resize(bucketCount);
    EXPECT_GE(table.getBucketCount(), static_cast<unsigned int>(std::max(bucketCount, 100)));
    EXPECT_EQ(contentOf(table), added);
    for (const void* each : added) ASSERT_EQ(table.find(ItemTable::item(each)->id), each);
  }
}

TEST_F(KYRHashtableTest, RemovalsKeepTheOrderOfTheOthers) {
  ItemTable table;
  auto rest = fill(table, 1000);
  for (std::size_t at = 0; at < rest.size(); at += 2) {
    ASSERT_EQ(table.removeKey(&ItemTable::item(rest[at])->id), rest[at]);
    ASSERT_EQ(table.find(ItemTable::item(rest[at])->id), nullptr);
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(at));
  }
  while (rest.size() > 10) {
    ASSERT_TRUE(table.removeObject(rest[rest.size() / 2]));
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(rest.size() / 2));
  }
  EXPECT_EQ(contentOf(table), rest);
  EXPECT_LE(table.getSlotCount(), 2 * table.getCount());  // gaps never outnumber the objects
  for (const void* each : rest) EXPECT_EQ(table.find(ItemTable::item(each)->id), each);
  const Item* const again = make(0);
  EXPECT_TRUE(table.add(again, true, nullptr));
  rest.push_back(again);
  EXPECT_EQ(contentOf(table), rest);
}

TEST_F(KYRHashtableTest, RemovingThroughAnIteratorMovesNoOtherEntry) {
  ItemTable table;
  const auto added = fill(table, 100);
  std::vector<const void*> kept;
  KYRContainer::Iterator* const iterator = table.newIterator(true);
  for (bool removes = true; iterator->get() != nullptr; removes = !removes) {
    if (removes) {
      table.remove(iterator);
    } else {
      kept.push_back(iterator->get());
      iterator->next();
    }
  }
  table.deleteIterator(iterator);
  EXPECT_EQ(kept.size(), 50U);
  EXPECT_EQ(table.getSlotCount(), 100U);
  EXPECT_EQ(table.getAt(0), nullptr);
  EXPECT_EQ(table.getAt(1), added[1]);
  EXPECT_EQ(contentOf(table), kept);
}

TEST_F(KYRHashtableTest, TheFirstAddedAmongEqualsChangesAsTheyGo) {
  ItemTable table;
  std::vector<const Item*> equals;
  for (int i = 0; i < 5; ++i) equals.push_back(make("same"));
  for (const Item* each : equals) table.add(each, false, nullptr);
  fill(table, 200);
  const KYRString key("same");
  EXPECT_EQ(table.find(key), equals[0]);
  EXPECT_TRUE(table.removeObject(equals[2]));
  EXPECT_FALSE(table.removeObject(equals[2]));
  EXPECT_EQ(table.removeKey(&key), equals[0]);
  EXPECT_EQ(table.find(key), equals[1]);
  EXPECT_TRUE(table.removeObject(equals[4]));
  const Item* const late = make(key);
  table.add(late, false, nullptr);
  EXPECT_EQ(table.removeKey(&key), equals[1]);
  EXPECT_EQ(table.removeKey(&key), equals[3]);
  EXPECT_EQ(table.removeKey(&key), late);
  EXPECT_EQ(table.removeKey(&key), nullptr);
  EXPECT_EQ(table.getCount(), 200U);
}

TEST_F(KYRHashtableTest, EqualsAreWalkedByPositionInOrderOfAdding) {
  ItemTable table;
  std::vector<const void*> equals;
  for (int i = 0; i < 30; ++i) {
    equals.push_back(make("same"));
    table.add(equals.back(), false, nullptr);
    table.add(make(i), false, nullptr);
  }
  table.removeObject(equals[7]);
  equals.erase(equals.begin() + 7);
  const KYRString key("same");
  std::vector<const void*> walked;
  for (unsigned int slot = table.getFirstSlot(&key); slot != KYRHashtable::noSlot;
       slot = table.getNextEqualSlot(slot)) {
    walked.push_back(table.getAt(slot));
  }
  EXPECT_EQ(walked, equals);
}

TEST_F(KYRHashtableTest, FiftyThousandEqualKeysCostLinearCalls) {
  ItemTable table;
  constexpr std::uint64_t count = 50000;
  for (std::uint64_t i = 0; i < count; ++i) table.add(make("same"), false, nullptr);
  EXPECT_LE(table.calls, 3 * count);  // a hash, the object with itself, the object with the first
  table.calls = 0;
  EXPECT_EQ(table.find("same"), &items_.front());
  EXPECT_LE(table.calls, 2U);
  table.calls = 0;
  std::vector<const void*> order = contentOf(table);
  std::shuffle(order.begin(), order.end(), std::mt19937(1));
  for (const void* each : order) ASSERT_TRUE(table.removeObject(each));
  EXPECT_LE(table.calls, 2 * count);
  EXPECT_EQ(table.getCount(), 0U);
}

TEST_F(KYRHashtableTest, FiftyThousandObjectsThatDifferFromThemselvesCostLinearCalls) {
  ItemTable table;
  constexpr std::uint64_t count = 50000;
  for (std::uint64_t i = 0; i < count; ++i) ASSERT_TRUE(table.add(make(""), true, nullptr));
  EXPECT_LE(table.calls, 2 * count);
  EXPECT_EQ(table.getCount(), count);
  EXPECT_EQ(table.find(""), nullptr);
  EXPECT_FALSE(table.contains(&items_.front(), nullptr));
  EXPECT_EQ(contentOf(table).front(), &items_.front());
}

TEST_F(KYRHashtableTest, AnObjectThatNoKeyFindsCanStillBeRemoved) {
  ItemTable table;
  std::vector<const void*> rest;
  for (int i = 0; i < 20; ++i) rest.push_back(make(""));
  for (const void* each : rest) table.add(each, true, nullptr);
  for (const std::size_t at : {19U, 0U, 9U}) {
    EXPECT_TRUE(table.removeObject(rest[at]));
    EXPECT_FALSE(table.removeObject(rest[at]));
    rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(at));
  }
  EXPECT_EQ(contentOf(table), rest);
}

TEST_F(KYRHashtableTest, AnEmptiedTableKnowsNothingOfItsFormerContent) {
  ItemTable table;
  std::vector<const void*> former;
  for (int i = 0; i < 20; ++i) former.push_back(make(""));
  for (const void* each : former) table.add(each, true, nullptr);
  table.removeObject(former[10]);  // makes the index by address
  table.removeObject(former[0]);   // moves the begin of walks
  table.empty();
  EXPECT_FALSE(table.removeObject(former[5]));
  const auto added = fill(table, 20);
  EXPECT_EQ(contentOf(table), added);
  EXPECT_FALSE(table.removeObject(former[5]));
  EXPECT_TRUE(table.removeObject(added[5]));
}

TEST_F(KYRHashtableTest, IdsWithALongCommonPrefixSpreadOverTheBuckets) {
  for (const char* prefix : {"", "_17_0_2_3_f7102b3_1371654987000_", "EAID_4A1B2C3D_5E6F_4a7b_8C9D_"}) {
    ItemTable table;
    constexpr std::uint64_t count = 50000;
    for (std::uint64_t i = 0; i < count; ++i) {
      table.add(make(KYRString(prefix) + KYRString(static_cast<int>(i))), true, nullptr);
    }
    // Entries are compared only when their whole hashes meet, so nearly every call is the hash or the
    // comparison of the object with itself.
    EXPECT_LT(table.calls, 2 * count + count / 100) << prefix;
    table.calls = 0;
    for (const Item& item : items_) ASSERT_NE(table.find(item.id), nullptr);
    EXPECT_LT(table.calls, 2 * count + count / 100) << prefix;
    items_.clear();
  }
}

TEST_F(KYRHashtableTest, KeysOfOneHashAreToldApart) {
  ItemTable table;
  table.allMeet = true;
  const auto added = fill(table, 100);
  for (const void* each : added) EXPECT_EQ(table.find(ItemTable::item(each)->id), each);
  EXPECT_FALSE(table.add(make(50), true, nullptr));
  EXPECT_TRUE(table.removeObject(added[50]));
  EXPECT_EQ(table.find(ItemTable::item(added[50])->id), nullptr);
  EXPECT_EQ(table.find(ItemTable::item(added[99])->id), added[99]);
}

TEST_F(KYRHashtableTest, CopiesShareTheObjectsAndAreIndependentTables) {
  ItemTable table;
  const auto added = fill(table, 50);
  table.add(make(3), false, nullptr);
  ItemTable copy(table);
  EXPECT_TRUE(copy == table);
  EXPECT_EQ(copy.removeKey(&ItemTable::item(added[3])->id), added[3]);
  EXPECT_TRUE(copy != table);
  EXPECT_EQ(copy.find("id3"), &items_.back());
  EXPECT_EQ(table.find("id3"), added[3]);
  EXPECT_FALSE(copy.add(make(4), true, nullptr));
}

TEST_F(KYRHashtableTest, AssignmentHashesWithTheFunctionsOfTheTableAssignedTo) {
  ItemTable byId;
  fill(byId, 60);
  byId.add(make(5), false, nullptr);
  byId.removeKey(&items_[7].id);
  KYRHashtable byAddress(0);
  byAddress.add(make("old"), true, nullptr);
  byAddress = byId;
  EXPECT_TRUE(byAddress == byId);
  EXPECT_EQ(byAddress.findFirst(&items_[5], nullptr), &items_[5]);
  ItemTable back;
  KYRHashtable& untyped = back;
  untyped = byAddress;
  EXPECT_EQ(contentOf(back), contentOf(byId));
  EXPECT_EQ(back.find("id5"), &items_[5]);
  const KYRHashtable& self = back;
  untyped = self;
  EXPECT_EQ(contentOf(back), contentOf(byId));
}

TEST_F(KYRHashtableTest, EqualityIsTheSameObjectsInTheSameOrder) {
  const Item* const one = make(1);
  const Item* const two = make(2);
  ItemTable first, second, turned;
  for (const Item* each : {one, two}) first.add(each, true, nullptr);
  for (const Item* each : {one, make(9), two}) second.add(each, true, nullptr);
  for (const Item* each : {two, one}) turned.add(each, true, nullptr);
  EXPECT_FALSE(first == second);
  second.removeObject(&items_.back());
  EXPECT_TRUE(first == second);  // a gap does not matter
  EXPECT_FALSE(first == turned);
  EXPECT_TRUE(ItemTable() == ItemTable());
}

TEST_F(KYRHashtableTest, ARaisingHashOrComparisonLeavesTheTable) {
  for (int count = 0; count < 40; ++count) {
    ItemTable table;
    table.allMeet = true;
    const auto added = fill(table, count);
    const Item* const next = make(count);
    for (std::int64_t raise = 0;; ++raise) {
      table.callsBeforeRaise = raise;
      try {
        table.add(next, true, nullptr);
        break;
      } catch (const std::runtime_error&) {
      }
      table.callsBeforeRaise = -1;
      ASSERT_EQ(contentOf(table), added);
      ASSERT_EQ(table.find(next->id), nullptr);
    }
    table.callsBeforeRaise = -1;
    ASSERT_EQ(table.find(next->id), next);
  }
}

TEST_F(KYRHashtableTest, AnAddWithoutMemoryLeavesTheTable) {
  ItemTable table;
  std::vector<const void*> added;
  for (int count = 0; count < 300; ++count) {
    const Item* const next = make(count);
    added.reserve(added.size() + 1);
    if (count == 100) {  // from here on with the index by address
      const Item* const absent = make("absent");
      ASSERT_FALSE(table.removeObject(absent));
    }
    for (std::size_t failure = 0;; ++failure) {
      try {
        const AllocationFailure failing(failure);
        table.add(next, true, nullptr);
        break;
      } catch (const std::bad_alloc&) {
      }
      ASSERT_EQ(contentOf(table), added);
      ASSERT_EQ(table.find(next->id), nullptr);
    }
    added.push_back(next);
    ASSERT_EQ(table.find(next->id), next);
  }
  EXPECT_EQ(contentOf(table), added);
  for (const void* each : added) ASSERT_TRUE(table.removeObject(each));
}

TEST_F(KYRHashtableTest, AFailedAssignmentLeavesTheTable) {
  ItemTable source;
  const auto wanted = fill(source, 40);
  ItemTable table;
  const auto added = fill(table, 30);
  for (std::size_t failure = 0;; ++failure) {
    try {
      const AllocationFailure failing(failure);
      table = source;
      break;
    } catch (const std::bad_alloc&) {
    }
    ASSERT_EQ(contentOf(table), added);
    ASSERT_EQ(table.find("id29"), added[29]);
    ASSERT_EQ(table.find("id30"), nullptr);
  }
  EXPECT_EQ(contentOf(table), wanted);
  for (std::int64_t raise = 0; raise < 40; ++raise) {
    table.callsBeforeRaise = raise;
    EXPECT_THROW(static_cast<KYRHashtable&>(table) = ItemTable(source), std::runtime_error);
    table.callsBeforeRaise = -1;
    ASSERT_EQ(contentOf(table), wanted);
  }
}

TEST_F(KYRHashtableTest, RemovalWorksWhenMemoryIsShort) {
  ItemTable table;
  const auto added = fill(table, 64);
  {
    const AllocationFailure failing(0);
    for (std::size_t i = 0; i < 60; ++i) table.removeKey(&ItemTable::item(added[i])->id);
  }
  EXPECT_EQ(contentOf(table), (std::vector<const void*>(added.end() - 4, added.end())));
  table.removeKey(&ItemTable::item(added[60])->id);
  EXPECT_EQ(table.getSlotCount(), 3U);  // the gaps go with the next removal
}

TEST_F(KYRHashtableTest, ATableThatPutsHashingOffIsWalkedForNothing) {
  constexpr int count = 1000;
  ItemTable table(0, KYRHashtable::Hashing::atFirstLookup);
  const auto added = fill(table, count);
  EXPECT_EQ(contentOf(table), added);
  EXPECT_EQ(table.calls, 0U);
  EXPECT_EQ(table.find("id7"), added[7]);
  const std::uint64_t calls = table.calls;
  EXPECT_LT(calls, 10U * count);
  EXPECT_EQ(table.find("id8"), added[8]);
  EXPECT_LT(table.calls - calls, 10U);  // all is hashed by now
  EXPECT_EQ(contentOf(table), added);
}

TEST_F(KYRHashtableTest, WhatHashingRaisesLaterComesOutOfTheLookupAndLeavesTheTable) {
  ItemTable table(0, KYRHashtable::Hashing::atFirstLookup);
  const auto added = fill(table, 20);
  for (std::int64_t raise = 0;; ++raise) {
    table.callsBeforeRaise = raise;
    try {
      EXPECT_EQ(table.find("id7"), added[7]);
      break;
    } catch (const std::runtime_error&) {
    }
    table.callsBeforeRaise = -1;
    ASSERT_EQ(contentOf(table), added);
  }
  table.callsBeforeRaise = -1;
  EXPECT_FALSE(table.add(make(7), true, nullptr));
}

TEST_F(KYRHashtableTest, ALookupWithoutMemoryToHashLeavesTheTable) {
  ItemTable table(0, KYRHashtable::Hashing::atFirstLookup);
  const auto added = fill(table, 300);
  std::size_t failure = 0;
  for (;; ++failure) {
    try {
      const AllocationFailure failing(failure);
      table.contains(added[7], nullptr);
      break;
    } catch (const std::bad_alloc&) {
    }
    ASSERT_EQ(contentOf(table), added);
  }
  EXPECT_GT(failure, 0U);
  EXPECT_EQ(table.find("id299"), added[299]);
}

// Many seeded steps beside a plain list: few keys, so that equals, leaders and chains all take part.
TEST_F(KYRHashtableTest, BehavesAsAPlainListUnderRandomSteps) {
  for (const unsigned int variant : {0U, 1U, 2U, 3U}) {
    std::mt19937 random(variant);
    ItemTable table(0, variant < 2 ? KYRHashtable::Hashing::atAdd : KYRHashtable::Hashing::atFirstLookup);
    table.allMeet = variant % 2 == 1;
    std::vector<const Item*> model;
    std::vector<const Item*> removed;
    const auto firstOf = [&model](const KYRString& id) {
      return std::find_if(model.begin(), model.end(),
                          [&id](const Item* each) { return !id.isEmpty() && each->id == id; });
    };
    for (int step = 0; step < 20000; ++step) {
      const int number = static_cast<int>(random() % 12);
      const KYRString id = number == 0 ? KYRString() : KYRString(number);
      const auto first = firstOf(id);
      const auto action = random() % 100;
      if (action < 30) {
        const Item* const item = removed.empty() || random() % 2 == 0 ? make(id) : removed.back();
        const bool unique = random() % 2 == 0;
        const bool isAdded = !unique || firstOf(item->id) == model.end();
        ASSERT_EQ(table.add(item, unique, nullptr), isAdded);
        if (isAdded) model.push_back(item);
        if (isAdded && !removed.empty() && item == removed.back()) removed.pop_back();
      } else if (action < 40) {
        const void* const expected = first == model.end() ? nullptr : *first;
        ASSERT_EQ(table.removeKey(&id), expected);
        if (first != model.end()) {
          removed.push_back(*first);
          model.erase(first);
        }
      } else if (action < 60) {
        if (!model.empty()) {
          const auto at = model.begin() + static_cast<std::ptrdiff_t>(random() % model.size());
          ASSERT_TRUE(table.removeObject(*at));
          removed.push_back(*at);
          model.erase(at);
        }
      } else if (action < 63) {
        KYRContainer::Iterator* const iterator = table.newIterator(true);
        auto at = model.begin();
        while (iterator->get() != nullptr && at != model.end()) {
          ASSERT_EQ(iterator->get(), *at);
          if (random() % 8 == 0) {
            ASSERT_EQ(table.remove(iterator), *at);
            removed.push_back(*at);
            at = model.erase(at);
          } else {
            iterator->next();
            ++at;
          }
        }
        table.deleteIterator(iterator);
      } else if (action < 64) {
        table.resize(static_cast<int>(random() % 64));
      } else if (action < 65) {
        ItemTable copy(table);
        table.empty();
        if (random() % 2 == 0) {
          table = copy;
        } else {
          for (const Item* item : model) table.add(item, false, nullptr);
        }
        ASSERT_TRUE(table == copy);
      } else {
        ASSERT_EQ(table.find(id), first == model.end() ? nullptr : *first);
      }
      ASSERT_EQ(table.getCount(), model.size());
    }
    EXPECT_EQ(contentOf(table), (std::vector<const void*>(model.begin(), model.end())));
  }
}

}  // namespace
