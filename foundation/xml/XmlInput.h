// XmlInput: where the bytes of an XML text come from.
#pragma once

#include <cstddef>
#include <string_view>

#include "foundation/Export.h"
#include "foundation/KYRString.h"

class KYR_EXPORT XmlInput {
 public:
  /// `name` is what messages call the input, such as the path of the file.
  explicit XmlInput(const KYRString& name) : name_(name) {}
  XmlInput(const XmlInput&) = delete;
  XmlInput& operator=(const XmlInput&) = delete;
  virtual ~XmlInput();
  const KYRString& getName() const noexcept { return name_; }
  /// Puts the next bytes into `buffer`, `capacity` of them at most; 0 at the end of the input only.
  virtual std::size_t read(char* buffer, std::size_t capacity) = 0;
  /// Whether `rewind` works, so that the input can be read more than once.
  virtual bool canRewind() const noexcept { return false; }
  /// Goes back to the first byte. Raises a KYRException when the system cannot.
  virtual void rewind() {}

 private:
  KYRString name_;
};

/// Bytes in memory, which must outlive the input.
class KYR_EXPORT XmlMemoryInput : public XmlInput {
 public:
  /// With `pieceSize` no read gives more than so many bytes.
  XmlMemoryInput(const KYRString& name, std::string_view bytes,
                 std::size_t pieceSize = std::string_view::npos)
      : XmlInput(name), bytes_(bytes), rest_(bytes), pieceSize_(pieceSize) {}
  ~XmlMemoryInput() override;
  std::size_t read(char* buffer, std::size_t capacity) override;
  bool canRewind() const noexcept override { return true; }
  void rewind() noexcept override { rest_ = bytes_; }

 private:
  const std::string_view bytes_;
  std::string_view rest_;
  std::size_t pieceSize_;
};
