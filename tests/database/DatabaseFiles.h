// Files with the database profiles of the two tools, for the tests of data stores, schemas and keys.
#pragma once

#include <string>

#include "tests/convert/ImportedModel.h"

/// What a file says of the tool that wrote it.
inline std::string writtenBy(const std::string& exporter) {
  return "<xmi:Documentation exporter='" + exporter + "' exporterVersion='1'/>";
}

inline const std::string enterpriseArchitect = "Enterprise Architect";
inline const std::string magicDraw = "MagicDraw UML";

/// The mark of a database system, as a child of the model.
inline std::string dbms(const std::string& name) { return "<thecustomprofile:DBMS DBMS='" + name + "'/>"; }
/// The mark of a table, as a child of the model.
inline std::string table(const std::string& id, const std::string& owner) {
  return "<EAUML:table base_Class='" + id + "' Owner='" + owner + "'/>";
}
/// A file of Enterprise Architect; marks are children of the model.
inline std::string fileOfEA(const std::string& elementsAndMarks) {
  return xmi(elementsAndMarks, "Model", writtenBy(enterpriseArchitect));
}

/// The marks of a database and of a schema, as children of the root.
inline std::string database(const std::string& package) {
  return "<SQLProfile:Database xmi:id='dbm' base_Package='" + package + "'/>";
}
inline std::string schema(const std::string& package) {
  return "<SQLProfile:Schema xmi:id='s" + package + "' base_Package='" + package + "'/>";
}
/// What the package of a database holds to tell its system.
inline std::string profileNamed(const std::string& name) {
  return "<profileApplication xmi:type='uml:ProfileApplication' xmi:id='pa'><appliedProfile href='#x'>"
         "<xmi:Extension extender='MagicDraw UML'><referenceExtension referentPath='" +
         name + "'/></xmi:Extension></appliedProfile></profileApplication>";
}
/// A file of MagicDraw; marks are children of the root.
inline std::string fileOfMagicDraw(const std::string& elements, const std::string& marks) {
  return xmi(elements, "Model", writtenBy(magicDraw) + marks);
}
