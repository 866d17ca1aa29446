// The order of the rules.
#include "normalize/Normalizer.h"

#include "normalize/AttributeOrderRule.h"
#include "normalize/DeclaredTypeRule.h"
#include "normalize/DocumentationRule.h"
#include "normalize/IdListRule.h"
#include "normalize/IdRule.h"
#include "normalize/LocalHrefRule.h"
#include "normalize/NestedClassifierRule.h"
#include "normalize/PackageContentRule.h"
#include "normalize/PrefixRule.h"
#include "normalize/ReplacedTypeRule.h"
#include "normalize/RootsRule.h"
#include "normalize/ScalarElementRule.h"
#include "normalize/TypeAttributeRule.h"
#include "normalize/TypedReferenceRule.h"

namespace {

// XMI 1 has other names for everything, and the reader refuses it.
bool isOldXmi(const XmlDocument& document) {
  return document.getTag(0).view() == "XMI" &&
         document.findAttribute(0, document.findName("xmi.version")) != nullptr;
}

void applyAll(NormalizedDocument& document, Normalizer::Extent extent) {
  const bool isAll = extent == Normalizer::Extent::all;
  PrefixRule().apply(document);
  DocumentationRule().apply(document);
  document.findRegions();
  TypeAttributeRule().apply(document);
  TypedReferenceRule().apply(document);
  ReplacedTypeRule::forProperties().apply(document);
  if (isAll) {
    ReplacedTypeRule::forProfiles().apply(document);
    ReplacedTypeRule::forComponents().apply(document);
  }
  LocalHrefRule().apply(document);
  RootsRule().apply(document);
  PackageContentRule().apply(document);
  if (isAll) NestedClassifierRule().apply(document);
  IdRule().apply(document);
  IdListRule().apply(document);
  ScalarElementRule().apply(document);
  DeclaredTypeRule().apply(document);
  AttributeOrderRule().apply(document);
}

}  // namespace

Normalizer::Normalizer(std::string fileName, Extent extent)
    : fileName_(std::move(fileName)), extent_(extent) {}

std::shared_ptr<const XmlDocument> Normalizer::rewrite(const std::shared_ptr<const XmlDocument>& document) {
  report_ = NormalizeReport();
  if (document->isEmpty() || isOldXmi(*document)) return document;
  NormalizedDocument edited(document, fileName_, report_);
  applyAll(edited, extent_);
  return edited.editor.build();
}
