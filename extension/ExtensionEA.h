// ExtensionEA: completes the UML objects of an Enterprise Architect file.
//
// The tool keeps part of a model in an xmi:Extension section that the reader skips: types of
// attributes and parameters, default values, tagged values, documentation, and the knowledge that a
// class is a boundary. The file is read a second time as a tree, the section's elements are indexed by
// xmi:idref, and every UML object is completed from the entry of its id.
#pragma once

#include <string_view>
#include <unordered_map>

#include "extension/DocumentReading.h"
#include "foundation/KYRLog.h"
#include "uml/UMLForward.h"

class UMLMadeObjects;
class UMLObjectTable;

class ExtensionEA {
 public:
  /// What is made goes to `madeObjects`, which must outlive the UML objects. Both are borrowed.
  ExtensionEA(KYRLog* log, UMLMadeObjects& madeObjects);

  /// The whole job, once. Raises KYRException; any other exception becomes UML2_I_XML_ERROR.
  void read(const UMLObjectTable& objects, const KYRFile& file);

 private:
  void readSection(const UMLObjectTable& objects, const KYRFile& file);
  DocumentElement findSection() const;
  void index(DocumentElement section);
  void complete(UMLElement& object, DocumentElement entry);
  UMLPrimitiveType* readType(DocumentElement entry);
  void readDefaultValue(UMLProperty& property, DocumentElement entry);
  void readTags(UMLElement& object, DocumentElement entry);
  void readDocumentation(UMLElement& object, DocumentElement entry);

  KYRLog* log;
  UMLMadeObjects& made;
  DocumentReading reading;
  std::unordered_map<std::string_view, XmlDocument::Node> extensionElements;  // first of an id wins
};
