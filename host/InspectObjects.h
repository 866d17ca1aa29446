// InspectObjects: the UML objects of a file as lines of JSON, as they stand after linking, comments and
// tool extension, in order of reading, and behind them those that the extension made:
//
//   {"index":12,"class":"UMLProperty","kind":70,"id":"...","fields":{"UMLNamedElement.name":"..."}}
//
// What a line holds follows from the rows of the metamodel. The fields stand in the order of the
// class's lineage, each class with its scalars, its other plain fields and its references. A field at
// its default (empty, false, 0, null) is left out. A reference is the index of its object. An object
// that the extension made has "made":true, also one that another has taken the place of.
#pragma once

#include <string>
#include <vector>

#include "host/JsonOut.h"
#include "host/Output.h"
#include "uml/UMLMetamodel.h"

class UMLElement;
class UMLMadeObjects;
class UMLObjectTable;

class InspectObjects {
 public:
  /// The objects are borrowed.
  InspectObjects(const UMLObjectTable& read, const UMLMadeObjects& made);
  /// Writes a line for each object, until the reader of the output goes away.
  void write(Output& output);

 private:
  struct Scalar {
    std::string key;  // "UMLNamedElement.name"
    const UMLMetamodel::ScalarRow* row;
  };
  struct Reference {
    std::string key;
    const UMLMetamodel::LinkEnd* end;
  };
  /// The fields that one class declares.
  struct ClassFields {
    std::vector<Scalar> scalars;
    std::vector<Reference> references;
    bool isEmpty() const noexcept { return scalars.empty() && references.empty(); }
  };
  /// The objects in the order of their indexes.
  struct Objects {
    const UMLObjectTable& read;
    const UMLMadeObjects& made;
    unsigned int getCount() const noexcept;
    bool isMade(unsigned int index) const noexcept;
    UMLElement& at(unsigned int index) const noexcept;
  };
  /// The index of an object, by its address.
  class Indexes {
   public:
    explicit Indexes(const Objects& objects);
    static constexpr unsigned int none = 0xFFFFFFFFU;
    unsigned int find(const UMLElement* element) const noexcept;

   private:
    struct Slot {
      const UMLElement* element = nullptr;
      unsigned int index = none;
    };
    std::size_t slotOf(const UMLElement* element) const noexcept;
    std::vector<Slot> slots_;  // open addressing
    unsigned int shift_;
  };

  void collectFields();
  void writeObject(unsigned int index);
  void writeScalar(const Scalar& field, const void* owner);
  void writeTaggedValues(const UMLElement& element);
  void writeReference(const Reference& field, const void* owner);
  void writeIndex(const UMLElement* element);

  Objects objects_;
  Indexes indexes_;
  std::vector<ClassFields> fields_;         // by kind of the declaring class
  std::vector<std::vector<int>> lineages_;  // by kind: the classes of its lineage that declare fields
  JsonOut json_;
};
