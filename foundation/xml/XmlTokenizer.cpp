// The quick reader first, and what it leaves over by the strict one.
#include "foundation/xml/XmlTokenizer.h"

#include <algorithm>

#include "foundation/KYRStdMessages.h"
#include "foundation/xml/XmlExpatTokenizer.h"
#include "foundation/xml/XmlQuickTokenizer.h"

namespace {

std::uint64_t runCount = 0;

// Passes over the events that have been told before, and hands on the others.
class RemainingEvents final : public XmlEventSink {
 public:
  RemainingEvents(const XmlInput& input, XmlEventSink& sink, const XmlProgress& told)
      : input_(input), sink_(sink), told_(told), textLeft_(told.textBytes) {}

  void startElement(std::string_view tag, const Attribute* attributes, std::size_t attributeCount,
                    const XmlPosition& position) override {
    if (isPast()) {
      sink_.startElement(tag, attributes, attributeCount, position);
    } else {
      seen_.addStart(position);
    }
  }
  void endElement() override {
    if (isPast()) {
      sink_.endElement();
    } else {
      seen_.addEnd();
    }
  }
  void characters(std::string_view text) override {
    if (seen_.events != told_.events) return;
    const std::size_t told = std::min<std::uint64_t>(text.size(), textLeft_);
    textLeft_ -= told;
    if (told < text.size()) sink_.characters(text.substr(told));
  }
  void processingInstruction(std::string_view target, std::string_view data) override {
    if (isPast()) {
      sink_.processingInstruction(target, data);
    } else {
      seen_.addInstruction();
    }
  }
  /// Raises when the text had not even the events told before.
  void finish() const {
    if (seen_.events < told_.events) raiseChanged();
  }

 private:
  // Whether the events told before are over. Events that contradict them come of another text.
  bool isPast() {
    if (seen_.events < told_.events) return false;
    if (seen_.depth != told_.depth || !(seen_.lastStart == told_.lastStart)) raiseChanged();
    textLeft_ = 0;
    return true;
  }
  [[noreturn]] void raiseChanged() const {
    KYRStdMessages::FILE_HAS_CHANGED.throwException(input_.getName());
  }

  const XmlInput& input_;
  XmlEventSink& sink_;
  const XmlProgress told_;
  XmlProgress seen_;
  std::uint64_t textLeft_;
};

}  // namespace

std::uint64_t XmlTokenizer::getRunCount() noexcept { return runCount; }

void XmlTokenizer::run() {
  ++runCount;
  XmlProgress told;
  if (input_.canRewind()) {
    {
      XmlQuickTokenizer quick(input_, sink_, blockSize_, threads_);
      if (quick.run()) return;
      told = quick.getProgress();
    }  // and with it the thread that read ahead
    input_.rewind();
  }
  RemainingEvents rest(input_, sink_, told);
  XmlExpatTokenizer(input_, rest, blockSize_).run();
  rest.finish();
}
