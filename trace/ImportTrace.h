// ImportTrace: tells a host what became of each element of a file.
//
// It is made before the file is read, for the reader to tell it where elements stand, and told at the end of
// an import, when the model is complete and the UML objects still live. Nothing of either is changed.
#pragma once

#include "foundation/KYRImportTrace.h"
#include "trace/ReadNotes.h"

class KYROmgUml2XmiImportBridge;
class UMLObjectTable;
class XMIParser;

class ImportTrace {
 public:
  /// Listens to the parser, which must not parse after its end, when a host wants a trace.
  ImportTrace(KYRImportTrace* receiver, XMIParser& parser);
  ImportTrace(const ImportTrace&) = delete;
  ImportTrace& operator=(const ImportTrace&) = delete;

  /// Tells all when a host wants a trace. To be called before the release step.
  void tell(KYROmgUml2XmiImportBridge& bridge);

 private:
  void tellElements(KYROmgUml2XmiImportBridge& bridge);
  void tellReferences();
  void tellNames(KYRTraceReason reason, const std::vector<ReadNotes::Met>& names);
  void tellStereotypes(const KYROmgUml2XmiImportBridge& bridge);
  KYRTraceRecord recordOf(KYRTraceReason reason, const UMLElement& element) const;
  void hand(KYRTraceRecord& record, const KYRString& other);

  KYRImportTrace* const receiver_;
  const XMIParser& parser_;
  ReadNotes notes_;
};
