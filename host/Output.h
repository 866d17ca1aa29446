// Output: bytes on their way to the standard output, or to another open file.
//
// A reader that goes away ("kyr inspect ... | head") is no error: what is written from then on goes
// nowhere, and `isClosed` tells a long piece of work that it can end.
#pragma once

#include <string>
#include <string_view>

class Output {
 public:
  /// Writes to an open file, which it does not close.
  explicit Output(int descriptor) : descriptor_(descriptor) {}
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  /// Takes the bytes; they are on their way after the next `flush` at the latest.
  void write(std::string_view bytes);
  void flush();
  bool isClosed() const noexcept { return isClosed_; }
  /// The errno of the first failed write, a reader that went away excepted; 0 when there was none.
  int getError() const noexcept { return error_; }

 private:
  void send(std::string_view bytes);

  int descriptor_;
  std::string buffer_;
  bool isClosed_ = false;
  int error_ = 0;
};
