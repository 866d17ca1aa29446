// A model without any tool's data: short attributes, references as attributes, ids of 22 characters.
#include <array>

#include "bench/ToolModel.h"

namespace bench {

namespace {

class PlainModel final : public ToolModel {
 public:
  using ToolModel::ToolModel;

  void open(XmlWriter& writer) override;
  void writePackage(XmlWriter& writer, std::uint32_t package) override;
  void closeModel(XmlWriter& writer) override;
  void close(XmlWriter& writer) override;

 private:
  std::string id(std::uint64_t what, std::uint64_t owner, std::uint64_t part = 0) const;
  std::string typeId(FeatureType type) const;
  void writeClass(XmlWriter& writer, const ClassPlan& each);
  void writeAttribute(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position);
  void writeOperation(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position);
  void writeAssociation(XmlWriter& writer, const ClassPlan& each);

  bool isGroupOpen = false;
};

std::string PlainModel::id(std::uint64_t what, std::uint64_t owner, std::uint64_t part) const {
  static constexpr std::string_view letters =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
  std::string text = "_";
  const std::uint64_t first = plan.idNumber(what, owner, part);
  const std::uint64_t second = plan.idNumber(~what, owner, part);
  for (unsigned bits = 0; bits < 60; bits += 6) text += letters[(first >> bits) & 63U];
  for (unsigned bits = 0; bits < 60; bits += 6) text += letters[(second >> bits) & 63U];
  return text + "Qw";
}

std::string PlainModel::typeId(FeatureType type) const {
  if (type.isPrimitive) return "type-" + std::string(ModelPlan::primitiveName(type.number));
  return id(classId, type.number);
}

void PlainModel::open(XmlWriter& writer) {
  writer.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
  writer.start("xmi:XMI", {{"xmi:version", "2.4.2"},
                           {"xmlns:xmi", "http://www.omg.org/spec/XMI/20110701"},
                           {"xmlns:uml", "http://www.omg.org/spec/UML/20110701"}});
  writer.start("uml:Model", {{"xmi:type", "uml:Model"}, {"xmi:id", "model"}, {"name", "Generated"}});
  for (std::uint32_t i = 0; i < primitiveCount; ++i)
    writer.leaf("packagedElement", {{"xmi:type", "uml:PrimitiveType"},
                                    {"xmi:id", typeId({true, i})},
                                    {"name", ModelPlan::primitiveName(i)}});
}

void PlainModel::writePackage(XmlWriter& writer, std::uint32_t number) {
  if (number % packagesInGroup == 0) {
    if (isGroupOpen) writer.end();
    writer.start("packagedElement", {{"xmi:type", "uml:Package"},
                                     {"xmi:id", id(groupId, number)},
                                     {"name", "Group" + std::to_string(number / packagesInGroup)}});
    isGroupOpen = true;
  }
  writer.start("packagedElement", {{"xmi:type", "uml:Package"},
                                   {"xmi:id", id(packageId, number)},
                                   {"name", "Package" + std::to_string(number)}});
  for (std::uint32_t i = 0; i < classesInPackage; ++i)
    writeClass(writer, plan.classAt(number * classesInPackage + i));
  writer.end();
}

void PlainModel::writeClass(XmlWriter& writer, const ClassPlan& each) {
  static constexpr std::array<std::string_view, 3> types = {"uml:Class", "uml:Interface", "uml:Enumeration"};
  const std::string ownId = id(classId, each.number);
  writer.start(
      "packagedElement",
      {{"xmi:type", types[static_cast<std::size_t>(each.kind)]}, {"xmi:id", ownId}, {"name", each.name}});
  if (each.isAbstract) writer.attribute("isAbstract", "true");
  if (each.documentationWords != 0) {
    writer.start(
        "ownedComment",
        {{"xmi:type", "uml:Comment"}, {"xmi:id", id(commentId, each.number)}, {"annotatedElement", ownId}});
    writer.start("body");
    writer.text(plan.prose(each.number, each.documentationWords));
    writer.end();
    writer.end();
  }
  if (each.general)
    writer.leaf("generalization", {{"xmi:type", "uml:Generalization"},
                                   {"xmi:id", id(generalizationId, each.number)},
                                   {"general", id(classId, *each.general)}});
  for (std::uint32_t i = 0; i < each.literals.size(); ++i)
    writer.leaf("ownedLiteral", {{"xmi:type", "uml:EnumerationLiteral"},
                                 {"xmi:id", id(literalId, each.number, i)},
                                 {"name", each.literals[i]}});
  for (std::uint32_t i = 0; i < each.attributes.size(); ++i) writeAttribute(writer, each, i);
  for (std::uint32_t i = 0; i < each.operations.size(); ++i) writeOperation(writer, each, i);
  writer.end();
  if (each.partner) writeAssociation(writer, each);
}

void PlainModel::writeAttribute(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) {
  const AttributePlan& each = owner.attributes[position];
  writer.start("ownedAttribute", {{"xmi:type", "uml:Property"},
                                  {"xmi:id", id(attributeId, owner.number, position)},
                                  {"name", each.name},
                                  {"visibility", each.visibility},
                                  {"type", typeId(each.type)}});
  if (each.isStatic) writer.attribute("isStatic", "true");
  if (each.isMany) {
    writer.leaf("lowerValue",
                {{"xmi:type", "uml:LiteralInteger"}, {"xmi:id", id(lowerId, owner.number, position)}});
    writer.leaf("upperValue", {{"xmi:type", "uml:LiteralUnlimitedNatural"},
                               {"xmi:id", id(upperId, owner.number, position)},
                               {"value", "*"}});
  }
  if (each.hasDefault)
    writer.leaf("defaultValue", {{"xmi:type", "uml:LiteralString"},
                                 {"xmi:id", id(defaultId, owner.number, position)},
                                 {"value", "none"}});
  writer.end();
}

void PlainModel::writeOperation(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) {
  const OperationPlan& each = owner.operations[position];
  writer.start("ownedOperation", {{"xmi:type", "uml:Operation"},
                                  {"xmi:id", id(operationId, owner.number, position)},
                                  {"name", each.name},
                                  {"visibility", each.visibility}});
  for (std::uint32_t i = 0; i < each.parameters.size(); ++i) {
    const ParameterPlan& next = each.parameters[i];
    writer.leaf("ownedParameter", {{"xmi:type", "uml:Parameter"},
                                   {"xmi:id", id(parameterId, owner.number, position * 16 + i)},
                                   {"name", next.name},
                                   {"type", typeId(next.type)},
                                   {"direction", next.direction}});
  }
  writer.end();
}

void PlainModel::writeAssociation(XmlWriter& writer, const ClassPlan& each) {
  const std::string ownId = id(associationId, each.number);
  writer.start("packagedElement", {{"xmi:type", "uml:Association"}, {"xmi:id", ownId}});
  const std::array<std::pair<std::uint64_t, std::uint32_t>, 2> ends = {
      {{sourceEndId, each.number}, {targetEndId, *each.partner}}};
  for (const auto& [what, classNumber] : ends)
    writer.leaf("memberEnd", {{"xmi:idref", id(what, each.number)}});
  for (const auto& [what, classNumber] : ends)
    writer.leaf("ownedEnd", {{"xmi:type", "uml:Property"},
                             {"xmi:id", id(what, each.number)},
                             {"type", id(classId, classNumber)},
                             {"association", ownId}});
  writer.end();
}

void PlainModel::closeModel(XmlWriter& writer) {
  writer.end();
  writer.end();
}

void PlainModel::close(XmlWriter& writer) {
  writer.end();
  writer.raw("\n");
}

}  // namespace

std::unique_ptr<ToolModel> makePlainModel(std::uint64_t seed) { return std::make_unique<PlainModel>(seed); }

}  // namespace bench
