// NormalizeReport: which rules have changed a document, and how often.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The rules, in the order in which they run.
enum class NormalizeRule : std::uint8_t {
  prefixes,
  typeAttribute,
  typedReference,
  replacedType,
  documentation,
  profilePackage,  // --normalize=all
  componentClass,  // --normalize=all
  localHref,
  roots,
  packageContent,
  nestedClassifier,  // --normalize=all
  ids,
  idList,
  scalarElement,
  declaredType,
  attributeOrder,
};

struct NormalizeReport {
  static constexpr std::size_t ruleCount = 16;

  struct Tally {
    std::uint64_t fired = 0;
    bool matters = false;  // without it the reader may have got another model
  };

  /// Changes that are a matter of spelling alone leave `matters` as it was.
  void note(NormalizeRule rule, bool matters = true) noexcept {
    Tally& tally = tallies[static_cast<std::size_t>(rule)];
    ++tally.fired;
    tally.matters = tally.matters || matters;
  }
  void matter(NormalizeRule rule) noexcept { tallies[static_cast<std::size_t>(rule)].matters = true; }
  const Tally& of(NormalizeRule rule) const noexcept { return tallies[static_cast<std::size_t>(rule)]; }
  bool hasFired() const noexcept {
    for (const Tally& tally : tallies) {
      if (tally.fired != 0) return true;
    }
    return false;
  }
  bool matters() const noexcept {
    for (const Tally& tally : tallies) {
      if (tally.matters) return true;
    }
    return false;
  }

  std::array<Tally, ruleCount> tallies;
  std::uint64_t attributeRings = 0;  // elements whose attributes no order brings right
};
