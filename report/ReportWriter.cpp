// The page, with model and pictures in data elements that no browser runs.
#include "report/ReportWriter.h"

#include <string>

#include "report/ReportModelWriter.h"
#include "report/ReportPage.h"
#include "report/ScriptText.h"
#include "repository/drawing/ClassDiagramDrawing.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/storage/StoredNumbers.h"

namespace {

void writeModel(const KYRStoreModel& model, BlockSink& sink) {
  sink.write("<script type=\"application/json\" id=\"model\">");
  ScriptText text(sink);
  ReportModelWriter writer(text);
  writeStoreModel(model, writer);
  sink.write("</script>\n");
}

// A picture has "<" in its own tags only: in texts it is escaped.
void writeDiagrams(const KYRStoreModel& model, BlockSink& sink) {
  const StoredNumbers numbers(model, StoredNumbers::Use::shared);
  const DrawnLinks links = [&numbers](const KYRModelObject& subject) {
    const unsigned int id = numbers.get(&subject);
    return id == 0 ? std::string() : "#id/" + std::to_string(id);
  };
  for (unsigned int id = 1; id <= numbers.getCount(); ++id) {
    const auto* const diagram = dynamic_cast<const KYRClassDiagram*>(numbers.at(id));
    if (diagram == nullptr) continue;
    sink.write("<script type=\"image/svg+xml\" id=\"diagram-" + std::to_string(id) + "\">");
    sink.write(drawSvg(*diagram, links));
    sink.write("</script>\n");
  }
}

void writeAddition(std::string_view id, std::string_view json, BlockSink& sink) {
  if (json.empty()) return;
  sink.write("<script type=\"application/json\" id=\"");
  sink.write(id);
  sink.write("\">");
  ScriptText(sink).write(json);
  sink.write("</script>\n");
}

}  // namespace

void writeReport(const KYRStoreModel& model, const ReportAdditions& additions, BlockSink& sink) {
  sink.write(ReportPage::beforeStyle);
  sink.write(ReportPage::style);
  sink.write(ReportPage::beforeModel);
  writeModel(model, sink);
  writeAddition("messages", additions.messages, sink);
  writeAddition("pictures", additions.pictures, sink);
  writeDiagrams(model, sink);
  sink.write(ReportPage::beforeScript);
  for (const std::string_view piece : ReportPage::script) sink.write(piece);
  sink.write(ReportPage::afterScript);
}
