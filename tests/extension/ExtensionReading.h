// What the tests of both extensions share: limits out of the way, and failures from outside.
#pragma once

#include "foundation/xml/XmlLimits.h"
#include "tests/xmi/Reading.h"

/// Files may nest this deep while the object lives.
class DeeperFiles {
 public:
  explicit DeeperFiles(unsigned int depth) : before_(XmlLimits::get()) {
    XmlLimits limits = before_;
    limits.maxDepth = depth;
    XmlLimits::set(limits);
  }
  DeeperFiles(const DeeperFiles&) = delete;
  DeeperFiles& operator=(const DeeperFiles&) = delete;
  ~DeeperFiles() { XmlLimits::set(before_); }

 private:
  XmlLimits before_;
};

/// A log of a host that fails when an extension is about to be processed.
class FailingLog : public KYRLog {
 public:
  void log(const KYRLogEvent& event) override {
    if (event.getCode().view() == "KBI_UML2XMI_S0012") throw std::runtime_error("the host's own");
  }
};

/// Reads the text with a log that fails, which the reader reports as its own failure.
inline void expectUnknownError(const std::string& xml) {
  const TemporaryFile file(xml);
  FailingLog log;
  DispatchRows::resetForTests();
  XMIParser parser(&log);
  std::string message;
  try {
    parser.parse(file.file());
  } catch (const KYRException& exception) {
    message = exception.getMessage().getCharacters();
  }
  EXPECT_EQ(message.substr(0, 72), "[KBI_UML2XMI_F0007] An XML parsing error occurred 'Unknown error'. This ")
      << message;
}
