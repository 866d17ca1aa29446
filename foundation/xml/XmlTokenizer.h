// XmlTokenizer: an XML text as a series of events.
//
// Two libraries do the work. libxml2 reads what is in order at two to three times the speed of expat, and
// nearly every file is in order. Whatever is not, or what only one of the two may judge (a DOCTYPE, a limit),
// ends its part without a word: the input is then read again from its start by expat, which passes over what
// has been told already, goes on from there, and alone decides what is an error and how it is told.
#pragma once

#include <cstddef>
#include <cstdint>

#include "foundation/Export.h"
#include "foundation/xml/XmlEventSink.h"
#include "foundation/xml/XmlInput.h"
#include "foundation/xml/XmlTextBlocks.h"

class KYR_EXPORT XmlTokenizer {
 public:
  /// Bytes read at a time. Larger blocks gain nothing and leave the processor's cache.
  static constexpr std::size_t defaultBlockSize = std::size_t{64} * 1024;

  /// Both must outlive the tokenizer. The events do not depend on `blockSize`.
  /// Whatever `threads` says, the sink is called on the thread that calls `run`.
  XmlTokenizer(XmlInput& input, XmlEventSink& sink, std::size_t blockSize = defaultBlockSize,
               XmlThreads threads = XmlThreads::one)
      : input_(input), sink_(sink), blockSize_(blockSize), threads_(threads) {}

  /// Reads the input to its end. Raises a KYRException with file, line, column and reason for what is
  /// not well-formed (XML 1.0), not valid in its encoding or beyond a limit; an exception of the sink
  /// passes through as it is. To be called once.
  void run();
  /// How often `run` was called in this process; tests see by it that a file is not read twice.
  static std::uint64_t getRunCount() noexcept;

 private:
  XmlInput& input_;
  XmlEventSink& sink_;
  const std::size_t blockSize_;
  const XmlThreads threads_;
};
