// TracedImport: a small XMI text imported with a trace, and what that tells of each id.
#pragma once

#include <string>
#include <vector>

#include "foundation/KYRImportTrace.h"
#include "tests/convert/ImportedModel.h"

class TracedImport : public KYRImportTrace {
 public:
  explicit TracedImport(const std::string& text, const std::string& rootPackage = "") {
    setCurrent(this);
    const ImportedModel imported(text, rootPackage);
    setCurrent(nullptr);
  }
  void record(const KYRTraceRecord& told) override { records.push_back(told); }
  void finish(const KYRTraceTotals& sum) override {
    totals = sum;
    ++finished;
  }

  /// What became of the element of that id: "converted" when nothing is told of it, else the code.
  std::string fateOf(const std::string& id) const {
    const KYRTraceRecord* const told = find(id);
    return told == nullptr ? "converted" : codeOf(*told);
  }
  /// The record of an element of that id that is no note; null when there is none.
  const KYRTraceRecord* find(const std::string& id) const {
    for (const KYRTraceRecord& told : records) {
      const bool isNote = KYRTraceReasons::get(told.reason).outcome == KYRTraceOutcome::noted;
      if (!isNote && told.id.view() == id) return &told;
    }
    return nullptr;
  }
  std::vector<KYRTraceRecord> notesOf(KYRTraceReason reason) const {
    std::vector<KYRTraceRecord> notes;
    for (const KYRTraceRecord& told : records) {
      if (told.reason == reason) notes.push_back(told);
    }
    return notes;
  }
  static std::string codeOf(const KYRTraceRecord& told) {
    return text(KYRTraceReasons::get(told.reason).getIdentifier());
  }

  std::vector<KYRTraceRecord> records;
  KYRTraceTotals totals;
  int finished = 0;
};

// Pieces of models.
inline std::string property(const std::string& attributes, const std::string& content = "") {
  return "<ownedAttribute xmi:type='uml:Property' " + attributes + ">" + content + "</ownedAttribute>";
}
inline std::string value(const std::string& tag, const std::string& type, const std::string& id,
                         const std::string& attributes = "") {
  return "<" + tag + " xmi:type='uml:" + type + "' xmi:id='" + id + "' " + attributes + "/>";
}
/// A package "p" around the elements, so that they are placed.
inline std::string inPackage(const std::string& elements) {
  return xmi(element("Package", "xmi:id='p' name='P'", elements));
}
inline std::string classNamed(const std::string& id, const std::string& content = "") {
  return element("Class", "xmi:id='" + id + "' name='" + id + "'", content);
}
/// An association "as" of two ends "e1" and "e2" with those types and that content of the second.
inline std::string association(const std::string& first, const std::string& second,
                               const std::string& content = "") {
  const auto end = [](const std::string& id, const std::string& type, const std::string& inner) {
    return "<ownedEnd xmi:type='uml:Property' xmi:id='" + id + "' association='as'" +
           (type.empty() ? "" : " type='" + type + "'") + ">" + inner + "</ownedEnd>";
  };
  return element("Association", "xmi:id='as'", end("e1", first, "") + end("e2", second, content));
}
