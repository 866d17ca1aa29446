// Enterprise Architect's own section: an entry for each element, attribute, operation and connector.
#include <array>

#include "bench/EnterpriseArchitectModel.h"

namespace bench {

void EnterpriseArchitectModel::openSection(XmlWriter& writer, unsigned section) {
  if (section == 0)
    writer.start("xmi:Extension", {{"extender", "Enterprise Architect"}, {"extenderID", "6.5"}});
  writer.start(section == 0 ? "elements" : "connectors");
}

void EnterpriseArchitectModel::writeSection(XmlWriter& writer, unsigned section, std::uint32_t package) {
  if (section == 0) writePackageEntry(writer, package);
  for (std::uint32_t i = 0; i < classesInPackage; ++i) {
    const ClassPlan each = plan.classAt(package * classesInPackage + i);
    if (section == 0) {
      writeElementEntry(writer, each);
      continue;
    }
    if (each.general)
      writeConnector(writer, id(generalizationId, each.number), "Generalization", each.number, *each.general);
    if (each.partner)
      writeConnector(writer, id(associationId, each.number), "Association", each.number, *each.partner);
  }
}

void EnterpriseArchitectModel::writePackageEntry(XmlWriter& writer, std::uint32_t package) const {
  writer.start("element", {{"xmi:idref", packageIdText(package)},
                           {"xmi:type", "uml:Package"},
                           {"name", "Package" + std::to_string(package)},
                           {"scope", "public"}});
  writer.leaf("properties",
              {{"isSpecification", "false"}, {"sType", "Package"}, {"nType", "0"}, {"scope", "public"}});
  for (const std::string_view tag : {"tags", "xrefs", "packageproperties", "paths", "times"})
    writer.leaf(tag);
  writer.end();
}

void EnterpriseArchitectModel::writeDocumentation(XmlWriter& writer, std::uint64_t place,
                                                  std::uint32_t words) const {
  writer.start("documentation");
  // The two bytes are an e with an acute accent and a dash in windows-1252.
  if (words != 0) writer.attribute("value", "Caf\xE9 \x96 " + plan.prose(place, words) + ".&#xA;");
  writer.end();
}

void EnterpriseArchitectModel::writeTags(XmlWriter& writer, const ClassPlan& each) const {
  writer.start("tags");
  for (std::uint32_t i = 0; i < each.tags; ++i)
    writer.leaf("tag", {{"xmi:id", id(otherId, each.number, i)},
                        {"name", "tag" + std::to_string(i)},
                        {"value", plan.prose(each.number + i, 2)},
                        {"modelElement", id(classId, each.number)}});
  writer.end();
}

void EnterpriseArchitectModel::writeElementEntry(XmlWriter& writer, const ClassPlan& each) const {
  static constexpr std::array<std::string_view, 3> kinds = {"Class", "Interface", "Enumeration"};
  const std::string kind(kinds[static_cast<std::size_t>(each.kind)]);
  writer.start("element", {{"xmi:idref", id(classId, each.number)},
                           {"xmi:type", "uml:" + kind},
                           {"name", each.name},
                           {"scope", "public"}});
  writer.leaf("model", {{"package", packageIdText(each.number / classesInPackage)},
                        {"tpos", "0"},
                        {"ea_localid", std::to_string(each.number)},
                        {"ea_eleType", "element"}});
  writer.start("properties");
  if (each.documentationWords != 0)
    writer.attribute("documentation", plan.prose(each.number, each.documentationWords) + " \x80 5");
  for (const auto& [name, value] : {XmlWriter::Attribute{"isSpecification", "false"},
                                    {"sType", kind},
                                    {"nType", "0"},
                                    {"scope", "public"},
                                    {"isRoot", "false"},
                                    {"isLeaf", "false"},
                                    {"isAbstract", each.isAbstract ? "true" : "false"},
                                    {"isActive", "false"}})
    writer.attribute(name, value);
  writer.end();
  writer.leaf("project", {{"author", "Generator"},
                          {"version", "1.0"},
                          {"phase", "1.0"},
                          {"created", "2024-01-01 00:00:00"},
                          {"modified", "2024-01-01 00:00:00"},
                          {"complexity", "1"},
                          {"status", "Proposed"}});
  writer.leaf("code", {{"gentype", "Java"}});
  writer.leaf(
      "style",
      {{"appearance",
        "BackColor=-1;BorderColor=-1;BorderWidth=-1;FontColor=-1;VSwimLanes=1;HSwimLanes=1;BorderStyle=0;"}});
  writeTags(writer, each);
  writer.leaf("xrefs", {{"value", "$XREFPROP=$XID={" + guid(otherId, each.number, 99) +
                                      "}$XID;$DES=" + plan.prose(each.number + 1, 18) + "$DES;$ENDXREF;"}});
  writer.leaf(
      "extendedProperties",
      {{"tagged", "0"}, {"package_name", "Package" + std::to_string(each.number / classesInPackage)}});
  if (!each.attributes.empty()) {
    writer.start("attributes");
    for (std::uint32_t i = 0; i < each.attributes.size(); ++i) writeAttributeEntry(writer, each, i);
    writer.end();
  }
  if (!each.operations.empty()) {
    writer.start("operations");
    for (std::uint32_t i = 0; i < each.operations.size(); ++i) writeOperationEntry(writer, each, i);
    writer.end();
  }
  writer.end();
}

void EnterpriseArchitectModel::writeAttributeEntry(XmlWriter& writer, const ClassPlan& owner,
                                                   std::uint32_t position) const {
  const AttributePlan& each = owner.attributes[position];
  const std::string ownId = id(attributeId, owner.number, position);
  writer.start("attribute", {{"xmi:idref", ownId}, {"name", each.name}, {"scope", "Private"}});
  if (each.hasDefault) {
    writer.leaf("initial", {{"body", "none"}});
  } else {
    writer.leaf("initial");
  }
  writeDocumentation(writer, owner.number + position, each.documentationWords);
  writer.leaf("model", {{"ea_localid", std::to_string(owner.number * 16 + position)}, {"ea_guid", ownId}});
  writer.leaf("properties", {{"type", typeName(each.type)},
                             {"derived", "0"},
                             {"precision", "0"},
                             {"collection", "false"},
                             {"length", each.hasDefault ? "30" : "0"},
                             {"static", "0"},
                             {"duplicates", "0"},
                             {"changeability", "changeable"}});
  writer.leaf("coords", {{"ordered", "0"}, {"scale", "0"}});
  writer.leaf("containment", {{"containment", "Not Specified"}, {"position", std::to_string(position)}});
  writer.leaf("stereotype");
  writer.leaf("bounds", {{"lower", each.isMany ? "0" : "1"}, {"upper", each.isMany ? "*" : "1"}});
  writer.leaf("options");
  writer.leaf("style");
  writer.leaf("styleex", {{"value", "volatile=0;union=0;subsetted=0;derivedUnion=0;"}});
  writer.leaf("tags");
  writer.leaf("xrefs");
  writer.end();
}

void EnterpriseArchitectModel::writeOperationEntry(XmlWriter& writer, const ClassPlan& owner,
                                                   std::uint32_t position) const {
  const OperationPlan& each = owner.operations[position];
  writer.start(
      "operation",
      {{"xmi:idref", id(operationId, owner.number, position)}, {"name", each.name}, {"scope", "Public"}});
  writer.leaf("properties", {{"position", std::to_string(position)}});
  writer.leaf("stereotype");
  writer.leaf("model", {{"ea_guid", id(operationId, owner.number, position)}});
  writer.leaf("type", {{"type", "void"},
                       {"const", "false"},
                       {"static", "false"},
                       {"isAbstract", "false"},
                       {"synchronised", "0"},
                       {"concurrency", "Sequential"},
                       {"isQuery", "false"}});
  for (const std::string_view tag : {"behaviour", "code", "style", "styleex"}) writer.leaf(tag);
  writeDocumentation(writer, owner.number + position, each.documentationWords);
  writer.leaf("tags");
  writer.start("parameters");
  for (std::uint32_t i = 0; i < each.parameters.size(); ++i) {
    const ParameterPlan& next = each.parameters[i];
    writer.start("parameter",
                 {{"xmi:idref", id(parameterId, owner.number, position * 16 + i)}, {"visibility", "public"}});
    writer.leaf("properties",
                {{"pos", std::to_string(i)}, {"type", typeName(next.type)}, {"const", "false"}});
    for (const std::string_view tag : {"style", "styleex", "documentation", "tags", "xrefs"})
      writer.leaf(tag);
    writer.end();
  }
  writer.end();
  writer.leaf("xrefs");
  writer.end();
}

void EnterpriseArchitectModel::writeConnector(XmlWriter& writer, const std::string& ownId,
                                              std::string_view kind, std::uint32_t source,
                                              std::uint32_t target) const {
  writer.start("connector", {{"xmi:idref", ownId}});
  const std::array<std::pair<std::string_view, std::uint32_t>, 2> ends = {
      {{"source", source}, {"target", target}}};
  for (const auto& [tag, number] : ends) {
    writer.start(tag, {{"xmi:idref", id(classId, number)}});
    writer.leaf(
        "model",
        {{"ea_localid", std::to_string(number)}, {"type", "Class"}, {"name", plan.className(number)}});
    writer.leaf("role", {{"visibility", "Public"}, {"targetScope", "instance"}});
    writer.leaf("type", {{"aggregation", "none"}, {"containment", "Unspecified"}});
    writer.leaf("constraints");
    writer.leaf("modifiers", {{"isOrdered", "false"}, {"changeable", "none"}, {"isNavigable", "false"}});
    writer.leaf("style", {{"value", "Union=0;Derived=0;AllowDuplicates=0;Owned=0;Navigable=Unspecified;"}});
    for (const std::string_view empty : {"documentation", "xrefs", "tags"}) writer.leaf(empty);
    writer.end();
  }
  writer.leaf("model", {{"ea_localid", std::to_string(source)}});
  writer.leaf("properties", {{"ea_type", kind}, {"direction", "Source -&gt; Destination"}});
  writer.leaf("modifiers", {{"isRoot", "false"}, {"isLeaf", "false"}});
  writer.leaf("documentation");
  writer.leaf("appearance", {{"linemode", "3"},
                             {"linecolor", "-1"},
                             {"linewidth", "0"},
                             {"seqno", "0"},
                             {"headStyle", "0"},
                             {"lineStyle", "0"}});
  writer.leaf("labels");
  writer.leaf("extendedProperties", {{"virtualInheritance", "0"}});
  for (const std::string_view empty : {"style", "xrefs", "tags"}) writer.leaf(empty);
  writer.end();
}

void EnterpriseArchitectModel::closeSection(XmlWriter& writer, unsigned section) {
  writer.end();
  if (section + 1 != sections()) return;
  writer.start("primitivetypes");
  for (std::uint32_t i = 0; i < primitiveCount; ++i)
    writer.leaf("packagedElement", {{"xmi:type", "uml:PrimitiveType"},
                                    {"xmi:id", typeId({true, i})},
                                    {"name", ModelPlan::primitiveName(i)}});
  writer.end();
  writer.leaf("profiles");
  writer.end();
}

}  // namespace bench
