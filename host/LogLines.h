// LogLines: the messages in a log file that `kyr import` has written, in either of its formats.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "foundation/KYRFile.h"

namespace LogLines {

struct Message {
  std::string level;  // "STATUS", "WARNING", "FATAL"; empty in a line of no known form
  std::string code;   // empty when there is none
  std::string text;
};

/// Raises KYRException when the file cannot be read.
std::vector<Message> readFile(const KYRFile& file);

/// One line, without its end.
Message read(std::string_view line);

}  // namespace LogLines
