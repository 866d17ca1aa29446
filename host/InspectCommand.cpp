// The report of an inspection, as text and as JSON.
#include "host/InspectCommand.h"

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "foundation/MemoryAtEnd.h"
#include "foundation/xml/XmlRewriting.h"
#include "host/InspectDiagrams.h"
#include "host/InspectImport.h"
#include "host/InspectObjects.h"
#include "host/InspectReport.h"
#include "host/JsonOut.h"
#include "host/KYRHostTexts.h"
#include "host/ProgressWatch.h"
#include "host/TextOut.h"
#include "uml/UMLElement.h"
#include "uml/UMLMetamodel.h"
#include "xmi/XMIParser.h"

namespace {

// What the text report is cut to; the other form has all.
constexpr std::size_t listedNames = 20;
constexpr std::size_t longestName = 120;  // some ids are lists of hundreds

struct ClassCount {
  const char* name;
  std::uint64_t count;
};

// The classes that have objects, the most frequent first.
std::vector<ClassCount> countClasses(const UMLObjectTable& objects) {
  std::array<std::uint64_t, UMLLineage::kindCount> counts = {};
  for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
    ++counts[static_cast<unsigned int>(objects.at(i)->getKind())];
  }
  std::vector<ClassCount> classes;
  for (std::size_t kind = 0; kind < counts.size(); ++kind) {
    if (counts[kind] != 0) classes.push_back({UMLMetamodel::classRows[kind].name, counts[kind]});
  }
  std::stable_sort(classes.begin(), classes.end(),
                   [](const ClassCount& a, const ClassCount& b) { return a.count > b.count; });
  return classes;
}

std::string shorten(std::string_view name) { return TerminalText::shorten(name, longestName); }

void listNames(TextOut& out, const HostText<1>& title, const std::vector<InspectReport::Met>& names) {
  if (names.empty()) return;
  out.line(title, names.size());
  const std::size_t listed = std::min(names.size(), listedNames);
  for (std::size_t i = 0; i < listed; ++i) {
    out.line(KYRHostTexts::INSPECT_COUNT_AT, names[i].count, shorten(names[i].name), names[i].firstPosition);
  }
  if (listed < names.size()) out.line(KYRHostTexts::INSPECT_MORE, names.size() - listed);
}

void namesToJson(JsonOut& json, const char* nameKey, const std::vector<InspectReport::Met>& names) {
  json.beginArray();
  for (const InspectReport::Met& met : names) {
    json.beginObject();
    json.key(nameKey).text(met.name);
    json.key("count").number(met.count);
    json.key("first").text(met.firstPosition);
    json.endObject();
  }
  json.endArray();
}

void importToText(TextOut& out, const InspectImport* import) {
  if (import == nullptr) return;
  if (!import->getFailure().isEmpty()) {
    out.line(KYRHostTexts::INSPECT_NO_IMPORT, import->getFailure());
    return;
  }
  const TraceCounts& counts = import->getCounts();
  const KYRTraceTotals& totals = counts.getTotals();
  out.line(KYRHostTexts::INSPECT_CONVERTED, totals.converted);
  out.line(KYRHostTexts::INSPECT_ABSORBED, totals.absorbed);
  counts.writeReasons(out, KYRTraceOutcome::absorbed);
  out.line(KYRHostTexts::INSPECT_LOST, totals.lost);
  counts.writeReasons(out, KYRTraceOutcome::lost);
}

void importToJson(JsonOut& json, const InspectImport* import) {
  if (import == nullptr) return;
  json.key("import").beginObject();
  if (import->getFailure().isEmpty()) {
    import->getCounts().writeTotals(json);
    import->getCounts().writeReasons(json);
  } else {
    json.key("failure").text(import->getFailure());
  }
  json.endObject();
}

}  // namespace

void InspectCommand::run() {
  if (settings_.normalize.isWanted()) {
    const KYRFile input{KYRString(settings_.file)};
    normalizer_.emplace(std::string(input.getFileName().view()), settings_.normalize.getExtent());
  }
  const ProgressWatch progress(true);
  if (settings_.listsObjects) {
    listObjects();
  } else {
    report();
  }
}

void InspectCommand::listObjects() {
  const KYRFile input{KYRString(settings_.file)};
  std::optional<XmlRewriting> rewriting;
  if (normalizer_) rewriting.emplace(input, *normalizer_);
  XMIParser parser(&log_);
  parser.parse(input);
  InspectObjects(parser.getObjects(), parser.getMadeObjects()).write(output_);
}

