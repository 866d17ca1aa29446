// foldedText: a text as a key where the case of letters does not count.
#pragma once

#include <string>
#include <string_view>

#include "foundation/KYRString.h"

/// The text in small letters, ASCII only.
inline std::string foldedText(std::string_view text) {
  std::string folded(text);
  for (char& letter : folded) letter = foldCase(letter);
  return folded;
}
