// Candidates stand in chains by key, in the order of the document. A candidate that has found its partner
// is dropped from its chain when it is met, so every one is met as often as there are rounds.
#include "repository/compare/ModelMatching.h"

#include <string>
#include <unordered_map>

namespace {

using Index = ComparedModel::Index;

std::string textOf(Index number) { return std::to_string(number) + '\n'; }

// Chains of objects that have no partner yet.
class Candidates {
 public:
  explicit Candidates(const std::vector<ComparedModel::Node>& nodes, std::uint64_t& steps)
      : nodes_(nodes), steps_(steps) {}

  void add(std::string key, Index index) { chains_[std::move(key)].push_back(index); }
  Index take(const std::string& key) {
    const auto found = chains_.find(key);
    if (found == chains_.end()) return ComparedModel::none;
    Chain& chain = found->second;
    while (chain.next < chain.entries.size()) {
      ++steps_;
      const Index index = chain.entries[chain.next++];
      if (nodes_[index].partner == ComparedModel::none) return index;
    }
    return ComparedModel::none;
  }

 private:
  struct Chain {
    std::vector<Index> entries;
    std::size_t next = 0;
    void push_back(Index index) { entries.push_back(index); }
  };
  const std::vector<ComparedModel::Node>& nodes_;
  std::uint64_t& steps_;
  std::unordered_map<std::string, Chain> chains_;
};

std::string classKey(const ComparedModel::Node& node) {
  return textOf(static_cast<Index>(node.stored->elementType));
}

std::string nameKey(const ComparedModel::Node& node) {
  return classKey(node) + std::string(node.object->getName().view());
}

// What an object without a name can be known by.
std::string contentKey(const ComparedModel::Node& node) {
  std::string key = nameKey(node);
  for (const StoredField* field : node.stored->values) {
    key += '\0';
    if (field->getText != nullptr) {
      key += field->getText(*node.object);
    } else if (field->getNumber != nullptr) {
      key += std::to_string(field->getNumber(*node.object));
    } else if (field->getReference != nullptr) {
      const KYRObject* const target = field->getReference(*node.object);
      if (target != nullptr) key += target->getName().view();
    }
  }
  return key;
}

}  // namespace

ModelMatching ModelMatching::match(ComparedModel& before, ComparedModel& after) {
  ModelMatching matching(before, after);
  matching.join(0, 0);
  // An id can stand for several objects, such as those of an element that two packages list: the ones
  // of the same owner belong together.
  matching.matchIds(true);
  matching.matchIds(false);
  // Owners come before what they hold, so their partners are known.
  for (Index i = 0; i < before.nodes.size(); ++i) {
    if (before.nodes[i].partner == ComparedModel::none) continue;
    matching.matchNames(i, true);
    matching.matchNames(i, false);
  }
  return matching;
}

void ModelMatching::join(Index before, Index after) {
  before_.nodes[before].partner = after;
  after_.nodes[after].partner = before;
}

void ModelMatching::matchIds(bool isSameOwner) {
  const auto keyOf = [isSameOwner](const ComparedModel::Node& node, Index owner) {
    std::string key = classKey(node) + std::string(node.object->sourceId.view());
    if (isSameOwner) key += '\0' + std::to_string(owner);
    return key;
  };
  const auto isOpen = [](const ComparedModel::Node& node) {
    return node.partner == ComparedModel::none && !node.object->sourceId.isEmpty();
  };
  Candidates candidates(after_.nodes, steps);
  for (Index i = 1; i < after_.nodes.size(); ++i) {
    const ComparedModel::Node& node = after_.nodes[i];
    if (isOpen(node)) candidates.add(keyOf(node, node.parent), i);
  }
  for (Index i = 1; i < before_.nodes.size(); ++i) {
    const ComparedModel::Node& node = before_.nodes[i];
    if (!isOpen(node)) continue;
    const Index owner = before_.nodes[node.parent].partner;
    if (isSameOwner && owner == ComparedModel::none) continue;
    const Index found = candidates.take(keyOf(node, owner));
    if (found != ComparedModel::none) join(i, found);
  }
}

void ModelMatching::matchNames(Index before, bool isAlike) {
  const auto isOpen = [isAlike](const ComparedModel::Node& node) {
    return node.partner == ComparedModel::none && (!isAlike || node.object->getName().isEmpty());
  };
  const auto keyOf = [isAlike](const ComparedModel::Node& node) {
    return isAlike ? contentKey(node) : nameKey(node);
  };
  Index child = before_.nodes[before].firstChild;
  while (child != ComparedModel::none && !isOpen(before_.nodes[child]))
    child = before_.nodes[child].nextSibling;
  if (child == ComparedModel::none) return;
  Candidates candidates(after_.nodes, steps);
  const ComparedModel::Node& owner = after_.nodes[before_.nodes[before].partner];
  for (Index i = owner.firstChild; i != ComparedModel::none; i = after_.nodes[i].nextSibling) {
    if (isOpen(after_.nodes[i])) candidates.add(keyOf(after_.nodes[i]), i);
  }
  for (; child != ComparedModel::none; child = before_.nodes[child].nextSibling) {
    if (!isOpen(before_.nodes[child])) continue;
    const Index found = candidates.take(keyOf(before_.nodes[child]));
    if (found != ComparedModel::none) join(child, found);
  }
}
