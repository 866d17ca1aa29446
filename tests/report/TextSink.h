// TextSink: keeps what is written.
#pragma once

#include <string>

#include "repository/storage/BlockOutput.h"

class TextSink : public BlockSink {
 public:
  void write(std::string_view block) override { text += block; }

  std::string text;
};
