// UMLObjectMemory: room that does not overlap, for objects of any size.
#include "xmi/UMLObjectMemory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <utility>

namespace {

TEST(UMLObjectMemory, EachObjectHasItsOwnRoomWhereAPointerMayStand) {
  UMLObjectMemory memory;
  for (int round = 0; round < 2; ++round) {
    std::vector<std::pair<unsigned char*, std::size_t>> places;
    for (std::size_t i = 0; i < 3000; ++i) {
      const std::size_t size = 1 + i * 37 % 700;
      auto* const place = static_cast<unsigned char*>(memory.allocate(size));
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(place) % alignof(void*), 0U);
      std::memset(place, static_cast<int>(i % 251), size);
      places.emplace_back(place, size);
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
      EXPECT_EQ(places[i].first[0], i % 251);
      EXPECT_EQ(places[i].first[places[i].second - 1], i % 251);
    }
    memory.release();
  }
}

TEST(UMLObjectMemory, AnObjectMayBeLargerThanABlock) {
  UMLObjectMemory memory;
  constexpr std::size_t size = std::size_t{3} * 1024 * 1024;
  auto* const place = static_cast<unsigned char*>(memory.allocate(size));
  std::memset(place, 7, size);
  EXPECT_EQ(place[size - 1], 7);
  EXPECT_NE(memory.allocate(8), nullptr);
}

}  // namespace
