// NormalizedFile: texts before and after a rule, and what an import makes of each.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "foundation/xml/XmlDocumentReader.h"
#include "foundation/xml/XmlDocumentWriter.h"
#include "normalize/IdRule.h"
#include "normalize/Normalizer.h"
#include "repository/storage/StoreModelFile.h"
#include "tests/convert/ImportedModel.h"
#include "xmi/DispatchRows.h"

inline constexpr char fileName[] = "shop.xmi";

inline std::string textOf(const XmlDocument& document) {
  std::string text;
  writeXmlDocument(document, [&text](std::string_view piece) { text += piece; });
  return text;
}

inline std::shared_ptr<const XmlDocument> documentOf(const std::string& text) {
  return readXmlFile(TemporaryFile(text).file(), nullptr, false);
}

/// The text as a document says it, with nothing changed.
inline std::string plain(const std::string& text) { return textOf(*documentOf(text)); }

/// The text behind all rules.
inline std::string normalized(const std::string& text, NormalizeReport* report = nullptr,
                              Normalizer::Extent extent = Normalizer::Extent::usual) {
  Normalizer normalizer(fileName, extent);
  std::string result = textOf(*normalizer.rewrite(documentOf(text)));
  if (report != nullptr) *report = normalizer.getReport();
  return result;
}

/// The text behind one rule, and what it has reported.
struct Changed {
  std::string text;
  NormalizeReport report;
};
inline Changed changedBy(DocumentRule& rule, const std::string& text, bool needsIds = false) {
  Changed changed;
  NormalizedDocument document(documentOf(text), fileName, changed.report);
  document.findRegions();
  if (needsIds) IdRule().apply(document);
  changed.report = NormalizeReport();
  rule.apply(document);
  changed.text = textOf(*document.editor.build());
  return changed;
}

/// Elements of a model before and behind a rule; without an `after` the rule must not fire.
struct RuleCase {
  const char* what;
  std::string before;
  std::string after;
};

template <class Rule>
void expectCases(NormalizeRule number, const std::vector<RuleCase>& cases, bool needsIds = false) {
  for (const RuleCase& each : cases) {
    SCOPED_TRACE(each.what);
    Rule rule;
    const Changed changed = changedBy(rule, xmi(each.before), needsIds);
    EXPECT_EQ(changed.text, plain(xmi(each.after.empty() ? each.before : each.after)));
    EXPECT_EQ(changed.report.of(number).fired != 0, !each.after.empty());
  }
}

/// The model that an import saves, as text, without what tells of the file.
inline std::string imported(const std::string& text) {
  DispatchRows::resetForTests();
  const ImportedModel model(text);
  const TemporaryFile target("");
  saveStoreModelFile(target.file(), model.model);
  std::ostringstream content;
  content << std::ifstream(target.path, std::ios::binary).rdbuf();
  const std::string saved = content.str();
  return saved.substr(saved.find("\"model\":"));
}
