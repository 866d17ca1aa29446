// A model as MagicDraw writes it: single quotes, exporter as child elements, library types by href,
// bounds and diagrams in nested extensions, and the shapes of all diagrams at the end. Three of four
// elements of such a file are tool data.
#include <array>
#include <cstdio>

#include "bench/ToolModel.h"

namespace bench {

namespace {

constexpr std::string_view extender = "MagicDraw UML 19.0";

class MagicDrawModel final : public ToolModel {
 public:
  using ToolModel::ToolModel;

  char quote() const override { return '\''; }
  void open(XmlWriter& writer) override;
  void writePackage(XmlWriter& writer, std::uint32_t package) override;
  void closeModel(XmlWriter& writer) override;
  unsigned sections() const override { return 1; }
  void openSection(XmlWriter& writer, unsigned section) override;
  void writeSection(XmlWriter& writer, unsigned section, std::uint32_t package) override;
  void closeSection(XmlWriter& writer, unsigned section) override;
  void close(XmlWriter& writer) override;

 private:
  std::string id(std::uint64_t what, std::uint64_t owner, std::uint64_t part = 0) const;

  void writeDiagram(XmlWriter& writer, std::uint32_t package) const;
  void writeClass(XmlWriter& writer, const ClassPlan& each) const;
  void writeComment(XmlWriter& writer, const std::string& ownId, const std::string& owner,
                    std::uint64_t place, std::uint32_t words) const;
  void writeType(XmlWriter& writer, FeatureType type) const;
  void writeBound(XmlWriter& writer, std::string_view tag, const std::string& ownId,
                  std::string_view value) const;
  void writeAttribute(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const;
  void writeOperation(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const;
  void writeAssociation(XmlWriter& writer, const ClassPlan& each) const;
  void writeShape(XmlWriter& writer, std::string_view elementClass, const std::string& ownId,
                  const std::string& element, std::uint32_t position) const;

  bool isGroupOpen = false;
};

std::string MagicDrawModel::id(std::uint64_t what, std::uint64_t owner, std::uint64_t part) const {
  const std::uint64_t number = plan.idNumber(what, owner, part);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "_19_0_3_5b7e0a1_16%011llu_%06u_%u",
                static_cast<unsigned long long>(number % 100000000000U),
                static_cast<unsigned>(number >> 40U) % 1000000U, static_cast<unsigned>(owner * 97 + part));
  return text.data();
}

void MagicDrawModel::open(XmlWriter& writer) {
  writer.raw("<?xml version='1.0' encoding='UTF-8'?>\n");
  writer.start("xmi:XMI",
               {{"xmlns:uml", "http://www.omg.org/spec/UML/20131001"},
                {"xmlns:xmi", "http://www.omg.org/spec/XMI/20131001"},
                {"xmlns:MagicDraw_Profile", "http://www.omg.org/spec/UML/20131001/MagicDrawProfile"}});
  writer.start("xmi:Documentation");
  writer.start("xmi:exporter");
  writer.text("MagicDraw UML");
  writer.end();
  writer.start("xmi:exporterVersion");
  writer.text("19.0");
  writer.end();
  writer.end();
  writer.start("uml:Model", {{"xmi:type", "uml:Model"}, {"xmi:id", "model_1"}, {"name", "Generated"}});
}

void MagicDrawModel::writePackage(XmlWriter& writer, std::uint32_t package) {
  if (package % packagesInGroup == 0) {
    if (isGroupOpen) writer.end();
    writer.start("packagedElement", {{"xmi:type", "uml:Package"},
                                     {"xmi:id", id(groupId, package)},
                                     {"name", "Group" + std::to_string(package / packagesInGroup)}});
    isGroupOpen = true;
  }
  writer.start("packagedElement", {{"xmi:type", "uml:Package"},
                                   {"xmi:id", id(packageId, package)},
                                   {"name", "Package" + std::to_string(package)}});
  writeDiagram(writer, package);
  for (std::uint32_t i = 0; i < classesInPackage; ++i)
    writeClass(writer, plan.classAt(package * classesInPackage + i));
  writer.end();
}

void MagicDrawModel::writeDiagram(XmlWriter& writer, std::uint32_t package) const {
  const std::string ownId = id(diagramId, package);
  writer.start("xmi:Extension", {{"extender", extender}});
  writer.start("modelExtension");
  writer.start("ownedDiagram", {{"xmi:type", "uml:Diagram"},
                                {"xmi:id", ownId},
                                {"name", "Diagram" + std::to_string(package)},
                                {"visibility", "public"},
                                {"ownerOfDiagram", id(packageId, package)}});
  writer.start("xmi:Extension", {{"extender", extender}});
  writer.start("diagramRepresentation");
  writer.start("diagram:DiagramRepresentationObject",
               {{"ID", id(diagramId, package, 1)},
                {"type", "Class Diagram"},
                {"umlType", "Class Diagram"},
                {"xmi:id", id(diagramId, package, 2)},
                {"xmi:version", "2.0"},
                {"xmlns:diagram", "http://www.nomagic.com/ns/magicdraw/core/diagram/1.0"},
                {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"}});
  writer.start("diagramContents", {{"xmi:id", id(diagramId, package, 3)}});
  for (std::uint32_t i = 0; i < classesInPackage; ++i) {
    const std::string element = id(classId, package * classesInPackage + i);
    writer.leaf("usedObjects", {{"href", "#" + element}});
    writer.start("usedElements");
    writer.text(element);
    writer.end();
  }
  for (int open = 0; open < 7; ++open) writer.end();
}

void MagicDrawModel::writeComment(XmlWriter& writer, const std::string& ownId, const std::string& owner,
                                  std::uint64_t place, std::uint32_t words) const {
  if (words == 0) return;
  writer.start("ownedComment", {{"xmi:type", "uml:Comment"},
                                {"xmi:id", ownId},
                                {"body",
                                 "\xC3\xBC"
                                 "ber &lt;b&gt;" +
                                     plan.prose(place, words) + "&lt;/b&gt;&#10;"}});
  writer.leaf("annotatedElement", {{"xmi:idref", owner}});
  writer.end();
}

void MagicDrawModel::writeClass(XmlWriter& writer, const ClassPlan& each) const {
  static constexpr std::array<std::string_view, 3> types = {"uml:Class", "uml:Interface", "uml:Enumeration"};
  const std::string ownId = id(classId, each.number);
  writer.start(
      "packagedElement",
      {{"xmi:type", types[static_cast<std::size_t>(each.kind)]}, {"xmi:id", ownId}, {"name", each.name}});
  if (each.isAbstract) writer.attribute("isAbstract", "true");
  writeComment(writer, id(commentId, each.number), ownId, each.number, each.documentationWords);
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

void MagicDrawModel::writeType(XmlWriter& writer, FeatureType type) const {
  if (!type.isPrimitive) return;
  const std::string name(ModelPlan::primitiveName(type.number));
  writer.start("type", {{"href", "http://www.omg.org/spec/UML/20131001/PrimitiveTypes.xmi#" + name}});
  writer.start("xmi:Extension", {{"extender", extender}});
  writer.leaf("referenceExtension",
              {{"referentPath", "UML Standard Profile::UML2 Metamodel::PrimitiveTypes::" + name},
               {"referentType", "PrimitiveType"}});
  writer.end();
  writer.end();
}

void MagicDrawModel::writeBound(XmlWriter& writer, std::string_view tag, const std::string& ownId,
                                std::string_view value) const {
  writer.start("xmi:Extension", {{"extender", extender}});
  writer.start("modelExtension");
  writer.leaf(tag, {{"xmi:type", tag == "lowerValue" ? "uml:LiteralInteger" : "uml:LiteralUnlimitedNatural"},
                    {"xmi:id", ownId},
                    {"value", value}});
  writer.end();
  writer.end();
}

void MagicDrawModel::writeAttribute(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const {
  const AttributePlan& each = owner.attributes[position];
  const std::string ownId = id(attributeId, owner.number, position);
  writer.start("ownedAttribute", {{"xmi:type", "uml:Property"},
                                  {"xmi:id", ownId},
                                  {"name", each.name},
                                  {"visibility", each.visibility}});
  if (each.isStatic) writer.attribute("isStatic", "true");
  if (!each.type.isPrimitive) writer.attribute("type", id(classId, each.type.number));
  writeComment(writer, id(commentId, owner.number, position + 1), ownId, owner.number + position,
               each.documentationWords);
  writeType(writer, each.type);
  if (each.isMany) {
    writer.leaf("lowerValue",
                {{"xmi:type", "uml:LiteralInteger"}, {"xmi:id", id(lowerId, owner.number, position)}});
    writer.leaf("upperValue", {{"xmi:type", "uml:LiteralUnlimitedNatural"},
                               {"xmi:id", id(upperId, owner.number, position)},
                               {"value", "*"}});
  } else {
    writeBound(writer, "lowerValue", id(lowerId, owner.number, position), "1");
    writeBound(writer, "upperValue", id(upperId, owner.number, position), "1");
  }
  if (each.hasDefault)
    writer.leaf("defaultValue", {{"xmi:type", "uml:LiteralString"},
                                 {"xmi:id", id(defaultId, owner.number, position)},
                                 {"value", "none"}});
  writer.end();
}

void MagicDrawModel::writeOperation(XmlWriter& writer, const ClassPlan& owner, std::uint32_t position) const {
  const OperationPlan& each = owner.operations[position];
  writer.start("ownedOperation", {{"xmi:type", "uml:Operation"},
                                  {"xmi:id", id(operationId, owner.number, position)},
                                  {"name", each.name},
                                  {"visibility", each.visibility}});
  for (std::uint32_t i = 0; i < each.parameters.size(); ++i) {
    const ParameterPlan& next = each.parameters[i];
    writer.start("ownedParameter", {{"xmi:type", "uml:Parameter"},
                                    {"xmi:id", id(parameterId, owner.number, position * 16 + i)},
                                    {"name", next.name},
                                    {"visibility", "public"},
                                    {"direction", next.direction}});
    if (!next.type.isPrimitive) writer.attribute("type", id(classId, next.type.number));
    writeType(writer, next.type);
    writer.end();
  }
  writer.end();
}

void MagicDrawModel::writeAssociation(XmlWriter& writer, const ClassPlan& each) const {
  const std::string ownId = id(associationId, each.number);
  writer.start("packagedElement",
               {{"xmi:type", "uml:Association"}, {"xmi:id", ownId}, {"visibility", "public"}});
  const std::array<std::pair<std::uint64_t, std::uint32_t>, 2> ends = {
      {{sourceEndId, each.number}, {targetEndId, *each.partner}}};
  for (const auto& [what, classNumber] : ends)
    writer.leaf("memberEnd", {{"xmi:idref", id(what, each.number)}});
  for (const auto& [what, classNumber] : ends)
    writer.leaf("ownedEnd", {{"xmi:type", "uml:Property"},
                             {"xmi:id", id(what, each.number)},
                             {"visibility", "private"},
                             {"type", id(classId, classNumber)},
                             {"association", ownId}});
  writer.end();
}

void MagicDrawModel::closeModel(XmlWriter& writer) {
  writer.end();
  writer.end();
}

void MagicDrawModel::openSection(XmlWriter& writer, unsigned) {
  writer.start("xmi:Extension", {{"extender", extender}});
}

void MagicDrawModel::writeShape(XmlWriter& writer, std::string_view elementClass, const std::string& ownId,
                                const std::string& element, std::uint32_t position) const {
  writer.start("mdElement", {{"elementClass", elementClass}, {"xmi:id", ownId}});
  writer.leaf("elementID", {{"xmi:idref", element}});
  writer.start("properties");
  for (const std::string_view property : {"SUPPRESS_CLASS_ATTRIBUTES", "SHOW_ATTRIBUTES_TYPE", "AUTOSIZE"}) {
    writer.start("mdElement", {{"elementClass", "BooleanProperty"}});
    writer.start("propertyID");
    writer.text(property);
    writer.end();
    writer.start("propertyDescriptionID");
    writer.text(std::string(property) + "_DESCRIPTION");
    writer.end();
    writer.leaf("value", {{"xmi:value", "true"}});
    writer.end();
  }
  writer.end();
  writer.start("geometry");
  writer.text(std::to_string(20 + 140 * (position % 4)) + ", " + std::to_string(20 + 160 * (position / 4)) +
              ", 120, 110");
  writer.end();
  for (const std::string_view compartment : {"TAGGED_VALUES", "ATTRIBUTES", "OPERATIONS"})
    writer.leaf("compartment", {{"xmi:value", ownId}, {"compartmentID", compartment}});
  writer.end();
}

void MagicDrawModel::writeSection(XmlWriter& writer, unsigned, std::uint32_t package) {
  writer.start("xmi:Extension", {{"extender", extender}});
  writer.start("filePart", {{"name", "BINARY-" + std::to_string(package)}, {"type", "XML"}});
  writer.start("mdOwnedViews");
  writer.start("mdElement", {{"elementClass", "DiagramFrame"}, {"xmi:id", id(shapeId, package, 1000)}});
  writer.leaf("elementID", {{"xmi:idref", id(diagramId, package)}});
  writer.start("geometry");
  writer.text("7, 7, 640, 600");
  writer.end();
  writer.end();
  for (std::uint32_t i = 0; i < classesInPackage; ++i) {
    const ClassPlan each = plan.classAt(package * classesInPackage + i);
    writeShape(writer, "Class", id(shapeId, package, i), id(classId, each.number), i);
    if (each.partner)
      writeShape(writer, "Association", id(shapeId, package, 100 + i), id(associationId, each.number), i);
  }
  writer.end();
  writer.end();
  writer.end();
}

void MagicDrawModel::closeSection(XmlWriter& writer, unsigned) { writer.end(); }

void MagicDrawModel::close(XmlWriter& writer) {
  writer.end();
  writer.raw("\n");
}

}  // namespace

std::unique_ptr<ToolModel> makeMagicDrawModel(std::uint64_t seed) {
  return std::make_unique<MagicDrawModel>(seed);
}

}  // namespace bench
