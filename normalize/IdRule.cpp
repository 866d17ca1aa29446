// One walk over the objects in the order of reading, with those that are open on a stack. New ids are given
// behind it, when all that are taken are known.
#include "normalize/IdRule.h"

#include <algorithm>
#include <array>

#include "uml/UMLClasses.h"

void IdRule::apply(NormalizedDocument& document) {
  const std::vector<Node>& objects = document.getObjects();
  document.getIds() = IdIndex(objects.size());
  IdIndex& ids = document.getIds();
  isOpen_.assign(document.editor.getNodeCount(), false);
  std::vector<Node> without;
  std::vector<Node> others;  // that bear the id of another one
  // Ids lie anywhere in the index: places are asked of memory some objects ahead.
  struct Coming {
    const KYRString* id;
    std::uint32_t hash;
  };
  std::array<Coming, 8> ring{};  // memory answers in the time of some three objects
  const auto expect = [&](std::size_t at) {
    const KYRString& id = document.attribute(objects[at], document.xmiId);
    ring[at % ring.size()] = {&id, ids.hashOf(id.view())};
    ids.prefetch(ring[at % ring.size()].hash);
  };
  for (std::size_t at = 0; at < std::min(ring.size(), objects.size()); ++at) expect(at);
  for (std::size_t at = 0; at < objects.size(); ++at) {
    const Node node = objects[at];
    enter(document, node);
    const KYRString& id = *ring[at % ring.size()].id;
    const std::uint32_t hash = ring[at % ring.size()].hash;
    if (at + ring.size() < objects.size()) expect(at + ring.size());
    if (id.isEmpty()) {
      // What stands for an element of another file is none of this one.
      if (document.isEmpty(node, document.href)) without.push_back(node);
      continue;
    }
    const Node first = ids.enter(id.view(), node, hash);
    if (first != IdIndex::none && isAnother(document, node, first)) others.push_back(node);
  }
  for (const Node node : without) giveId(document, node);
  for (const Node node : others) {
    setId(document, node, document.makeId(node, ids));
    document.report.note(NormalizeRule::ids);
  }
}

void IdRule::enter(NormalizedDocument& document, Node node) {
  // Between an object and the one around it may stand elements that make none.
  while (!open_.empty() && open_.back() != document.readingOf(node).object) {
    isOpen_[open_.back()] = false;
    open_.pop_back();
  }
  open_.push_back(node);
  isOpen_[node] = true;
}

void IdRule::setId(NormalizedDocument& document, Node node, const std::string& id) {
  document.editor.setAttribute(node, document.xmiId, id);
  document.getIds().enter(document.attribute(node, document.xmiId).view(), node);
}

// The reader itself takes the name of a model for its id.
void IdRule::giveId(NormalizedDocument& document, Node node) {
  const IdIndex& ids = document.getIds();
  const KYRString& name = document.attribute(node, document.name);
  const bool isNamedModel = document.readingOf(node).kind == UMLModel::kind && !name.isEmpty() &&
                            ids.find(name.view()) == IdIndex::none;
  setId(document, node, isNamedModel ? std::string(name.view()) : document.makeId(node, ids));
  document.report.note(NormalizeRule::ids, !isNamedModel);
}

KYRString IdRule::nameOf(const NormalizedDocument& document, Node node) {
  const XmlDocumentEditor& editor = document.editor;
  if (const KYRString* const written = editor.findAttribute(node, document.name)) return *written;
  for (Node child = editor.getFirst(node); child != noNode; child = editor.getNext(child)) {
    if (editor.isElement(child) && editor.getName(child) == document.name) return editor.getContent(child);
  }
  return {};
}

bool IdRule::isAnother(NormalizedDocument& document, Node node, Node first) const {
  return isOpen_[first] || document.readingOf(node).kind != document.readingOf(first).kind ||
         nameOf(document, node) != nameOf(document, first);
}
