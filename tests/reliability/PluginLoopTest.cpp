// A host that loads the plug-in for each import and unloads it behind: nothing is left in memory, however
// often.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <malloc.h>

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
    options.get("BP_FILE")->setValue(samplePath("enterprise-architect.xmi").c_str());
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

TEST(PluginLoop, AHundredRoundsLeaveNothingInMemory) {
  const ImportRun folder("");
  constexpr int warmUp = 5;  // until what lives as long as the process is there
  constexpr int rounds = 100;
  for (int round = 0; round < warmUp; ++round) importByPlugin(folder.output());
  EXPECT_FALSE(isLoaded());
  const std::size_t before = mallinfo2().uordblks;
  for (int round = 0; round < rounds; ++round) importByPlugin(folder.output());
  constexpr std::size_t roomForOnce = 2048;  // far below a byte for each object and round
  if (FailingAllocation::reachesC()) {       // a sanitizer's own allocator is not the one that is asked
    EXPECT_LT(mallinfo2().uordblks, before + roomForOnce);
  }
  EXPECT_NE(folder.saved(), ImportRun::old);
}

}  // namespace
