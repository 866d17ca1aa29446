// InspectReport: what the reader could not make anything of, noted while it reads.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "foundation/KYRString.h"
#include "xmi/ReadObserver.h"

class InspectReport final : public ReadObserver {
 public:
  /// A name, how often it was met, and where first.
  struct Met {
    std::string name;
    std::uint64_t count;
    KYRString firstPosition;  // "line L, column C"
  };
  /// What a list of ids in a report is cut to.
  static constexpr std::size_t listedIds = 10;

  void skippedType(const KYRString& type, const KYRString& position) override;
  void unknownTag(const KYRString& tag, const KYRString& position) override;
  void link(const KYRString& first, const KYRString& second, int kind, LinkResult result) override;

  /// Both in order of first appearance.
  const std::vector<Met>& getSkippedTypes() const noexcept { return skippedTypes_.entries; }
  const std::vector<Met>& getUnknownTags() const noexcept { return unknownTags_.entries; }

  std::uint64_t getResolved() const noexcept { return resolved_; }
  /// References to an id that no object bears.
  std::uint64_t getUnresolved() const noexcept { return unresolved_; }
  /// References from or to an object without an id; they count as unresolved too.
  std::uint64_t getWithoutId() const noexcept { return withoutId_; }
  /// References between objects of classes that do not fit.
  std::uint64_t getUnfitting() const noexcept { return unfitting_; }
  /// The first ids that no object bears, each once.
  const std::vector<KYRString>& getFirstMissingIds() const noexcept { return missingIds_; }

 private:
  struct Counter {
    void count(const KYRString& name, const KYRString& position);
    std::vector<Met> entries;
    std::map<std::string, std::size_t, std::less<>> positions;
  };
  void missing(const KYRString& id);

  Counter skippedTypes_;
  Counter unknownTags_;
  std::uint64_t resolved_ = 0;
  std::uint64_t unresolved_ = 0;
  std::uint64_t withoutId_ = 0;
  std::uint64_t unfitting_ = 0;
  std::vector<KYRString> missingIds_;
};
