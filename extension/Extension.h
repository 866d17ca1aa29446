// Extension: completes the UML objects of a file of any tool but Enterprise Architect.
//
// It gives what the reader cannot follow: the type of a property or parameter that is a reference into
// another file, the multiplicity that MagicDraw keeps in an extension of an association end, and
// custom properties as tagged values. The whole file is read a second time as a tree, and each UML
// object finds its element by composite key.
#pragma once

#include "extension/DocumentReading.h"
#include "extension/ElementIndex.h"
#include "extension/ModuleFile.h"
#include "foundation/KYRLog.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "uml/UMLForward.h"

class UMLMadeObjects;
class UMLObjectTable;

class Extension {
 public:
  /// What is made goes to `madeObjects`, which must outlive the UML objects. Both are borrowed.
  Extension(KYRLog* log, UMLMadeObjects& madeObjects);

  /// The whole job, once. Raises KYRException, also for a module that is not well-formed; any other
  /// exception becomes UML2_I_XML_ERROR.
  void read(UMLObjectTable& objects, const KYRFile& file);

 private:
  void readDocument(UMLObjectTable& objects, const KYRFile& file);
  void complete(UMLElement& object, DocumentElement element, ModuleFile& module);
  UMLPrimitiveType* readType(DocumentElement element, ModuleFile& module);
  UMLPrimitiveType* resolve(const KYRString& href, ModuleFile& module);
  KYRString nameInModule(const KYRString& filePart, const KYRString& fragment, ModuleFile& module);
  void readMultiplicity(UMLProperty& property, DocumentElement element);
  UMLValueSpecification* readBound(DocumentElement bound);
  void readCustomProperties(UMLElement& object, DocumentElement element);

  KYRDataTypeConverter converter;
  KYRLog* log;
  UMLMadeObjects& made;
  KYRDOM dom;
  DocumentReading reading;
};
