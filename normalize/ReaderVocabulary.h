// ReaderVocabulary: what the reader makes of a type, and of a tag inside an object.
//
// It answers by the rows that the reader itself is driven by, and by the plans of its classes, so a class, a
// scalar or a reference that the metamodel gains is known here at once.
#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

struct TagHandler;

class ReaderVocabulary {
 public:
  static constexpr int none = -1;

  /// What the reader knows of a tag or attribute of one name.
  struct Word {
    std::vector<const TagHandler*> contextRows;  // what it means as a child, by the kind of the parent
    bool isSkipped = false;                      // passed over with everything in it, whatever the parent
    int readerName = none;                       // its number in ReaderNames, compared exactly
    int kindOfTag = none;                        // "uml:Class" as a tag: the class of that name
  };

  static const ReaderVocabulary& get();

  /// The class that an xmi:type names, or `none`.
  int kindOfType(std::string_view type) const noexcept;
  static const char* typeOfKind(int kind) noexcept;
  /// Never null; a name that nobody knows has an empty word.
  const Word& find(std::string_view name) const noexcept;
  /// The row that serves a tag inside an object of that kind: of several the one of the most derived class.
  /// Null when none does.
  static const TagHandler* findRow(const Word& word, int kind) noexcept;
  /// Whether the class has a scalar, or a reference, of that name.
  bool hasScalar(int kind, int readerName) const noexcept;
  bool hasReference(int kind, int readerName) const noexcept;
  /// Whether some reader asks for an attribute that equals the text without regard to case.
  static int findAskedFor(std::string_view text) noexcept;

 private:
  ReaderVocabulary();

  std::unordered_map<std::string_view, int> kinds_;
  std::unordered_map<std::string_view, Word> words_;
  // By kind, a flag for each reader name.
  std::vector<std::vector<bool>> scalars_;
  std::vector<std::vector<bool>> references_;
};
