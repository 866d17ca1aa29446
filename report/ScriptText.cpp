// One character to look for, so blocks may be cut anywhere.
#include "report/ScriptText.h"

void ScriptText::write(std::string_view block) {
  escaped_.clear();
  for (std::size_t at = block.find('<'); at != std::string_view::npos; at = block.find('<')) {
    escaped_.append(block.substr(0, at)).append("\\u003c");
    block.remove_prefix(at + 1);
  }
  sink_.write(escaped_);
  sink_.write(block);
}
