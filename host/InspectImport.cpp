// The model goes to a saver that keeps nothing, the messages to a log that says nothing.
#include "host/InspectImport.h"

#include "foundation/KYRException.h"
#include "foundation/KYRLog.h"
#include "foundation/KYROption.h"
#include "host/ImportCommand.h"
#include "host/KYRHostMessages.h"
#include "host/PluginLibrary.h"
#include "normalize/Normalizer.h"
#include "repository/plugin/KYRImportBridgeDllInterface.h"
#include "repository/storage/StoreModelSaver.h"

namespace {

class NoSaver final : public StoreModelSaver {
 public:
  NoSaver() { install(this); }
  ~NoSaver() override { install(nullptr); }
  void save(const KYRFile& /*file*/, const KYRStoreModel& /*model*/) override {}
};

class NoLog final : public KYRLog {
 public:
  void log(const KYRLogEvent& /*event*/) override {}
};

class TraceInUse {
 public:
  explicit TraceInUse(KYRImportTrace& trace) { KYRImportTrace::setCurrent(&trace); }
  TraceInUse(const TraceInUse&) = delete;
  TraceInUse& operator=(const TraceInUse&) = delete;
  ~TraceInUse() { KYRImportTrace::setCurrent(nullptr); }
};

}  // namespace

std::shared_ptr<const XmlDocument> InspectImport::Keeper::rewrite(
    const std::shared_ptr<const XmlDocument>& document) {
  document_ = normalizer_ == nullptr ? document : normalizer_->rewrite(document);
  return document_;
}

InspectImport::InspectImport(const std::string& file, Normalizer* normalizer, PluginLibrary& library)
    : keeper_(normalizer), rewriting_(KYRFile(KYRString(file)), keeper_) {
  try {
    run(KYRFile(KYRString(file)), library);
  } catch (const KYRException& exception) {
    // The report is of what the reader makes of the file; why an import would fail is part of it.
    failure_ = exception.getMessage();
  }
}

void InspectImport::run(const KYRFile& file, PluginLibrary& library) {
  library.load("");
  KYROptionList options;
  library.getPlugin().getOptionList(options);
  ImportCommand::setOption(options, library, ImportCommand::fileOption, std::string(file.getPath().view()));
  const NoSaver saver;
  const TraceInUse use(trace_);
  NoLog log;
  KYRFile nowhere;
  if (!library.getPlugin().run(ImportCommand::originId, nowhere, options, log)) {
    KYRHostMessages::PLUGIN_REFUSED.throwException();
  }
}
