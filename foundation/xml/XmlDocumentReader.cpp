// Puts input, tokenizer, builder and cache together.
#include "foundation/xml/XmlDocumentReader.h"

#include <exception>
#include <system_error>
#include <thread>

#include "foundation/KYRPhaseTimes.h"
#include "foundation/WorkerThread.h"
#include "foundation/xml/XmlDocumentBuilder.h"
#include "foundation/xml/XmlDocumentCache.h"
#include "foundation/xml/XmlEncoding.h"
#include "foundation/xml/XmlEventPipe.h"
#include "foundation/xml/XmlFileInput.h"
#include "foundation/xml/XmlRewriting.h"

namespace {

// Below that size a second thread costs more than it saves.
constexpr std::uint64_t worthAThread = std::uint64_t{1} << 20;

bool isWorthAThread(const XmlFileIdentity& identity) noexcept {
  return identity.size >= worthAThread && std::thread::hardware_concurrency() > 1;
}

// Fills the document and tells the pipe how it ended. Runs on a thread of its own.
void fill(XmlInput& input, XmlDocumentBuilder& builder, XmlEventPipe& pipe) noexcept {
  try {
    const KYRPhaseTimer timer(KYRPhase::tokenise);
    XmlTokenizer(input, builder, XmlTokenizer::defaultBlockSize, XmlThreads::several).run();
    pipe.close(nullptr);
  } catch (...) {
    pipe.close(std::current_exception());
  }
}

// Waits for the filling thread on every way out; a listener that raised wants nothing more of it.
class FillingThread {
 public:
  template <class Work>
  FillingThread(XmlEventPipe& pipe, Work work) : pipe_(pipe), thread_(startWorkerThread(work)) {}
  FillingThread(const FillingThread&) = delete;
  FillingThread& operator=(const FillingThread&) = delete;
  ~FillingThread() {
    pipe_.abandon();
    thread_.join();
  }

 private:
  XmlEventPipe& pipe_;
  std::thread thread_;
};

}  // namespace

std::shared_ptr<const XmlDocument> readXmlInput(XmlInput& input, XmlDocumentListener* listener,
                                                std::size_t blockSize) {
  const KYRPhaseTimer timer(KYRPhase::tokenise);
  XmlDocumentBuilder builder(input, listener);
  XmlTokenizer(input, builder, blockSize).run();
  return builder.getDocument();
}

std::shared_ptr<const XmlDocument> readXmlInputAhead(XmlInput& input, XmlDocumentListener& listener) {
  XmlEventPipe pipe;
  XmlDocumentBuilder builder(input, &pipe);
  std::unique_ptr<FillingThread> filling;
  listener.startDocument(builder.getDocument());
  try {
    filling = std::make_unique<FillingThread>(pipe, [&] { fill(input, builder, pipe); });
  } catch (const std::system_error&) {  // the system has no thread to give: nothing has been read yet
    return readXmlInput(input, &listener);
  }
  const KYRPhaseTimer timer(KYRPhase::objects);
  pipe.follow(*builder.getDocument(), listener);
  return builder.getDocument();
}

namespace {

using Form = XmlDocumentCache::Form;

std::shared_ptr<const XmlDocument> readAsWritten(XmlFileInput& input, XmlDocumentListener* listener,
                                                 bool needsInstructions) {
  const XmlFileIdentity identity = input.getIdentity();
  XmlDocumentCache& cache = XmlDocumentCache::get();
  std::shared_ptr<const XmlDocument> document = cache.find(identity, getForcedXmlEncoding());
  if (document && !needsInstructions) {
    const KYRPhaseTimer timer(KYRPhase::objects);
    if (listener != nullptr) replayDocument(document, *listener);
    return document;
  }
  const bool readAhead = listener != nullptr && !needsInstructions && isWorthAThread(identity);
  document = readAhead ? readXmlInputAhead(input, *listener) : readXmlInput(input, listener);
  // A file that was written to meanwhile may have given a mixture of old and new.
  if (input.getIdentity() == identity) cache.add(identity, getForcedXmlEncoding(), document);
  return document;
}

std::shared_ptr<const XmlDocument> readRewritten(XmlFileInput& input, XmlDocumentListener* listener,
                                                 XmlRewriter& rewriter) {
  const XmlFileIdentity identity = input.getIdentity();
  XmlDocumentCache& cache = XmlDocumentCache::get();
  std::shared_ptr<const XmlDocument> document = cache.find(identity, getForcedXmlEncoding(), Form::rewritten);
  if (!document) {
    document = readAsWritten(input, nullptr, false);
    const KYRPhaseTimer timer(KYRPhase::normalise);
    document = rewriter.rewrite(document);
    if (input.getIdentity() == identity) {
      cache.add(identity, getForcedXmlEncoding(), document, Form::rewritten);
    }
  }
  const KYRPhaseTimer timer(KYRPhase::objects);
  if (listener != nullptr) replayDocument(document, *listener);
  return document;
}

}  // namespace

std::shared_ptr<const XmlDocument> readXmlFile(const KYRFile& file, XmlDocumentListener* listener,
                                               bool needsInstructions, XmlReading reading) {
  XmlFileInput input(file);
  XmlRewriter* const rewriter = reading == XmlReading::asInput ? XmlRewriting::find(file) : nullptr;
  if (rewriter == nullptr) return readAsWritten(input, listener, needsInstructions);
  if (!rewriter->watchesOnly()) return readRewritten(input, listener, *rewriter);
  std::shared_ptr<const XmlDocument> document = readAsWritten(input, listener, needsInstructions);
  rewriter->rewrite(document);
  return document;
}
