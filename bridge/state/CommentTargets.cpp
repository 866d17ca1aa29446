// Matching comments with what they annotate.
#include "bridge/state/CommentTargets.h"

#include "uml/UMLNamespaces.h"

namespace {

std::string foldedId(const UMLElement& element) {
  std::string id(element.id.view());
  for (char& character : id) character = foldCase(character);
  return id;
}

}  // namespace

bool CommentTargets::appliesTo(const UMLComment& comment, const UMLElement& element) {
  const auto& annotated = comment.annotatedElement;
  const unsigned int count = annotated.count();
  if (count == 0) return true;
  if (count >= indexThreshold) {
    ++comparisons_;
    return indexOf(comment).count(foldedId(element)) != 0;
  }
  for (const UMLElement* target : annotated) {
    ++comparisons_;
    if (target != nullptr && target->id.equals(element.id, false)) return true;
  }
  return false;
}

const CommentTargets::FoldedIds& CommentTargets::indexOf(const UMLComment& comment) {
  const auto known = indexes_.find(&comment);
  if (known != indexes_.end()) return known->second;
  FoldedIds ids;
  for (const UMLElement* target : comment.annotatedElement) {
    ++comparisons_;
    if (target != nullptr) ids.insert(foldedId(*target));
  }
  return indexes_.emplace(&comment, std::move(ids)).first->second;
}
