// RecordingLog: keeps the events that it receives, for tests to compare.
#pragma once

#include <string>
#include <vector>

#include "foundation/KYRLog.h"

class RecordingLog : public KYRLog {
 public:
  void log(const KYRLogEvent& event) override {
    lines.push_back(std::string(event.getCode().view()) + " " + std::string(event.getText().view()));
    levels.push_back(event.getLevel());
  }
  /// Number of lines that begin with a text.
  std::size_t countOf(const std::string& start) const {
    std::size_t count = 0;
    for (const std::string& line : lines) count += line.rfind(start, 0) == 0 ? 1 : 0;
    return count;
  }

  std::vector<std::string> lines;  // code, blank, text
  std::vector<int> levels;
};
