// The second reading, with a reader of the command's own: the plug-in's rows keep what they have seen.
#include "host/LossSurvey.h"

#include <system_error>
#include <utility>

#include "foundation/KYRException.h"
#include "foundation/KYRLog.h"
#include "foundation/MemoryAtEnd.h"
#include "foundation/WorkerThread.h"
#include "host/ArrivalCount.h"
#include "host/NormalizeSummary.h"
#include "xmi/XMIParser.h"

namespace {

// The rules are through with fewer nodes sooner than a thread begins.
constexpr XmlDocument::Node worthAThread = 10000;

// Its import has said all there is to say of the file.
class Silence final : public KYRLog {
 public:
  void log(const KYRLogEvent&) override {}
};

class Replacement final : public XmlRewriter {
 public:
  explicit Replacement(std::shared_ptr<const XmlDocument> document) : document_(std::move(document)) {}
  std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>&) override {
    return document_;
  }

 private:
  std::shared_ptr<const XmlDocument> document_;
};

std::uint64_t missing(std::uint64_t expected, std::uint64_t found) {
  return expected > found ? expected - found : 0;
}

}  // namespace

LossSurvey::~LossSurvey() { wait(); }

void LossSurvey::wait() noexcept {
  if (worker_.joinable()) worker_.join();
}

std::shared_ptr<const XmlDocument> LossSurvey::rewrite(const std::shared_ptr<const XmlDocument>& document) {
  // An import reads its file more than once, and gets the same document each time as long as it lives.
  if (surveyed_.lock() == document) return document;
  wait();  // another document: the rules of the first one use the normalizer
  surveyed_ = document;
  std::packaged_task<std::shared_ptr<const XmlDocument>()> rules([this, written = document]() mutable {
    std::shared_ptr<const XmlDocument> normalized = normalizer_.rewrite(written);
    if (!isReadAgain_) written.reset();  // the task outlives its run
    if (!normalizer_.getReport().matters()) return std::shared_ptr<const XmlDocument>();
    // The file will be read once more then, so what the import leaves behind is better freed.
    MemoryAtEnd::needMemory(true);
    return normalized;
  });
  normalized_ = rules.get_future();
  if (document->getNodeCount() < worthAThread) {
    rules();
    return document;
  }
  try {
    worker_ = startWorkerThread(std::move(rules));
  } catch (const std::system_error&) {  // the system has no thread to give: then nothing is told of losses
    normalized_ = {};
  }
  return document;
}

std::optional<LossSurvey::Loss> LossSurvey::compare(const KYRFile& file, const SavedModelCounts& saved,
                                                    bool hasRootPackage) {
  if (!normalized_.valid()) return std::nullopt;
  Replacement replacement(normalized_.get());
  if (!normalizer_.getReport().matters()) return std::nullopt;
  try {
    const XmlRewriting rewriting(file, replacement);
    Silence silence;
    XMIParser parser(&silence);
    UMLModel* const model = parser.parse(file);
    if (model == nullptr) return std::nullopt;
    const ArrivalCount arrival(*model, hasRootPackage);
    Loss loss;
    loss.classes = missing(arrival.classes, saved.classes + saved.interfaces);
    loss.attributes = missing(arrival.attributes, saved.attributes);
    loss.associations = missing(arrival.associations, saved.associations);
    if (loss.classes + loss.attributes + loss.associations == 0) return std::nullopt;
    loss.reasons = NormalizeSummary::describeReasons(normalizer_.getReport());
    return loss;
  } catch (const KYRException&) {
    // The import has succeeded; a file that has changed since then takes nothing from that.
    return std::nullopt;
  }
}
