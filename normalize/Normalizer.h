// Normalizer: the normalising step, to be installed with XmlRewriting: all rules, one after the other.
//
// Each rule cures one way in which tools write what the reader does not expect, in an order in which a rule
// can rely on what those before it have done. A document that no rule changes is handed on as it is.
#pragma once

#include <string>

#include "foundation/xml/XmlRewriting.h"
#include "normalize/NormalizeReport.h"

class Normalizer final : public XmlRewriter {
 public:
  /// `all` has three rules more, which undo what the import drops on purpose.
  enum class Extent { usual, all };

  /// `fileName` becomes the name of a model that the file has none for.
  explicit Normalizer(std::string fileName, Extent extent = Extent::usual);
  std::shared_ptr<const XmlDocument> rewrite(const std::shared_ptr<const XmlDocument>& document) override;
  /// What the last `rewrite` has done.
  const NormalizeReport& getReport() const noexcept { return report_; }

 private:
  std::string fileName_;
  Extent extent_;
  NormalizeReport report_;
};
