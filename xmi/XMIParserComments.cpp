// Comments reach the elements that they annotate.
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "uml/UMLCast.h"
#include "uml/UMLNamespaces.h"
#include "xmi/XMIParser.h"

namespace {

// Tells whether an element owns a comment of the same id and body, both without regard to case.
// Elements with many comments get a set, so that a comment costs one lookup and not a scan.
class OwnedComments {
 public:
  bool contains(const UMLElement& element, const UMLComment& comment) {
    constexpr unsigned int scanLimit = 8;
    if (element.ownedComment.count() <= scanLimit) {
      for (const UMLComment* const owned : element.ownedComment) {
        if (owned->id.equals(comment.id, false) && owned->body.equals(comment.body, false)) return true;
      }
      return false;
    }
    Set& set = sets_[&element];
    while (set.taken < element.ownedComment.count())
      set.keys.insert(key(*element.ownedComment.at(set.taken++)));
    return set.keys.count(key(comment)) != 0;
  }

 private:
  struct Set {
    std::unordered_set<std::string> keys;
    unsigned int taken = 0;  // owned comments that are in the set
  };

  static std::string key(const UMLComment& comment) {
    std::string result(comment.id.view());
    result += '\0';  // stands in no XML text
    result += comment.body.view();
    for (char& letter : result) letter = foldCase(letter);
    return result;
  }

  std::unordered_map<const UMLElement*, Set> sets_;
};

}  // namespace

void XMIParser::attachComments() {
  OwnedComments owned;
  for (unsigned int i = 0; i < objects.getSlotCount(); ++i) {
    UMLElement* const element = objects.at(i);
    if (element->getKind() != UMLComment::kind) continue;
    auto* const comment = umlCast<UMLComment>(element);
    // A comment that annotates itself grows no list that is being walked: it walks annotatedElement
    // and adds to ownedComment.
    for (UMLElement* const target : comment->annotatedElement) {
      if (target != nullptr && !owned.contains(*target, *comment)) target->addOwnedComment(comment);
    }
  }
}
