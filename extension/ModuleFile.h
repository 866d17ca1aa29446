// ModuleFile: the one other file that a file may refer to.
//
// The first reference to a file that exists fixes the module for the rest of the read; later
// references to other files are searched in it too. A first reference to a missing file ends all
// attempts, unless it holds a ":" and so is no plain file name.
#pragma once

#include <string>
#include <unordered_map>

#include "extension/DocumentReading.h"
#include "foundation/KYRLog.h"

class ModuleFile {
 public:
  /// `file` is the file being read; the module is looked for in its directory.
  ModuleFile(KYRLog* log, KYRDOM& dom, const KYRFile& file);

  /// Gets the module for a decoded file part. False when there is none, for this or any reference.
  /// Raises as KYRDOM::parseFile for a module that is not well-formed.
  bool open(const KYRString& filePart);
  /// The element whose xmi:id equals the fragment without regard to case: depth first, children
  /// before the element itself. None for an empty fragment. Only after `open` was true.
  DocumentElement find(const KYRString& fragment);

 private:
  void makeIndex();

  KYRLog* log;
  KYRDOM& dom;
  KYRFile file;
  bool moduleLookupPending = true;
  DocumentReading module;
  bool isIndexed = false;
  std::unordered_map<std::string, XmlDocument::Node> nodesByFoldedId;
};
