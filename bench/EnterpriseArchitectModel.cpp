// The UML body of a model in Enterprise Architect's manner.
#include "bench/EnterpriseArchitectModel.h"

#include <array>
#include <cstdio>

namespace bench {

std::string EnterpriseArchitectModel::guid(std::uint64_t what, std::uint64_t owner,
                                           std::uint64_t part) const {
  const std::uint64_t high = plan.idNumber(what, owner, part);
  const std::uint64_t low = plan.idNumber(~what, owner, part);
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%08X_%04X_4%03x_%04X_%04X%08X", static_cast<unsigned>(high >> 32U),
                static_cast<unsigned>(high >> 16U & 0xFFFFU), static_cast<unsigned>(high & 0xFFFU),
                static_cast<unsigned>(low >> 48U), static_cast<unsigned>(low >> 32U & 0xFFFFU),
                static_cast<unsigned>(low & 0xFFFFFFFFU));
  return text.data();
}

std::string EnterpriseArchitectModel::id(std::uint64_t what, std::uint64_t owner, std::uint64_t part) const {
  return "EAID_" + guid(what, owner, part);
}

std::string EnterpriseArchitectModel::packageIdText(std::uint32_t package) const {
  return "EAPK_" + guid(packageId, package, 0);
}

std::string EnterpriseArchitectModel::typeId(FeatureType type) const {
  return type.isPrimitive ? "EAJava_" + typeName(type) : id(classId, type.number);
}

std::string EnterpriseArchitectModel::typeName(FeatureType type) const {
  return type.isPrimitive ? std::string(ModelPlan::primitiveName(type.number)) : plan.className(type.number);
}

void EnterpriseArchitectModel::open(XmlWriter& writer) {
  writer.raw("<?xml version=\"1.0\" encoding=\"windows-1252\"?>");
  writer.start("xmi:XMI", {{"xmi:version", "2.1"},
                           {"xmlns:uml", "http://schema.omg.org/spec/UML/2.1"},
                           {"xmlns:xmi", "http://schema.omg.org/spec/XMI/2.1"}});
  writer.leaf("xmi:Documentation", {{"exporter", "Enterprise Architect"}, {"exporterVersion", "6.5"}});
  writer.start("uml:Model", {{"xmi:type", "uml:Model"}, {"name", "EA_Model"}, {"visibility", "public"}});
}

void EnterpriseArchitectModel::writePackage(XmlWriter& writer, std::uint32_t package) {
  if (package % packagesInGroup == 0) {
    if (isGroupOpen) writer.end();
    writer.start("packagedElement", {{"xmi:type", "uml:Package"},
                                     {"xmi:id", "EAPK_" + guid(groupId, package, 0)},
                                     {"name", "Group" + std::to_string(package / packagesInGroup)},
                                     {"visibility", "public"}});
    isGroupOpen = true;
  }
  writer.start("packagedElement", {{"xmi:type", "uml:Package"},
                                   {"xmi:id", packageIdText(package)},
                                   {"name", "Package" + std::to_string(package)},
                                   {"visibility", "public"}});
  for (std::uint32_t i = 0; i < classesInPackage; ++i)
    writeClass(writer, plan.classAt(package * classesInPackage + i));
  writer.end();
}

void EnterpriseArchitectModel::writeClass(XmlWriter& writer, const ClassPlan& each) const {
  static constexpr std::array<std::string_view, 3> types = {"uml:Class", "uml:Interface", "uml:Enumeration"};
  writer.start("packagedElement", {{"xmi:type", types[static_cast<std::size_t>(each.kind)]},
                                   {"xmi:id", id(classId, each.number)},
                                   {"name", each.name},
                                   {"visibility", "public"}});
  if (each.isAbstract) writer.attribute("isAbstract", "true");
  for (std::uint32_t i = 0; i < each.literals.size(); ++i)
    writer.leaf("ownedLiteral", {{"xmi:type", "uml:EnumerationLiteral"},
                                 {"xmi:id", id(literalId, each.number, i)},
                                 {"name", each.literals[i]},
                                 {"visibility", "public"}});
  for (std::uint32_t i = 0; i < each.attributes.size(); ++i) writeAttribute(writer, each, i);
  for (std::uint32_t i = 0; i < each.operations.size(); ++i) writeOperation(writer, each, i);
  if (each.general)
    writer.leaf("generalization", {{"xmi:type", "uml:Generalization"},
                                   {"xmi:id", id(generalizationId, each.number)},
                                   {"general", id(classId, *each.general)}});
  writer.end();
  if (each.partner) writeAssociation(writer, each);
}

