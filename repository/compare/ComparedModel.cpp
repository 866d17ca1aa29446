// The numbers that saving gives to objects are their places in the list.
#include "repository/compare/ComparedModel.h"

struct ComparedModel::Listing {
  std::vector<Node>& nodes;
  std::vector<Index> way;
  std::vector<Index> lastChild;

  void enter(const KYRObject& object, const StoredClass& stored) {
    const auto index = static_cast<Index>(nodes.size());
    const Index parent = way.empty() ? none : way.back();
    nodes.push_back({&object, &stored, parent});
    lastChild.push_back(none);
    if (parent != none) {
      Index& last = lastChild[parent];
      (last == none ? nodes[parent].firstChild : nodes[last].nextSibling) = index;
      last = index;
    }
    way.push_back(index);
  }
  void leave() { way.pop_back(); }
  void beginList(const StoredField&) {}
  void endList() {}
};

ComparedModel::ComparedModel(const KYRStoreModel& model) : numbers_(model, StoredNumbers::Use::shared) {
  Listing listing{nodes, {}, {}};
  walkStored(model, listing);
}
