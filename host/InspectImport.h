// InspectImport: what an import would make of the elements of a file: a whole one by the plug-in, of which
// nothing is saved.
#pragma once

#include <memory>
#include <string>

#include "foundation/KYRFile.h"
#include "foundation/KYRString.h"
#include "foundation/xml/XmlRewriting.h"
#include "host/TraceCounts.h"

class Normalizer;
class PluginLibrary;

class InspectImport {
 public:
  /// Imports the file, as `normalizer` hands it on unless that is null. The document that was read lives as
  /// long as this object, so that whoever reads the file next need not parse it.
  InspectImport(const std::string& file, Normalizer* normalizer, PluginLibrary& library);
  InspectImport(const InspectImport&) = delete;
  InspectImport& operator=(const InspectImport&) = delete;

  /// What ended the import; empty when it succeeded, and only then there are counts.
  const KYRString& getFailure() const noexcept { return failure_; }
  const TraceCounts& getCounts() const noexcept { return trace_.counts; }

 private:
  class Keeper final : public XmlRewriter {
   public:
    explicit Keeper(Normalizer* normalizer) : normalizer_(normalizer) {}
    std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>& document) override;
    bool watchesOnly() const noexcept override { return normalizer_ == nullptr; }

   private:
    Normalizer* normalizer_;
    std::shared_ptr<const XmlDocument> document_;
  };
  struct Trace final : public KYRImportTrace {
    void record(const KYRTraceRecord& told) override { counts.add(told); }
    void finish(const KYRTraceTotals& totals) override { counts.setTotals(totals); }
    TraceCounts counts;
  };
  void run(const KYRFile& file, PluginLibrary& library);

  Keeper keeper_;
  XmlRewriting rewriting_;
  Trace trace_;
  KYRString failure_;
};
