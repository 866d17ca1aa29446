// Loading a model, and one file for each of its diagrams.
#include "host/DiagramCommand.h"

#include "host/KYRHostMessages.h"
#include "host/KYRHostTexts.h"
#include "host/PictureNames.h"
#include "host/SavedModel.h"
#include "host/TextOut.h"
#include "repository/drawing/ClassDiagramDrawing.h"
#include "repository/model/KYRObjectCollector.h"
#include "repository/storage/ReplacedFile.h"

namespace {

void writeFile(const std::string& path, std::string_view content) {
  ReplacedFile file(KYRFile(KYRString(path)), ReplacedFile::Wait::untilNamed);
  file.write(content);
  file.commit();
}

}  // namespace

void DiagramCommand::run() {
  const std::unique_ptr<KYRStoreModel> model = SavedModel::load(settings_.file);
  const std::vector<const KYRClassDiagram*> diagrams = findDiagrams(*model);
  PictureNames names(settings_.folder);
  TextOut out(output_);
  for (const KYRClassDiagram* diagram : diagrams) {
    const std::string path = names.pathFor(diagram->getName().view());
    writeFile(path, drawSvg(*diagram));
    out.line(KYRHostTexts::DIAGRAM_WRITTEN, path);
  }
}

std::vector<const KYRClassDiagram*> DiagramCommand::findDiagrams(KYRStoreModel& model) const {
  KYRObjectCollector collector(KYRElementType::classDiagram);
  model.depthTraversal(collector);
  std::vector<const KYRClassDiagram*> diagrams;
  for (const KYRObject* object : collector) {
    if (!settings_.name.empty() && object->getName().view() != settings_.name) continue;
    diagrams.push_back(dynamic_cast<const KYRClassDiagram*>(object));
  }
  if (!diagrams.empty()) return diagrams;
  if (settings_.name.empty()) KYRHostMessages::NO_DIAGRAMS.throwException(KYRString(settings_.file));
  KYRHostMessages::NO_SUCH_DIAGRAM.throwException(KYRString(settings_.file), KYRString(settings_.name));
}
