// XmlEventPipe: a document is filled on one thread and followed on another.
//
// Tokenising and what readers do with the events take about the same time, so for a large file they
// run side by side. The filling thread hands over node numbers in batches; nodes, names and texts of
// a document never move, so the following thread reads those it was told of while others are
// appended. The batches that wait are few: a thread that runs ahead waits for the other.
#pragma once

#include <array>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <vector>

#include "foundation/xml/XmlDocument.h"
#include "foundation/xml/XmlDocumentListener.h"

class KYR_EXPORT XmlEventPipe final : public XmlDocumentListener {
 public:
  /// What the filling thread's next event raises once the other side has given up.
  struct Abandoned {};

  XmlEventPipe();
  ~XmlEventPipe() override;

  // The filling thread's side. The document itself must be known to the follower beforehand, and
  // processing instructions are not handed over.
  void startDocument(const std::shared_ptr<const XmlDocument>& document) override;
  void startElement(XmlDocument::Node node) override;
  void endElement(XmlDocument::Node node) override;
  void characters(XmlDocument::Node node) override;
  void processingInstruction(const KYRString& target, const KYRString& data) override;
  /// Ends the events; `failure`, unless null, is what `follow` raises behind the last of them.
  void close(const std::exception_ptr& failure) noexcept;

  // The following thread's side.
  /// Tells `listener` of all events but the start of the document, and of elements to expect. Raises what
  /// ended the filling, or what the listener raises.
  void follow(const XmlDocument& document, XmlDocumentListener& listener);
  /// Lets the filling thread end at its next event. `follow` must not be called afterwards.
  void abandon() noexcept;

 private:
  // A node that starts or is a text; noNode ends the innermost open element.
  using Event = XmlDocument::Node;
  static constexpr std::size_t batchSize = 8192;
  static constexpr std::size_t batchCount = 16;
  struct Batch {
    std::array<Event, batchSize> events;
    std::size_t count = 0;
  };

  void push(Event event);
  void handOver();
  Batch& batch(std::size_t number) noexcept { return batches_[number % batchCount]; }

  std::vector<Batch> batches_;  // a ring
  std::mutex mutex_;            // guards what follows
  std::condition_variable changed_;
  std::size_t filled_ = 0;    // batches handed over; the one being filled has this number
  std::size_t followed_ = 0;  // batches that may be filled anew
  bool isClosed_ = false;
  bool isAbandoned_ = false;
  std::exception_ptr failure_;
};
