// Models that are added to a database while its reads, writes or syncs fail, one after the other: each ends
// with an error, and the database is as it was, at the latest when somebody opens it again.
#include <gtest/gtest.h>

#include <cerrno>
#include <iostream>

#include "repository/storage/StoreModelFile.h"
#include "tests/reliability/ImportRun.h"
#include "tests/reliability/Soak.h"
#include "tests/repository/SqliteFile.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/FailingCalls.h"
#include "tests/support/MemoryGrowth.h"

namespace {

std::unique_ptr<KYRStoreModel> modelOf(const char* sample) {
  ImportRun import(samplePath(sample));
  import.run();
  return loadStoreModel(KYRFile(import.output().c_str()));
}

class FailingAppend : public testing::Test {
 protected:
  FailingAppend() {
    saveStoreModelFile(file_, *modelOf("plain.xmi"), StoreModelFormat::sqlite);
    before_ = readWholeFile(path_);
  }

  /// Appends while the fault that is made lives, and sees that the database holds both models, or what it
  /// held and there is a message. Whether anything has failed.
  template <class MakeFault>
  bool appendWith(const MakeFault& makeFault, const char* reason) {
    std::ofstream(path_, std::ios::binary) << before_;
    bool hasFailed = false;
    std::string message;
    {
      const auto fault = makeFault();
      try {
        appendStoreModelFile(file_, *added_);
      } catch (const KYRException& exception) {
        message = exception.getMessage().getCharacters();
      } catch (const std::bad_alloc&) {
        message = outOfMemory;
      }
      hasFailed = fault.hasFailed();
    }
    const SqliteFile database(path_);  // an unfinished journal is played back here
    const std::string expected = message.empty() ? "2" : "1";
    EXPECT_EQ(database.ask("SELECT count(*) FROM models"), expected) << message;
    if (message.empty()) {
      EXPECT_EQ(database.ask("PRAGMA integrity_check"), "ok");
      ++done_;
    } else {
      EXPECT_EQ(readWholeFile(path_), before_) << message;
      if (message != outOfMemory) {
        EXPECT_NE(message.find(path_), std::string::npos) << message;
        const bool isOfDisk = message.find("disk I/O error") != std::string::npos;
        EXPECT_TRUE(isOfDisk || message.find(reason) != std::string::npos) << message;
      }
    }
    // A journal that could neither be finished nor removed does no harm, and the next one takes its place.
    if (std::filesystem::exists(path_ + "-journal")) appendStoreModelFile(file_, *added_);
    EXPECT_EQ(folder_.filesInFolder(), 2U) << message;  // the old file of ImportRun, and the database
    survived_ += hasFailed ? 1 : 0;
    return hasFailed;
  }
  void TearDown() override {
    std::cout << "  " << survived_ << " faults, " << done_ << " times added all the same\n";
  }

  static constexpr const char* outOfMemory = "out of memory";
  ImportRun folder_{""};
  std::string path_ = folder_.output() + ".sqlite";
  KYRFile file_{path_.c_str()};
  std::unique_ptr<KYRStoreModel> added_ = modelOf("together.xmi");
  std::string before_;
  int survived_ = 0;
  int done_ = 0;
};

TEST_F(FailingAppend, OfAnyCallLeavesTheDatabase) {
  struct Row {
    FailingCall call;
    int error;
    const char* reason;
  };
  // A file that cannot be opened for writing is taken for one that may only be read.
  const Row rows[] = {{FailingCall::open, EIO, ""},
                      {FailingCall::read, EIO, "Input/output error"},
                      {FailingCall::write, EIO, "Input/output error"},
                      {FailingCall::write, ENOSPC, "disk is full"},
                      {FailingCall::sync, EIO, "Input/output error"},
                      {FailingCall::remove, EIO, "Input/output error"}};  // of the journal, which ends it
  for (const Row& row : rows) {
    for (const auto extent : {CallFault::Extent::one, CallFault::Extent::allFrom}) {
      const bool isOne = extent == CallFault::Extent::one;
      const testing::ScopedTrace trace(__FILE__, __LINE__,
                                       std::string(row.reason) + (isOne ? ", one" : ", all"));
      long number = 0;
      while (appendWith([&] { return CallFault(row.call, number, row.error, extent); }, row.reason)) {
        number += number < 10 ? 1 : static_cast<long>(stepOf(11));
      }
      EXPECT_GT(number, 0);
    }
  }
}

TEST_F(FailingAppend, OfAnyAllocationLeavesTheDatabase) {
  for (const auto extent : {FailingAllocation::Extent::one, FailingAllocation::Extent::allFrom}) {
    long number = 0;
    for (bool isFailing = true; isFailing; number += isSoaking() ? 1 : 1 + number / 10) {
      EXPECT_FALSE(growsEachTime([&] {
        isFailing = appendWith([&] { return FailingAllocation(number, extent); }, "");
      })) << number;
    }
    EXPECT_GT(number, 0);
  }
}

}  // namespace
