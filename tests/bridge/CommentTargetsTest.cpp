// Which comments speak of an element, and at what cost that is found out.
#include "bridge/state/CommentTargets.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "uml/UMLNamespaces.h"

namespace {

std::unique_ptr<UMLElement> elementOf(const std::string& id) {
  return std::make_unique<UMLElement>(KYRString(id), KYRString());
}

}  // namespace

TEST(CommentTargets, ACommentThatAnnotatesNothingAppliesToAnything) {
  CommentTargets targets;
  const UMLComment comment("c", "");
  EXPECT_TRUE(targets.appliesTo(comment, *elementOf("x")));
}

TEST(CommentTargets, IdsAreComparedWithoutRegardToCaseInShortAndLongLists) {
  for (const unsigned int count :
       {1U, CommentTargets::indexThreshold - 1, CommentTargets::indexThreshold, 50U}) {
    CommentTargets targets;
    UMLComment comment("c", "");
    std::vector<std::unique_ptr<UMLElement>> annotated;
    for (unsigned int i = 0; i < count; ++i) {
      annotated.push_back(elementOf("Id" + std::to_string(i)));
      comment.addAnnotatedElement(annotated.back().get());
    }
    EXPECT_TRUE(targets.appliesTo(comment, *elementOf("iD0"))) << count;
    EXPECT_TRUE(targets.appliesTo(comment, *annotated.back())) << count;
    EXPECT_FALSE(targets.appliesTo(comment, *elementOf("Id"))) << count;
    EXPECT_FALSE(targets.appliesTo(comment, *elementOf(""))) << count;
  }
}

TEST(CommentTargets, AskingForEachOfManyAnnotatedElementsIsLinear) {
  constexpr unsigned int count = 20000;
  CommentTargets targets;
  UMLComment comment("c", "");
  std::vector<std::unique_ptr<UMLElement>> annotated;
  for (unsigned int i = 0; i < count; ++i) {
    annotated.push_back(elementOf("id" + std::to_string(i)));
    comment.addAnnotatedElement(annotated.back().get());
  }
  for (const auto& element : annotated) EXPECT_TRUE(targets.appliesTo(comment, *element));
  EXPECT_LE(targets.getComparisonCount(), 2U * count);
}
