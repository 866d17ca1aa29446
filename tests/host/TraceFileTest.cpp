// The file of a trace, and what the summary says of it.
#include "host/TraceFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/support/TemporaryFile.h"

namespace {

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void tellTwo(TraceFile& trace) {
  KYRTraceRecord lost;
  lost.reason = KYRTraceReason::noName;
  lost.kind = "UMLClass";
  lost.id = "c";
  lost.line = 7;
  lost.sentence = "It has no name.";
  trace.record(lost);
  KYRTraceRecord tag;
  tag.reason = KYRTraceReason::tagIgnored;
  tag.name = "oddity\x1b";
  tag.count = 3;
  trace.record(tag);
  trace.finish({4, 3, 0, 1});
}

TEST(TraceFile, RecordsAreLinesAndTheLastIsTheSum) {
  const TemporaryFile file("before");
  TraceFile trace(file.path);
  EXPECT_EQ(KYRImportTrace::getCurrent(), &trace);
  tellTwo(trace);
  EXPECT_EQ(contentOf(file.path), "before");
  trace.commit(nullptr);
  EXPECT_EQ(contentOf(file.path),
            "{\"outcome\":\"lost\",\"reason\":\"no-name\",\"kind\":\"UMLClass\",\"id\":\"c\",\"line\":7,"
            "\"text\":\"It has no name.\"}\n"
            "{\"outcome\":\"noted\",\"reason\":\"tag-ignored\",\"name\":\"oddity\\u001B\",\"count\":3,"
            "\"text\":\"\"}\n"
            "{\"elements\":4,\"converted\":3,\"absorbed\":0,\"lost\":1}\n");
}

TEST(TraceFile, TheSummaryTellsSumAndReasons) {
  const TemporaryFile file("");
  TraceFile trace(file.path);
  tellTwo(trace);
  JsonOut json;
  json.beginObject();
  trace.write(json);
  json.endObject();
  EXPECT_EQ(json.endLine(), "{\"trace\":{\"output\":\"" + file.path +
                                "\",\"elements\":4,\"converted\":3,\"absorbed\":0,\"lost\":1,"
                                "\"reasons\":{\"no-name\":1,\"tag-ignored\":3}}}\n");
}

TEST(TraceFile, WithoutAPathNothingIsListenedToOrWritten) {
  TraceFile trace("");
  EXPECT_EQ(KYRImportTrace::getCurrent(), nullptr);
  trace.commit(nullptr);
  JsonOut json;
  json.beginObject();
  trace.write(json);
  json.endObject();
  EXPECT_EQ(json.endLine(), "{}\n");
}

TEST(TraceFile, ItIsNoLongerToldAfterItsEnd) {
  const TemporaryFile file("");
  { const TraceFile trace(file.path); }
  EXPECT_EQ(KYRImportTrace::getCurrent(), nullptr);
}

}  // namespace
