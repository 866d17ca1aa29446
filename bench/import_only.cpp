// Makes the whole import of a file and saves nothing: what is left of the time of `kyr import` is the
// saving. The arguments are the plug-in and the file.
#include <cstdio>
#include <exception>

#include "foundation/KYRLog.h"
#include "foundation/KYROption.h"
#include "foundation/MemoryAtEnd.h"
#include "host/ImportCommand.h"
#include "host/PluginLibrary.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"
#include "repository/storage/StoreModelSaver.h"

// As in the command, so that both are measured with the same allocator.
extern "C" {
// NOLINTNEXTLINE: the name is given
[[gnu::visibility("default")]] const char* malloc_conf =
    "narenas:1,lg_extent_max_active_fit:20,slab_sizes:1-1024:16";
}

namespace {

class NothingSaved : public StoreModelSaver {
 public:
  void save(const KYRFile&, const KYRStoreModel&) override {}
};

class Silence : public KYRLog {
 public:
  void log(const KYRLogEvent&) override {}
};

int importOnly(const char* plugin, const char* input) {
  PluginLibrary library;
  library.load(plugin);
  KYROptionList options;
  library.getPlugin().getOptionList(options);
  ImportCommand::setOption(options, library, ImportCommand::fileOption, input);
  NothingSaved saver;
  StoreModelSaver::install(&saver);
  MemoryAtEnd::leaveToSystem(true);
  Silence log;
  KYRFile nowhere("");
  library.getPlugin().run("bench", nowhere, options, log);
  return 0;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    std::fputs("usage: kyr-import-only PLUGIN FILE\n", stderr);
    return 2;
  }
  try {
    return importOnly(arguments[1], arguments[2]);
  } catch (const std::exception& exception) {
    std::fprintf(stderr, "%s\n", exception.what());
  }
  return 1;
}
