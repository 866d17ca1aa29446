// A host that loads the plug-in for each import and unloads it behind: nothing is left in memory, however
// often.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <limits>

#include "tests/reliability/ImportRun.h"
#include "tests/support/FailingAllocation.h"

namespace {

using Entry = KYROmgUml2XmiImportDllInterface* (*)();

// One import by a plug-in that lives as long as the call.
void importByPlugin(const std::string& output) {
  void* const library = dlopen(KYR_PLUGIN, RTLD_NOW | RTLD_LOCAL);
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
    for (int round = 0; round < rounds; ++round) importByPlugin(folder.output());
    leastGrowth = std::min(leastGrowth, static_cast<long>(mallinfo2().uordblks) - before);
  }
  EXPECT_FALSE(isLoaded());
  if (FailingAllocation::reachesC()) {  // a sanitizer's own allocator is not the one that is asked
    EXPECT_LE(leastGrowth, 0);
  }
  EXPECT_NE(folder.saved(), ImportRun::old);
}

}  // namespace
