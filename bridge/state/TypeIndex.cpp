// The index of types.
#include "bridge/state/TypeIndex.h"

#include "bridge/state/FoldedText.h"
#include "repository/model/KYRConcreteType.h"
#include "repository/model/KYRModel.h"

namespace {

constexpr std::size_t hashFactor = 31;

}  // namespace

std::size_t TypeIndex::Hash::operator()(const Key& key) const noexcept {
  std::size_t code = stringHashCode(key.foldedName);
  for (const int number : {key.length, key.scale, key.elementType}) {
    code = code * hashFactor + static_cast<std::size_t>(number);
  }
  return code;
}

bool TypeIndex::Equal::operator()(const Key& first, const Key& second) const noexcept {
  ++*comparisons;
  return first.length == second.length && first.scale == second.scale &&
         first.elementType == second.elementType && first.foldedName == second.foldedName;
}

KYRConcreteType* TypeIndex::find(const KYRModel& model, const KYRString& name, int length, int scale,
                                 int elementType) {
  if (model_ != &model) {
    types_.clear();
    indexed_ = 0;
    model_ = &model;
  }
  catchUp();
  const auto found = types_.find({foldedText(name.view()), length, scale, elementType});
  return found == types_.end() ? nullptr : found->second;
}

void TypeIndex::catchUp() {
  const unsigned int count = model_->types.count();
  for (; indexed_ < count; ++indexed_) {
    ++comparisons_;
    auto* const type = dynamic_cast<KYRConcreteType*>(model_->types[indexed_]);
    if (type == nullptr) continue;
    types_.try_emplace(
        {foldedText(type->getName().view()), type->getLength(), type->getScale(), type->getElementType()},
        type);
  }
}
