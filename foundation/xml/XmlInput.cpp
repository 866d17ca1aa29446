// Bytes in memory as an input.
#include "foundation/xml/XmlInput.h"

#include <algorithm>

XmlInput::~XmlInput() = default;

XmlMemoryInput::~XmlMemoryInput() = default;

std::size_t XmlMemoryInput::read(char* buffer, std::size_t capacity) {
  const std::size_t length = rest_.copy(buffer, std::min(capacity, pieceSize_));
  rest_.remove_prefix(length);
  return length;
}
