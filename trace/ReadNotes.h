// ReadNotes: what is kept of a read for a trace: where each element stands, and what the reader could not
// make anything of.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "foundation/KYRString.h"
#include "xmi/ReadObserver.h"

class ReadNotes final : public ReadObserver {
 public:
  /// An xmi:type or a tag, how often it was met, and in which line first.
  struct Met {
    std::string name;
    std::uint64_t count = 0;
    std::uint64_t firstLine = 0;
  };
  /// A reference that came to nothing: the element that has it, and where it leads.
  struct Reference {
    KYRString from;
    KYRString to;
    bool isFound;  // then it leads to an element of a class that does not fit
  };

  void element(const UMLElement& object, std::uint64_t line) override;
  void skippedType(const KYRString& type, const KYRString& position) override;
  void unknownTag(const KYRString& tag, const KYRString& position) override;
  void link(const KYRString& first, const KYRString& second, int kind, LinkResult result) override;

  /// The line of an element that the parser read; 0 of any other.
  std::uint64_t lineOf(const UMLElement& object) const noexcept;
  /// In order of reading; those of elements without an id are not among them.
  const std::vector<Reference>& getReferences() const noexcept { return references_; }
  /// The first id that the element of that id refers to and nothing has; empty when there is none.
  const KYRString& missingIdOf(const KYRString& id) const;
  /// Both in order of first appearance.
  const std::vector<Met>& getSkippedTypes() const noexcept { return skippedTypes_.entries; }
  const std::vector<Met>& getUnknownTags() const noexcept { return unknownTags_.entries; }

 private:
  struct Counter {
    void count(const KYRString& name, const KYRString& position);
    std::vector<Met> entries;
    std::map<std::string, std::size_t, std::less<>> positions;  // a tree: the names come from the file
  };

  std::vector<std::uint32_t> lines_;  // by number of reading
  std::vector<Reference> references_;
  std::map<std::string, std::size_t, std::less<>> firstMissing_;  // by the id of what refers
  Counter skippedTypes_;
  Counter unknownTags_;
};
