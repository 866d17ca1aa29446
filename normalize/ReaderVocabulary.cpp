// The answers, collected once from the dispatch rows and the plans of the readers.
#include "normalize/ReaderVocabulary.h"

#include "uml/UMLMetamodel.h"
#include "uml/read/ClassPlan.h"
#include "xmi/DispatchRows.h"
#include "xmi/ReaderNames.h"

const ReaderVocabulary& ReaderVocabulary::get() {
  static const ReaderVocabulary vocabulary;
  return vocabulary;
}

ReaderVocabulary::ReaderVocabulary() {
  const DispatchRows& rows = DispatchRows::get();
  for (const TagHandler& row : rows.context) {
    if (row.tag != nullptr) words_[row.tag].contextRows.push_back(&row);
  }
  for (const TagHandler& row : rows.general) {
    if (row.tag != nullptr && row.startAction.marker == StartAction::Marker::skip)
      words_[row.tag].isSkipped = true;
  }
  const ReaderNames& names = ReaderNames::get();
  for (int number = 0; number < names.getCount(); ++number) words_[names.getName(number)].readerName = number;
  const auto nameCount = static_cast<std::size_t>(names.getCount());
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    kinds_.emplace(typeOfKind(kind), kind);
    words_[typeOfKind(kind)].kindOfTag = kind;
    std::vector<bool>& scalars = scalars_.emplace_back(nameCount);
    std::vector<bool>& references = references_.emplace_back(nameCount);
    const ClassPlan& plan = ClassPlan::of(kind);
    for (const ClassPlan::Scalar& scalar : plan.scalars) {
      scalars[static_cast<std::size_t>(scalar.attribute)] = true;
    }
    for (const ClassPlan::Reference& reference : plan.references) {
      references[static_cast<std::size_t>(reference.attribute)] = true;
    }
  }
}

int ReaderVocabulary::kindOfType(std::string_view type) const noexcept {
  const auto found = kinds_.find(type);
  return found == kinds_.end() ? none : found->second;
}

const char* ReaderVocabulary::typeOfKind(int kind) noexcept {
  return UMLMetamodel::classRows[static_cast<unsigned int>(kind)].xmiType;
}

const ReaderVocabulary::Word& ReaderVocabulary::find(std::string_view name) const noexcept {
  static const Word unknown;
  const auto found = words_.find(name);
  return found == words_.end() ? unknown : found->second;
}

const TagHandler* ReaderVocabulary::findRow(const Word& word, int kind) noexcept {
  const TagHandler* best = nullptr;
  for (const TagHandler* row : word.contextRows) {
    if (!UMLLineage::isKindOf(kind, row->kind)) continue;
    if (best == nullptr || UMLLineage::isKindOf(row->kind, best->kind)) best = row;
  }
  return best;
}

bool ReaderVocabulary::hasScalar(int kind, int readerName) const noexcept {
  return readerName != none && scalars_[static_cast<std::size_t>(kind)][static_cast<std::size_t>(readerName)];
}

bool ReaderVocabulary::hasReference(int kind, int readerName) const noexcept {
  return readerName != none &&
         references_[static_cast<std::size_t>(kind)][static_cast<std::size_t>(readerName)];
}

int ReaderVocabulary::findAskedFor(std::string_view text) noexcept {
  return ReaderNames::get().findIgnoringCase(text);
}
