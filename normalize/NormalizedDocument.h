// NormalizedDocument: what the rules share while they change one document: the editor, which part of the
// document is the model, what the reader makes of each element, and who bears which id.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "foundation/xml/XmlDocumentEditor.h"
#include "normalize/IdIndex.h"
#include "normalize/NormalizeReport.h"
#include "normalize/ReaderVocabulary.h"

class NormalizedDocument {
 public:
  using Node = XmlDocumentEditor::Node;
  using Name = XmlDocumentEditor::Name;
  using Word = ReaderVocabulary::Word;
  static constexpr Node noNode = XmlDocumentEditor::noNode;
  static constexpr int noKind = ReaderVocabulary::none;

  /// Where an element stands. The rules change the model; `foreign` are the document's frame and what stands
  /// beside the model, such as stereotype applications; `shielded` are the data of tools.
  enum class Region : std::uint8_t { foreign, model, shielded };
  /// What the reader makes of an element.
  enum class Role : std::uint8_t { skipped, object, reference, text, passed };

  struct Reading {
    Role role = Role::skipped;
    std::int16_t kind = noKind;  // of an object
    Node object = noNode;        // the innermost object around the element
  };

  /// `fileName` names a model that the file has none for.
  NormalizedDocument(std::shared_ptr<const XmlDocument> source, std::string fileName,
                     NormalizeReport& report);

  XmlDocumentEditor editor;
  NormalizeReport& report;
  const std::string fileName;

  // Names that several rules ask for.
  const Name xmiId;
  const Name xmiType;
  const Name xmiIdref;
  const Name href;
  const Name name;
  const Name umlModel;
  const Name packagedElement;

  const Word& wordOf(Name name);
  const Word& wordOfTag(Node node) { return wordOf(editor.getName(node)); }
  /// The class that a type names; remembers what it was asked last.
  int kindOfType(const KYRString& type);
  /// The value of an attribute, empty when there is none.
  const KYRString& attribute(Node node, Name attributeName) const;
  bool isEmpty(Node node, Name attributeName) const { return attribute(node, attributeName).isEmpty(); }
  /// Gives an element a type in the place where tools write it.
  void setType(Node node, std::string_view type) { editor.setAttribute(node, xmiType, type, 0); }

  /// Parts the document into regions: to be called once, when tags have their usual spelling.
  void findRegions();
  bool isModel(Node node) const { return editor.isElement(node) && regions_[node] == Region::model; }
  /// All elements of the model in the order of the file, added ones last; who walks over them must expect
  /// that one was removed.
  const std::vector<Node>& getModelElements() const noexcept { return modelElements_; }
  /// The elements below the document's root that are models, packages or elements of packages; the
  /// document's root itself when it is one.
  const std::vector<Node>& getRoots() const noexcept { return roots_; }
  bool isXmiRoot() const noexcept { return isXmiRoot_; }
  /// A new element of the model, which stands nowhere yet.
  Node addElement(Name tag, Node origin);

  /// What the reader makes of the elements as they stand. Computed anew when the tree was changed.
  const Reading& readingOf(Node node) {
    if (readings_.empty()) computeReadings();
    return readings_[node];
  }
  /// To be called by who moved elements or changed their tags or types.
  void forgetReadings() noexcept { readings_.clear(); }
  void setReading(Node node, const Reading& reading) { readings_[node] = reading; }
  /// The elements of the model that the reader makes objects of, in the order in which it does.
  const std::vector<Node>& getObjects() {
    if (readings_.empty()) computeReadings();
    return objects_;
  }
  /// Those of elements that are no part of the model.
  const std::vector<Node>& getForeignObjects() {
    getObjects();
    return foreignObjects_;
  }
  bool isObject(Node node) { return isModel(node) && readingOf(node).role == Role::object; }

  /// The elements of the model by id, the first of an id in the order of the file.
  IdIndex indexModel() const;
  /// The objects of the model by id, the first of an id in the order of reading. Empty before the rule about
  /// ids has filled it.
  IdIndex& getIds() noexcept { return ids_; }
  /// An id that is not in the index, the same for the same place in the file.
  std::string makeId(Node node, const IdIndex& ids) const;
  /// Elements visited by the walks so far; tests see by it that the cost stays linear.
  std::uint64_t getStepCount() const noexcept { return steps_; }

 private:
  bool isRoot(Node node);
  void computeReadings();
  Reading read(Node node, const Reading& parent, Node parentNode);

  struct TypeSlot {
    const char* characters = nullptr;
    int kind = noKind;
  };

  const ReaderVocabulary& vocabulary_;
  std::vector<const Word*> words_;  // by name
  std::vector<TypeSlot> types_;     // of the type texts met last, by their address
  std::vector<Region> regions_;
  std::vector<Node> modelElements_;
  std::vector<Node> roots_;
  std::vector<Reading> readings_;
  std::vector<Node> objects_;
  std::vector<Node> foreignObjects_;
  IdIndex ids_;
  bool isXmiRoot_ = false;
  std::uint64_t steps_ = 0;
};
