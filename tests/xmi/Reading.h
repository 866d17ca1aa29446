// Reading: a small XMI text read through the real parser, with its log, for tests.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "foundation/KYRException.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TemporaryFile.h"
#include "uml/UMLCast.h"
#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"
#include "xmi/DispatchRows.h"
#include "xmi/XMIParser.h"

/// One parse of one text. Rows are fresh unless `keepRows` says that a later import in the same
/// process is meant.
class Reading {
 public:
  enum class Rows { fresh, asLeft };

  explicit Reading(const std::string& xml, Rows rows = Rows::fresh) : input_(xml), parser(&log) {
    if (rows == Rows::fresh) DispatchRows::resetForTests();
    model = parser.parse(input_.file());
  }

  UMLElement* find(const char* id) const { return parser.getObjects().find(id); }
  template <class T>
  T& get(const char* id) const {
    T* const element = umlCast<T>(find(id));
    if (element == nullptr) throw std::runtime_error(std::string("no such object: ") + id);
    return *element;
  }
  /// Kinds of all objects in order of reading.
  std::vector<int> kindsRead() const {
    std::vector<int> kinds;
    for (unsigned int i = 0; i < parser.getObjects().getSlotCount(); ++i) {
      kinds.push_back(parser.getObjects().at(i)->getKind());
    }
    return kinds;
  }

 private:
  TemporaryFile input_;

 public:
  RecordingLog log;
  XMIParser parser;
  UMLModel* model = nullptr;
};

/// A file of the usual form around the content of a model: root, namespaces, one uml:Model "m".
inline std::string inModel(const std::string& content) {
  return "<xmi:XMI xmlns:uml=\"http://www.omg.org/spec/UML/20131001\" "
         "xmlns:xmi=\"http://www.omg.org/spec/XMI/20131001\">"
         "<uml:Model xmi:id=\"m\" name=\"M\">" +
         content + "</uml:Model></xmi:XMI>";
}

/// The ids of a list of objects, with blanks between.
template <class List>
std::string idsOf(const List& list) {
  std::string result;
  for (const auto* const entry : list) {
    if (!result.empty()) result += ' ';
    result += entry == nullptr ? "null" : std::string(entry->id.view());
  }
  return result;
}
