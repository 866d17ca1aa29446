// The lookup rule, and an index so that many references into a large module cost one walk.
#include "extension/ModuleFile.h"

#include <vector>

#include "bridge/messages/KBI_UML2XMI.h"

namespace {
std::string fold(const KYRString& text) {
  std::string result(text.view());
  for (char& letter : result) letter = foldCase(letter);
  return result;
}
}  // namespace

ModuleFile::ModuleFile(KYRLog* messageLog, KYRDOM& treeReader, const KYRFile& mainFile)
    : log(messageLog), dom(treeReader), file(mainFile) {}

bool ModuleFile::open(const KYRString& filePart) {
  if (filePart.isEmpty()) return false;
  if (moduleLookupPending) {
    const int slash = file.getPath().reverseFind("/", file.getPath().getLength());
    const KYRString directory =
        slash < 0 ? KYRString() : file.getPath().left(static_cast<unsigned int>(slash) + 1);
    const KYRFile candidate(directory + filePart);
    if (candidate.exists()) {
      moduleLookupPending = false;
      KBI_UML2XMI::UML2_S_PARSING_FILE.log(*log, filePart);
      module.parseAsWritten(dom, candidate);
    } else if (filePart.find(":", 0) < 0) {
      moduleLookupPending = false;
      KBI_UML2XMI::UML2_I_COULD_NOT_PARSE_FILE.log(*log, candidate.getPath());
    }
  }
  return static_cast<bool>(module);
}

DocumentElement ModuleFile::find(const KYRString& fragment) {
  if (fragment.isEmpty()) return {};
  if (!isIndexed) makeIndex();
  const auto found = nodesByFoldedId.find(fold(fragment));
  return found == nodesByFoldedId.end() ? DocumentElement() : module.element(found->second);
}

// An element is entered when its subtree ends, so children come before it, and the first of an id
// stays.
void ModuleFile::makeIndex() {
  isIndexed = true;
  const XmlDocument& document = module.document();
  const XmlDocument::Name idName = document.findName("xmi:id");
  std::vector<XmlDocument::Node> open;
  const auto closeUpTo = [&](XmlDocument::Node node) {
    while (!open.empty() && document.getEnd(open.back()) <= node) {
      const KYRString& id = module.element(open.back()).attribute(idName);
      if (!id.isEmpty()) nodesByFoldedId.emplace(fold(id), open.back());
      open.pop_back();
    }
  };
  for (XmlDocument::Node node = 0; node < document.getNodeCount(); ++node) {
    closeUpTo(node);
    if (document.isElement(node)) open.push_back(node);
  }
  closeUpTo(document.getNodeCount());
}
