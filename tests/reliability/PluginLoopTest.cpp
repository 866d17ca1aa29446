// A host that loads the plug-in for each import and unloads it behind: nothing is left in memory, however
// often.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <limits>

#include "tests/reliability/ImportRun.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/MemoryGrowth.h"

namespace {

using Entry = KYROmgUml2XmiImportDllInterface* (*)();

void* load() { return dlopen(KYR_PLUGIN, RTLD_NOW | RTLD_LOCAL); }

// One import by a plug-in that is unloaded behind it.
void importBy(void* library, const std::string& output) {
  ASSERT_NE(library, nullptr) << dlerror();
  const auto entry = reinterpret_cast<Entry>(dlsym(library, "getKYROmgUml2XmiImportInterface"));
  ASSERT_NE(entry, nullptr);
  {
    KYRImportBridgeDllInterface& plugin = *entry();
    RecordingLog log;
    KYROptionList options;
    plugin.getOptionList(options);
    options.get("BP_FILE")->setValue(samplePath("magicdraw-module.xmi").c_str());
    KYRFile target(output.c_str());
    plugin.run("loop", target, options, log);
  }
  dlclose(library);
}

bool isLoaded() {
  void* const library = dlopen(KYR_PLUGIN, RTLD_NOW | RTLD_NOLOAD);
  if (library != nullptr) dlclose(library);
  return library != nullptr;
}

// What the allocator keeps at hand changes from round to round, so single batches may grow; a leak shows in
// each of them.
TEST(PluginLoop, AHundredRoundsLeaveNothingInMemory) {
  const ImportRun folder("");
  constexpr int batches = 10;
  constexpr int rounds = 10;
  long leastGrowth = std::numeric_limits<long>::max();
  for (int batch = 0; batch < batches; ++batch) {
    const auto before = static_cast<long>(mallinfo2().uordblks);
    for (int round = 0; round < rounds; ++round) importBy(load(), folder.output());
    leastGrowth = std::min(leastGrowth, static_cast<long>(mallinfo2().uordblks) - before);
  }
  EXPECT_FALSE(isLoaded());
  if (FailingAllocation::reachesC()) {  // a sanitizer's own allocator is not the one that is asked
    EXPECT_LE(leastGrowth, 0);
  }
  EXPECT_NE(folder.saved(), ImportRun::old);
}

// Its static objects are made in the midst of the loader, which no exception can cross: they ask for no
// memory. What the loader itself asks for makes it fail, with a reason.
TEST(PluginLoop, LoadingWithoutMemoryFailsWithAReasonOrGivesAWholePlugin) {
  const ImportRun folder("");
  int failed = 0;
  for (const auto extent : {FailingAllocation::Extent::one, FailingAllocation::Extent::allFrom}) {
    bool isFailing = true;
    for (long number = 0; isFailing; ++number) {
      EXPECT_FALSE(growsEachTime([&] {
        void* library = nullptr;
        {
          const FailingAllocation failing(number, extent);
          library = load();
          isFailing = failing.hasFailed();
        }
        if (library == nullptr) {
          ++failed;
          EXPECT_TRUE(isFailing);
          EXPECT_NE(dlerror(), nullptr);
        } else {
          importBy(library, folder.output());
        }
      })) << number;
    }
  }
  EXPECT_FALSE(isLoaded());
  EXPECT_EQ(failed > 0, FailingAllocation::reachesC());
}

}  // namespace