// The import comes first: its model is gone before the objects of the report are made.
void InspectCommand::report() {
  Normalizer* const normalizer = normalizer_ ? &*normalizer_ : nullptr;
  std::unique_ptr<const InspectImport> import;
  if (!settings_.isQuick) {
    import = std::make_unique<const InspectImport>(settings_.file, normalizer, library_);
  }
  const KYRFile input{KYRString(settings_.file)};
  std::optional<XmlRewriting> rewriting;
  if (import == nullptr && normalizer != nullptr) rewriting.emplace(input, *normalizer);
  InspectReport report;
  auto parser = std::make_unique<XMIParser>(&log_);
  parser->setObserver(&report);
  parser->parse(input);
  const InspectDiagrams diagrams(log_, input);
  if (settings_.isJson) {
    writeJson(*parser, report, diagrams, import.get());
  } else {
    writeText(*parser, report, diagrams, import.get());
  }
  MemoryAtEnd::leaveToSystem(true);  // the command has nothing left to do
  const std::size_t count = parser->getObjects().getCount();
  MemoryAtEnd::give(std::move(parser), count);
}

void InspectCommand::writeText(const XMIParser& parser, const InspectReport& report,
                               const InspectDiagrams& diagrams, const InspectImport* import) {
  using namespace KYRHostTexts;
  const KYRString unknown = INSPECT_UNKNOWN.toString();
  const auto known = [&unknown](const KYRString& text) { return text.isEmpty() ? unknown : text; };
  TextOut out(output_);
  out.line(INSPECT_FILE, settings_.file);
  const KYRString& version = parser.getExporterVersion();
  out.line(INSPECT_TOOL,
           known(version.isEmpty() ? parser.getExporter() : parser.getExporter() + " " + version));
  out.line(INSPECT_UML_VERSION, known(parser.getUmlVersion()));
  out.line(INSPECT_XMI_VERSION, known(parser.getXmiVersion()));
  out.line(INSPECT_OBJECTS, parser.getObjects().getCount());
  for (const ClassCount& entry : countClasses(parser.getObjects())) {
    out.line(INSPECT_COUNT, entry.count, entry.name);
  }
  if (parser.getMadeObjects().getCount() != 0) out.line(INSPECT_MADE, parser.getMadeObjects().getCount());
  if (diagrams.getCount() != 0) out.line(INSPECT_DIAGRAMS, diagrams.getCount());
  for (const InspectDiagrams::Kind& kind : diagrams.getKinds()) {
    out.line(INSPECT_COUNT, kind.count, known(KYRString(shorten(kind.name.view()))));
  }
  out.line(INSPECT_REFERENCES, report.getResolved(), report.getUnresolved(), report.getUnfitting());
  if (report.getWithoutId() != 0) out.line(INSPECT_WITHOUT_ID, report.getWithoutId());
  if (!report.getFirstMissingIds().empty()) out.line(INSPECT_MISSING_IDS);
  for (const KYRString& id : report.getFirstMissingIds()) out.line(INSPECT_MISSING_ID, shorten(id.view()));
  listNames(out, INSPECT_SKIPPED_TYPES, report.getSkippedTypes());
  listNames(out, INSPECT_UNKNOWN_TAGS, report.getUnknownTags());
  importToText(out, import);
  if (normalizer_) NormalizeSummary::toText(out, normalizer_->getReport());
}

void InspectCommand::writeJson(const XMIParser& parser, const InspectReport& report,
                               const InspectDiagrams& diagrams, const InspectImport* import) {
  JsonOut json;
  json.beginObject();
  json.key("file").text(settings_.file);
  json.key("tool").text(parser.getExporter());
  json.key("toolVersion").text(parser.getExporterVersion());
  json.key("umlVersion").text(parser.getUmlVersion());
  json.key("xmiVersion").text(parser.getXmiVersion());
  json.key("objects").number(parser.getObjects().getCount());
  json.key("made").number(parser.getMadeObjects().getCount());
  json.key("classes").beginObject();
  for (const ClassCount& entry : countClasses(parser.getObjects())) json.key(entry.name).number(entry.count);
  json.endObject();
  json.key("diagrams").beginArray();
  for (const InspectDiagrams::Kind& kind : diagrams.getKinds()) {
    json.beginObject();
    json.key("kind").text(kind.name);
    json.key("count").number(kind.count);
    json.endObject();
  }
  json.endArray();
  json.key("references").beginObject();
  json.key("resolved").number(report.getResolved());
  json.key("unresolved").number(report.getUnresolved());
  json.key("withoutId").number(report.getWithoutId());
  json.key("unfitting").number(report.getUnfitting());
  json.key("firstMissingIds").beginArray();
  for (const KYRString& id : report.getFirstMissingIds()) json.text(id);
  json.endArray();
  json.endObject();
  namesToJson(json.key("skippedTypes"), "type", report.getSkippedTypes());
  namesToJson(json.key("unknownTags"), "tag", report.getUnknownTags());
  importToJson(json, import);
  if (normalizer_) NormalizeSummary::toJson(json.key("normalized"), normalizer_->getReport());
  json.endObject();
  output_.write(json.endLine());
}