void EnterpriseArchitectModel::writeBounds(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position,
                                           bool isMany) const {
  const std::string suffix = guid(attributeId, owner.number, position).substr(9);
  writer.leaf("lowerValue", {{"xmi:type", "uml:LiteralInteger"},
                             {"xmi:id", "EAID_LI0" + std::to_string(position) + "0001_" + suffix},
                             {"value", isMany ? "0" : "1"}});
  writer.leaf("upperValue", {{"xmi:type", isMany ? "uml:LiteralUnlimitedNatural" : "uml:LiteralInteger"},
                             {"xmi:id", "EAID_LI0" + std::to_string(position) + "0002_" + suffix},
                             {"value", isMany ? "-1" : "1"}});
}

void EnterpriseArchitectModel::writeAttribute(XmlWriter& writer, const ClassPlan& owner,
                                              std::uint32_t position) const {
  const AttributePlan& each = owner.attributes[position];
  writer.start("ownedAttribute", {{"xmi:type", "uml:Property"},
                                  {"xmi:id", id(attributeId, owner.number, position)},
                                  {"name", each.name},
                                  {"visibility", each.visibility},
                                  {"isStatic", each.isStatic ? "true" : "false"},
                                  {"isReadOnly", "false"},
                                  {"isDerived", "false"},
                                  {"isOrdered", "false"},
                                  {"isUnique", "true"},
                                  {"isDerivedUnion", "false"}});
  writer.leaf("type", {{"xmi:idref", typeId(each.type)}});
  writeBounds(writer, owner, position, each.isMany);
  if (each.hasDefault)
    writer.leaf("defaultValue", {{"xmi:type", "uml:LiteralString"},
                                 {"xmi:id", id(defaultId, owner.number, position)},
                                 {"value", "none"}});
  writer.end();
}

void EnterpriseArchitectModel::writeOperation(XmlWriter& writer, const ClassPlan& owner,
                                              std::uint32_t position) const {
  const OperationPlan& each = owner.operations[position];
  writer.start("ownedOperation", {{"xmi:id", id(operationId, owner.number, position)},
                                  {"name", each.name},
                                  {"visibility", each.visibility},
                                  {"concurrency", "sequential"}});
  for (std::uint32_t i = 0; i < each.parameters.size(); ++i) {
    const ParameterPlan& next = each.parameters[i];
    writer.leaf("ownedParameter", {{"xmi:id", id(parameterId, owner.number, position * 16 + i)},
                                   {"name", next.name},
                                   {"type", typeId(next.type)},
                                   {"direction", next.direction},
                                   {"isStream", "false"},
                                   {"isException", "false"},
                                   {"isOrdered", "false"},
                                   {"isUnique", "true"}});
  }
  writer.end();
}

void EnterpriseArchitectModel::writeAssociation(XmlWriter& writer, const ClassPlan& each) const {
  const std::string whole = guid(associationId, each.number, 0);
  const std::string source = "EAID_src" + whole.substr(2);
  const std::string target = "EAID_dst" + whole.substr(2);
  writer.start("packagedElement",
               {{"xmi:type", "uml:Association"}, {"xmi:id", "EAID_" + whole}, {"visibility", "public"}});
  writer.leaf("memberEnd", {{"xmi:idref", target}});
  writer.leaf("memberEnd", {{"xmi:idref", source}});
  const std::array<std::pair<std::string, std::uint32_t>, 2> ends = {
      {{source, each.number}, {target, *each.partner}}};
  for (const auto& [endId, classNumber] : ends) {
    writer.start("ownedEnd", {{"xmi:type", "uml:Property"},
                              {"xmi:id", endId},
                              {"visibility", "public"},
                              {"association", "EAID_" + whole},
                              {"isStatic", "false"},
                              {"isReadOnly", "false"},
                              {"isDerived", "false"},
                              {"isOrdered", "false"},
                              {"isUnique", "true"},
                              {"isDerivedUnion", "false"},
                              {"aggregation", "none"}});
    writer.leaf("type", {{"xmi:idref", id(classId, classNumber)}});
    writer.end();
  }
  writer.end();
}

void EnterpriseArchitectModel::closeModel(XmlWriter& writer) {
  writer.end();
  writer.end();
}

void EnterpriseArchitectModel::close(XmlWriter& writer) {
  writer.end();
  writer.raw("\n");
}

std::unique_ptr<ToolModel> makeEnterpriseArchitectModel(std::uint64_t seed) {
  return std::make_unique<EnterpriseArchitectModel>(seed);
}

}  // namespace bench
