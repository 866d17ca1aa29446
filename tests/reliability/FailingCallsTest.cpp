// Imports whose reads, writes, syncs or renames fail, one after the other: each ends with an error that names
// the reason, and leaves the old file as it was and nothing beside it.
#include "tests/support/FailingCalls.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <iostream>
#include <span>

#include "repository/storage/StoreModelFile.h"
#include "tests/reliability/ImportRun.h"
#include "tests/reliability/Soak.h"
#include "tests/support/TemporaryFile.h"

namespace {

struct Fault {
  FailingCall call;
  int error;
  const char* reason;  // in the message
};

constexpr Fault faults[] = {
    {FailingCall::open, EIO, "Input/output error"}, {FailingCall::open, EMFILE, "Too many open files"},
    {FailingCall::read, EIO, "Input/output error"}, {FailingCall::write, EIO, "Input/output error"},
    {FailingCall::write, ENOSPC, "No space left"},  {FailingCall::sync, EIO, "Input/output error"},
    {FailingCall::sync, ENOSPC, "No space left"},   {FailingCall::rename, EIO, "Input/output error"},
    {FailingCall::rename, ENOSPC, "No space left"},
};

// Once the new file has the name, nothing that fails undoes it: opening and syncing the directory.
void failEachCall(const std::string& input, const std::string& expected, std::span<const Fault> chosen,
                  long step = 1) {
  int survived = 0;
  for (const Fault& fault : chosen) {
    for (const auto extent : {CallFault::Extent::one, CallFault::Extent::allFrom}) {
      bool isFailing = true;
      bool isRaised = false;
      for (long number = 0; isFailing; number += step) {
        ImportRun import(input);
        std::string message;
        {
          const CallFault failing(fault.call, number, fault.error, extent);
          try {
            import.run();
          } catch (const KYRException& exception) {
            message = exception.getMessage().getCharacters();
          }
          isFailing = failing.hasFailed();
        }
        if (message.empty()) {
          EXPECT_EQ(import.saved(), expected) << number;
          EXPECT_EQ(import.filesInFolder(), 1U);
        } else {
          isRaised = true;
          EXPECT_NE(message.find(fault.reason), std::string::npos) << message;
          EXPECT_TRUE(import.isUntouched()) << message;
        }
        survived += isFailing ? 1 : 0;
      }
      EXPECT_TRUE(isRaised) << fault.reason;
    }
  }
  std::cout << "  " << survived << " faults\n";
}

class FailingCalls : public testing::TestWithParam<const char*> {};

TEST_P(FailingCalls, EachOneEndsTheImportAndLeavesTheOldFile) {
  const std::string input = samplePath(GetParam());
  failEachCall(input, ImportRun::resultOf(input), faults);
}

TEST_P(FailingCalls, OneByteAtATimeMakesNoDifference) {
  const std::string input = samplePath(GetParam());
  const std::string expected = ImportRun::resultOf(input);
  ImportRun import(input);
  const ShortTransfers slow(1);
  import.run();
  EXPECT_EQ(import.saved(), expected);
}

TEST_P(FailingCalls, InterruptedOnesAreRepeated) {
  const std::string input = samplePath(GetParam());
  const std::string expected = ImportRun::resultOf(input);
  for (const FailingCall call : {FailingCall::read, FailingCall::write}) {
    bool isFailing = true;
    for (long number = 0; isFailing; ++number) {
      ImportRun import(input);
      const CallFault failing(call, number, EINTR);
      import.run();
      isFailing = failing.hasFailed();
      EXPECT_EQ(import.saved(), expected);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, FailingCalls,
                         testing::Values("plain.xmi", "enterprise-architect.xmi",
                                         "enterprise-architect-database.xmi", "magicdraw.xmi",
                                         "magicdraw-database.xmi", "magicdraw-diagrams.xmi",
                                         "magicdraw-module.xmi", "together.xmi", "visual-paradigm.xmi",
                                         "rational-software-architect.emx", "eclipse-papyrus.uml",
                                         "odd/utf-16.xmi"));

// A file of more than a megabyte is read by one thread and followed by another, and so is what is saved.
TEST(FailingCallsOfThreads, EndTheImportToo) {
  const TemporaryFile input(fileOfClasses(4800));
  const std::string expected = ImportRun::resultOf(input.path);
  ASSERT_GT(readWholeFile(input.path).size(), std::size_t{1} << 20);
  ASSERT_GT(expected.size(), std::size_t{1} << 20);
  static constexpr Fault inThreads[] = {{FailingCall::read, EIO, "Input/output error"},
                                        {FailingCall::write, ENOSPC, "No space left"}};
  failEachCall(input.path, expected, isSoaking() ? std::span<const Fault>(faults) : inThreads,
               isSoaking() ? 1 : 4);
}

// They are for speed: where none can be started, the work is done without.
TEST(FailingCallsOfThreads, AThreadThatCannotBeStartedIsDoneWithout) {
  const TemporaryFile input(fileOfClasses(4800));
  const std::string expected = ImportRun::resultOf(input.path);
  for (const auto extent : {CallFault::Extent::one, CallFault::Extent::allFrom}) {
    long number = 0;
    for (bool isFailing = true; isFailing; ++number) {
      ImportRun import(input.path);
      const CallFault failing(FailingCall::thread, number, EAGAIN, extent);
      import.run();
      isFailing = failing.hasFailed();
      EXPECT_TRUE(import.saved() == expected) << number;
    }
    EXPECT_GT(number, 1);
  }
}

TEST(FailingCallsOfThreads, ADatabaseIsTheSameWithoutThem) {
  const TemporaryFile input(fileOfClasses(4800));
  ImportRun import(input.path);
  import.run();
  const std::unique_ptr<KYRStoreModel> model = loadStoreModel(KYRFile(import.output().c_str()));
  const std::string path = import.output() + ".sqlite";
  const auto save = [&] {
    saveStoreModelFile(KYRFile(path.c_str()), *model, StoreModelFormat::sqlite);
    return readWholeFile(path);
  };
  const std::string expected = save();
  const CallFault failing(FailingCall::thread, 0, EAGAIN, CallFault::Extent::allFrom);
  EXPECT_TRUE(save() == expected);
  EXPECT_TRUE(failing.hasFailed());
}

std::unique_ptr<KYRStoreModel> loadSample() {
  ImportRun import(samplePath("enterprise-architect.xmi"));
  import.run();
  return loadStoreModel(KYRFile(import.output().c_str()));
}

// The same for all formats.
class FailingSave : public testing::TestWithParam<StoreModelFormat> {};

TEST_P(FailingSave, LeavesTheOldFile) {
  const std::unique_ptr<KYRStoreModel> model = loadSample();
  int survived = 0;
  for (const Fault& fault : faults) {
    for (const auto extent : {CallFault::Extent::one, CallFault::Extent::allFrom}) {
      bool isFailing = true;
      for (long number = 0; isFailing; ++number) {
        const ImportRun folder("");
        std::string message;
        {
          const CallFault failing(fault.call, number, fault.error, extent);
          try {
            saveStoreModelFile(KYRFile(folder.output().c_str()), *model, GetParam());
          } catch (const KYRException& exception) {
            message = exception.getMessage().getCharacters();
          }
          isFailing = failing.hasFailed();
        }
        EXPECT_EQ(folder.filesInFolder(), 1U) << message;
        EXPECT_EQ(folder.isUntouched(), !message.empty()) << message;
        survived += isFailing ? 1 : 0;
      }
    }
  }
  std::cout << "  " << survived << " faults\n";
}

INSTANTIATE_TEST_SUITE_P(Formats, FailingSave,
                         testing::Values(StoreModelFormat::json, StoreModelFormat::sql,
                                         StoreModelFormat::sqlite));

TEST(FailingLoad, SaysWhy) {
  ImportRun import(samplePath("enterprise-architect.xmi"));
  import.run();
  const KYRFile file(import.output().c_str());
  for (const FailingCall call : {FailingCall::open, FailingCall::read}) {
    bool isFailing = true;
    for (long number = 0; isFailing; ++number) {
      const CallFault failing(call, number, EIO);
      std::string message;
      try {
        EXPECT_NE(loadStoreModel(file), nullptr);
      } catch (const KYRException& exception) {
        message = exception.getMessage().getCharacters();
      }
      isFailing = failing.hasFailed();
      EXPECT_EQ(message.find("Input/output error") != std::string::npos, isFailing) << message;
    }
  }
}

}  // namespace
