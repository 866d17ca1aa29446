// PictureReader: what a packed picture says, read as the page reads it.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

inline std::vector<std::int64_t> numbersIn(std::string_view packed) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::vector<std::int64_t> numbers;
  std::int64_t value = 0;
  unsigned int shift = 0;
  for (const char letter : packed) {
    const std::size_t piece = letters.find(letter);
    if (piece == std::string_view::npos) throw std::runtime_error("no letter of a packed number");
    value += static_cast<std::int64_t>(piece & 31U) << shift;
    shift += 5;
    if (piece >= 32) continue;
    numbers.push_back(value % 2 != 0 ? -(value / 2) : value / 2);
    value = 0;
    shift = 0;
  }
  return numbers;
}
