// ImportedModel: a small XMI text read and converted, with the repository objects found by their ids.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "bridge/KYROmgUml2XmiImportDllInterface.h"
#include "bridge/state/KYROmgUml2XmiImportBridge.h"
#include "foundation/KYROption.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTraversalOperation.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TemporaryFile.h"

/// A whole file around the elements of a model whose id is "model".
inline std::string xmi(const std::string& elements, const std::string& modelName = "Model",
                       const std::string& documentation = "") {
  return "<xmi:XMI xmi:version='2.1' xmlns:xmi='http://schema.omg.org/spec/XMI/2.1'"
         " xmlns:uml='http://schema.omg.org/spec/UML/2.1'>" +
         documentation + "<uml:Model xmi:type='uml:Model' xmi:id='model' name='" + modelName + "'>" +
         elements + "</uml:Model></xmi:XMI>";
}

/// A packaged element of some type; `attributes` holds its id and name and whatever else it has.
inline std::string element(const std::string& type, const std::string& attributes,
                           const std::string& content = "") {
  return "<packagedElement xmi:type='uml:" + type + "' " + attributes + ">" + content + "</packagedElement>";
}

/// A comment on the element of that id, which is its documentation when it is the only one.
inline std::string commentOn(const std::string& id, const std::string& body) {
  return "<ownedComment xmi:type='uml:Comment' xmi:id='k" + id + "' body='" + body +
         "'><annotatedElement xmi:idref='" + id + "'/></ownedComment>";
}

/// A log that calls back at each message, while the bridge is at work.
class WatchingLog : public RecordingLog {
 public:
  void log(const KYRLogEvent& event) override {
    RecordingLog::log(event);
    if (watch) watch(std::string(event.getCode().view()));
  }
  std::function<void(const std::string& code)> watch;
};

class ImportedModel {
 public:
  /// Gathers what the import leaves in the model.
  explicit ImportedModel(const std::string& text, const std::string& rootPackage = "")
      : ImportedModel(text, rootPackage, [](KYRStoreModel&) {}) {}
  /// `prepare` may fill the model before the import.
  ImportedModel(const std::string& text, const std::string& rootPackage,
                const std::function<void(KYRStoreModel&)>& prepare)
      : file_(text) {
    prepare(model);
    KYROptionList options;
    getKYROmgUml2XmiImportInterface()->getOptionList(options);
    options.get("BP_FILE")->setValue(file_.path.c_str());
    options.get("BP_ROOT_PACKAGE")->setValue(rootPackage.c_str());
    {
      KYROmgUml2XmiImportBridge bridge(&log);
      EXPECT_EQ(bridge.importModel(model, options, "origin"), 1);
      steps = bridge.stepCount;
    }
    Gather gather(*this);
    model.depthTraversal(gather);
  }

  /// Whether an object of that id is in the model.
  bool has(const std::string& id) const { return byId_.count(id) != 0; }
  /// How many objects of that id are in the model.
  std::size_t countOf(const std::string& id) const { return byId_.count(id); }
  /// The object of that id; a failure of the test when there is none or it is of another class.
  template <class T>
  T& get(const std::string& id) const {
    const auto found = byId_.find(id);
    T* const object = found == byId_.end() ? nullptr : dynamic_cast<T*>(found->second);
    if (object == nullptr) throw std::runtime_error("no such object: " + id);
    return *object;
  }
  /// All objects of a class, in the order of the model.
  template <class T>
  std::vector<T*> all() const {
    std::vector<T*> found;
    for (KYRObject* object : objects_) {
      if (auto* const typed = dynamic_cast<T*>(object)) found.push_back(typed);
    }
    return found;
  }
  /// The names from below the model down to the object of that id.
  std::string pathOf(const std::string& id) const {
    return std::string(get<KYRObject>(id).getPath(true).view());
  }
  std::string filePath() const { return file_.path; }

  KYRStoreModel model;
  RecordingLog log;
  std::uint64_t steps = 0;

 private:
  class Gather : public KYRTraversalOperation {
   public:
    explicit Gather(ImportedModel& target) : target_(target) {}
    void visit(KYRObject& object) override {
      target_.objects_.push_back(&object);
      if (!object.sourceId.isEmpty()) target_.byId_.emplace(object.sourceId.view(), &object);
    }

   private:
    ImportedModel& target_;
  };

  TemporaryFile file_;
  std::vector<KYRObject*> objects_;
  std::multimap<std::string, KYRObject*> byId_;
};

/// Texts as tests compare them.
inline std::string text(const KYRString& value) { return std::string(value.view()); }

/// The texts of an element's notes, in order.
inline std::vector<std::string> notesOf(const KYRElement& object) {
  std::vector<std::string> texts;
  for (const KYRNote* note : object.notes) texts.push_back(text(note->noteText));
  return texts;
}
