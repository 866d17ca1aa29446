// ReplacedTypeRule: types that the reader does not know, and that stand for one that it knows.
//
// An element of a type that is not in the reader's table is passed over with everything in it. Ports and the
// ends of extensions are properties.
#pragma once

#include <string_view>
#include <vector>

#include "normalize/DocumentRule.h"

class ReplacedTypeRule final : public DocumentRule {
 public:
  struct Replacement {
    std::string_view written;
    std::string_view by;
    std::string_view type = {};  // of a tag: the type that it said, for an element without one
  };

  /// Ports and special ends become properties.
  static ReplacedTypeRule forProperties();
  /// Profiles below the model become packages.
  static ReplacedTypeRule forProfiles();
  /// Components and nodes become classes.
  static ReplacedTypeRule forComponents();

  ReplacedTypeRule(NormalizeRule rule, std::vector<Replacement> types, std::vector<Replacement> tags)
      : rule_(rule), types_(std::move(types)), tags_(std::move(tags)) {}
  void apply(NormalizedDocument& document) override;

 private:
  static const Replacement* find(const std::vector<Replacement>& replacements, std::string_view text);

  NormalizeRule rule_;
  std::vector<Replacement> types_;
  std::vector<Replacement> tags_;
};
