// XmlFileInput: the bytes of a file, and what tells one file from another.
#pragma once

#include <cstdint>

#include "foundation/KYRFile.h"
#include "foundation/KYRImportProgress.h"
#include "foundation/xml/XmlInput.h"

/// Two equal identities mean the same file with unchanged content.
struct KYR_EXPORT XmlFileIdentity {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::uint64_t size = 0;
  std::int64_t contentTime = 0;  // nanoseconds since 1970: of the content, and of the inode
  std::int64_t inodeTime = 0;

  bool operator==(const XmlFileIdentity&) const = default;
};

class KYR_EXPORT XmlFileInput : public XmlInput {
 public:
  /// Opens the file. Anything but a regular file (links are followed) that can be opened raises a
  /// KYRException of the path and the reason; a FIFO or device is never waited for.
  explicit XmlFileInput(const KYRFile& file);
  ~XmlFileInput() override;
  /// Raises a KYRException when the system cannot read on.
  std::size_t read(char* buffer, std::size_t capacity) override;
  bool canRewind() const noexcept override { return true; }
  void rewind() override;
  /// The identity at this moment; two of them tell whether the file has changed in between.
  XmlFileIdentity getIdentity() const;

 private:
  void beginReading() noexcept;

  // Closes the file also when the constructor of the input raises.
  struct Descriptor {
    int number = -1;
    Descriptor() = default;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor();
  };
  Descriptor descriptor_;
  std::uint64_t size_ = 0;
  KYRImportProgress* progress_ = nullptr;  // from the first read on, when somebody watches
  bool isRead_ = false;
};
