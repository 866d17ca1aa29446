// ReaderNames: a number for each name that the readers ask for, be it an attribute or a tag.
//
// A reader asks for up to sixty attributes, most of which an element does not bear. With numbers,
// an element's attribute list is looked through once and each question is an array access.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

class ReaderNames {
 public:
  static constexpr int none = -1;

  /// The names of the metamodel's tables and of XMI itself.
  static const ReaderNames& get();

  /// The number of a name, compared exactly; `none` when no reader asks for it.
  int find(std::string_view text) const noexcept;
  /// The same without regard to case.
  int findIgnoringCase(std::string_view text) const noexcept;
  /// Whether attributes of that name hold an id, the element's own or another one's; false of `none`.
  bool holdsId(int number) const noexcept {
    return number != none && holdIds_[static_cast<unsigned int>(number)];
  }
  std::string_view getName(int number) const noexcept { return names_[static_cast<unsigned int>(number)]; }
  int getCount() const noexcept { return static_cast<int>(names_.size()); }

  // Numbers of the attributes that every reader asks for.
  int id = none;
  int type = none;
  int idref = none;
  int name = none;

 private:
  ReaderNames();
  int add(std::string_view text);
  void markId(int number) { holdIds_[static_cast<unsigned int>(number)] = true; }
  static unsigned int bucketOf(std::string_view text) noexcept;

  static constexpr unsigned int bucketCount = 1024;
  std::vector<std::string_view> names_;
  std::vector<bool> holdIds_;
  std::vector<std::int16_t> nextInBucket_;
  std::int16_t buckets_[bucketCount];
  std::size_t longest_ = 0;
};
