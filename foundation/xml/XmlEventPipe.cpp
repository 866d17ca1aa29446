// A ring of batches between the two threads. Only whole batches change hands under the lock.
#include "foundation/xml/XmlEventPipe.h"

XmlEventPipe::XmlEventPipe() : batches_(batchCount) {}

XmlEventPipe::~XmlEventPipe() = default;

void XmlEventPipe::startDocument(const std::shared_ptr<const XmlDocument>& /*document*/) {}

void XmlEventPipe::startElement(XmlDocument::Node node) { push(node); }

void XmlEventPipe::endElement(XmlDocument::Node /*node*/) { push(XmlDocument::noNode); }

void XmlEventPipe::characters(XmlDocument::Node node) { push(node); }

void XmlEventPipe::processingInstruction(const KYRString& /*target*/, const KYRString& /*data*/) {}

// The number of the batch being filled changes on this thread only, so reading it takes no lock.
void XmlEventPipe::push(Event event) {
  Batch& current = batch(filled_);
  current.events[current.count++] = event;
  if (current.count == batchSize) handOver();
}

void XmlEventPipe::handOver() {
  std::unique_lock lock(mutex_);
  ++filled_;
  changed_.notify_one();
  changed_.wait(lock, [this] { return isAbandoned_ || filled_ - followed_ < batchCount; });
  if (isAbandoned_) throw Abandoned();
  batch(filled_).count = 0;
}

void XmlEventPipe::close(const std::exception_ptr& failure) noexcept {
  const std::lock_guard lock(mutex_);
  ++filled_;
  failure_ = failure;
  isClosed_ = true;
  changed_.notify_one();
}

void XmlEventPipe::follow(const XmlDocument& document, XmlDocumentListener& listener) {
  constexpr std::size_t ahead = 24;  // events: some eight elements, in which ids are asked for by stages
  XmlDocument::Node open = XmlDocument::noNode;
  for (std::size_t number = 0;; ++number) {
    {
      std::unique_lock lock(mutex_);
      followed_ = number;
      changed_.notify_one();
      changed_.wait(lock, [&] { return isClosed_ || filled_ > number; });
      if (filled_ == number) {
        if (failure_) std::rethrow_exception(failure_);
        return;
      }
    }
    const Batch& current = batch(number);
    for (std::size_t at = 0; at < current.count; ++at) {
      const Event event = current.events[at];
      if (at + ahead < current.count) {
        const Event coming = current.events[at + ahead];
        if (coming != XmlDocument::noNode && document.isElement(coming)) listener.expect(coming);
      }
      if (event == XmlDocument::noNode) {
        listener.endElement(open);
        open = document.getParent(open);
      } else if (document.isElement(event)) {
        open = event;
        listener.startElement(event);
      } else {
        listener.characters(event);
      }
    }
  }
}

void XmlEventPipe::abandon() noexcept {
  const std::lock_guard lock(mutex_);
  isAbandoned_ = true;
  changed_.notify_one();
}
