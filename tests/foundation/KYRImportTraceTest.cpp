// A trace is told of imports as long as a host has made it current.
#include "foundation/KYRImportTrace.h"

#include <gtest/gtest.h>

TEST(KYRImportTrace, NoneIsCurrentUnlessAHostMakesItSo) {
  class Silent : public KYRImportTrace {
    void record(const KYRTraceRecord&) override {}
    void finish(const KYRTraceTotals&) override {}
  } silent;
  EXPECT_EQ(KYRImportTrace::getCurrent(), nullptr);
  KYRImportTrace::setCurrent(&silent);
  EXPECT_EQ(KYRImportTrace::getCurrent(), &silent);
  KYRImportTrace::setCurrent(nullptr);
  EXPECT_EQ(KYRImportTrace::getCurrent(), nullptr);
}
