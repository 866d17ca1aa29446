// InspectDiagrams: the diagrams that stand in the model of a file, counted by kind.
//
// Diagrams are tool data, so the reader makes no objects of them. The tree that the file is read into a
// second time is the document that the parser still holds: nothing is parsed again.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "foundation/KYRFile.h"
#include "foundation/KYRLog.h"
#include "foundation/KYRString.h"

class InspectDiagrams {
 public:
  struct Kind {
    KYRString name;  // as the tool calls it, empty when it does not
    std::uint64_t count = 0;
  };

  /// Raises as KYRDOM::parseFile.
  InspectDiagrams(KYRLog& log, const KYRFile& file);
  std::uint64_t getCount() const noexcept { return count_; }
  /// In the order in which the kinds stand in the file first.
  const std::vector<Kind>& getKinds() const noexcept { return kinds_; }

 private:
  void count(const KYRString& name);

  std::vector<Kind> kinds_;
  std::map<std::string, std::size_t, std::less<>> places_;  // in kinds_, by name; no hash of a file's names
  std::uint64_t count_ = 0;
};
