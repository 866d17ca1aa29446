// ScriptText: JSON on its way into a script element of an HTML document.
//
// The element ends at the first "</script", wherever it stands, and "<!--" changes how its end is found.
// In JSON a "<" can stand in strings only, where an escape says the same.
#pragma once

#include <string>

#include "repository/storage/BlockOutput.h"

class ScriptText : public BlockSink {
 public:
  explicit ScriptText(BlockSink& sink) : sink_(sink) {}
  void write(std::string_view block) override;

 private:
  BlockSink& sink_;
  std::string escaped_;
};
