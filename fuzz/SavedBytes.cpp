// The writers with a string as their file.
#include "fuzz/SavedBytes.h"

#include "fuzz/FuzzEntries.h"
#include "repository/drawing/ClassDiagramDrawing.h"
#include "repository/model/KYRTraversalOperation.h"
#include "repository/storage/JsonStoreModelWriter.h"
#include "repository/storage/SqlStoreModelWriter.h"
#include "repository/storage/StoreModelFile.h"
#include "tests/support/MemoryFile.h"

namespace {

class StringSink : public BlockSink {
 public:
  void write(std::string_view block) override { bytes += block; }
  std::string bytes;
};

template <class Writer>
std::string bytesOf(const KYRStoreModel& model) {
  StringSink sink;
  Writer writer(sink);
  writeStoreModel(model, writer);
  return sink.bytes;
}

class Draw : public KYRTraversalOperation {
 public:
  void visit(KYRObject& object) override {
    const auto* const diagram = dynamic_cast<KYRClassDiagram*>(&object);
    if (diagram == nullptr) return;
    const std::string picture = drawSvg(*diagram);
    promise(picture.find("</svg>") != std::string::npos, "a picture is a whole document");
  }
};

}  // namespace

std::string savedBytesOf(const KYRStoreModel& model) { return bytesOf<JsonStoreModelWriter>(model); }

std::string sqlBytesOf(const KYRStoreModel& model) { return bytesOf<SqlStoreModelWriter>(model); }

void checkComesBack(const std::string& saved) {
  const MemoryFile file(saved);
  const auto loaded = loadStoreModel(file.file());
  promise(savedBytesOf(*loaded) == saved, "a saved model comes back byte for byte");
}

void drawAll(KYRStoreModel& model) {
  Draw draw;
  model.depthTraversal(draw);
}
