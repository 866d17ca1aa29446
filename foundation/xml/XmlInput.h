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

 private:
  KYRString name_;
};

/// Bytes in memory, which must outlive the input.
class KYR_EXPORT XmlMemoryInput : public XmlInput {
 public:
  /// With `pieceSize` no read gives more than so many bytes.
  XmlMemoryInput(const KYRString& name, std::string_view bytes,
                 std::size_t pieceSize = std::string_view::npos)
      : XmlInput(name), rest_(bytes), pieceSize_(pieceSize) {}
  ~XmlMemoryInput() override;
  std::size_t read(char* buffer, std::size_t capacity) override;

 private:
  std::string_view rest_;
  std::size_t pieceSize_;
};
