// LossSurvey: what an import without the normalising step has lost for the way in which the file is written.
//
// It watches the parse of the import and gives the document to the rules, which tell whether they would have
// changed anything that matters, on a thread of their own while the import goes on. Only if they would, the
// file is read once more, in memory, as the step hands it on, and what would have arrived is compared with
// what has.
#pragma once

#include <cstdint>
#include <future>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>

#include "foundation/KYRFile.h"
#include "foundation/xml/XmlRewriting.h"
#include "host/SavedModelCounts.h"
#include "normalize/Normalizer.h"

class LossSurvey final : public XmlRewriter {
 public:
  struct Loss {
    std::uint64_t classes = 0;
    std::uint64_t attributes = 0;
    std::uint64_t associations = 0;
    std::string reasons;
  };

  /// `fileName` as for the Normalizer. With `isReadAgain` the document stays as long as this, for an import
  /// that will read its file once more.
  LossSurvey(std::string fileName, bool isReadAgain)
      : normalizer_(std::move(fileName)), isReadAgain_(isReadAgain) {}
  ~LossSurvey() override;
  std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>& document) override;
  bool watchesOnly() const noexcept override { return true; }

  /// What is missing in a saved model of the watched file; nothing when no rule would have helped.
  std::optional<Loss> compare(const KYRFile& file, const SavedModelCounts& saved, bool hasRootPackage);

 private:
  void wait() noexcept;

  Normalizer normalizer_;
  const bool isReadAgain_;
  std::weak_ptr<const XmlDocument> surveyed_;
  std::future<std::shared_ptr<const XmlDocument>> normalized_;
  std::thread worker_;
};
