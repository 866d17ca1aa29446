// Metamodel, dispatch rows and the type names of all data stores; what tools add stands here.
#include "fuzz/Vocabulary.h"

#include "repository/datatypes/KYRDataStores.h"
#include "uml/UMLMetamodel.h"
#include "xmi/DispatchRows.h"

const Vocabulary& Vocabulary::get() {
  static const Vocabulary vocabulary;
  return vocabulary;
}

Vocabulary::Vocabulary()
    : tags{"xmi:XMI",
           "uml:Model",
           "uml:Package",
           "xmi:Documentation",
           "xmi:Extension",
           "element",
           "elements",
           "attribute",
           "operation",
           "parameter",
           "connector",
           "properties",
           "documentation",
           "tag",
           "tags",
           "type",
           "bounds",
           "initial",
           "diagrams",
           "diagram",
           "model",
           "mdElement",
           "mdOwnedViews",
           "geometry",
           "linkFirstEndID",
           "linkSecondEndID",
           "elementID",
           "referenceExtension",
           "thecustomprofile:DBMS",
           "EAUML:table",
           "SQLProfile:Database",
           "SQLProfile:Schema",
           "Entity_Relationship:PrimaryKey",
           "Entity_Relationship:ForeignKey"},
      attributes{"xmi:id",       "xmi:idref",       "xmi:type",     "href",        "name",
                 "exporter",     "exporterVersion", "subject",      "geometry",    "base_Class",
                 "base_Package", "base_Property",   "referentPath", "elementClass"},
      values{"Enterprise Architect",
             "MagicDraw UML",
             "true",
             "*",
             "-1",
             "2147483648",
             "..",
             "#x",
             "%2e",
             "Left=1;Top=2;Right=3;Bottom=4;",
             "1, 2, 3, 4",
             "10, 20; -3, 4; ",
             "composite",
             "return",
             "http://schema.omg.org/spec/XMI/2.1",
             "http://www.omg.org/spec/UML/20131001"} {
  for (const UMLMetamodel::ClassRow& row : UMLMetamodel::classRows) types.emplace_back(row.xmiType);
  for (const UMLMetamodel::ScalarRow& row : UMLMetamodel::scalarRows) attributes.emplace_back(row.name);
  for (const UMLMetamodel::LinkRow& row : UMLMetamodel::linkRows) {
    for (const UMLMetamodel::LinkEnd& end : {row.first, row.second}) {
      if (end.role != nullptr) attributes.emplace_back(end.role);
    }
  }
  const DispatchRows& rows = DispatchRows::get();
  for (const std::vector<TagHandler>* const table : {&rows.context, &rows.general}) {
    for (const TagHandler& row : *table) {
      if (row.tag != nullptr) tags.emplace_back(row.tag);
    }
  }
  for (const KYRKnownDataStore& store : getKnownDataStores()) {
    for (const KYRDataTypeTable::Entry& entry : store.getTable().getEntries()) {
      values.emplace_back(entry.name.view());
    }
  }
}
