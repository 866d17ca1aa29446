// PackedNumbers: whole numbers as a short text of letters that no format needs to escape.
//
// A number is cut into pieces of five bits, the lowest first, of which the very first is its sign; a piece is
// a letter of base 64 of which the highest bit says that another follows. Numbers up to 15 are one letter, up
// to 511 two. `numbersOf` in report/page/placedPicture.js reads them.
#pragma once

#include <cstdint>
#include <string>

class PackedNumbers {
 public:
  void add(std::int64_t number);
  /// The difference to the number that was added this way before, from 0 on.
  void addStep(std::int64_t number);
  const std::string& getText() const noexcept { return text_; }

 private:
  std::string text_;
  std::int64_t before_ = 0;
};
