#include "bench/SpecialShapes.h"

#include <algorithm>
#include <string>

#include "bench/Random.h"

namespace bench {

namespace {

constexpr std::uint64_t linkedClasses = 1000;
constexpr std::uint64_t attributesOfClass = 20;
constexpr std::uint64_t shapesOfDiagram = 5;

constexpr std::string_view magicDraw = "MagicDraw UML";

void openModel(XmlWriter& writer, std::string_view exporter = {}) {
  writer.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
  writer.start("xmi:XMI", {{"xmi:version", "2.1"},
                           {"xmlns:xmi", "http://schema.omg.org/spec/XMI/2.1"},
                           {"xmlns:uml", "http://schema.omg.org/spec/UML/2.1"}});
  if (!exporter.empty()) {
    writer.start("xmi:Documentation");
    writer.start("xmi:exporter");
    writer.text(exporter);
    writer.end();
    writer.end();
  }
  writer.start("uml:Model", {{"xmi:type", "uml:Model"}, {"xmi:id", "m"}, {"name", "Special"}});
}

void closeModel(XmlWriter& writer) {
  writer.end();
  writer.end();
  writer.raw("\n");
}

void openPackage(XmlWriter& writer, std::string_view id) {
  writer.start("packagedElement", {{"xmi:type", "uml:Package"}, {"xmi:id", id}, {"name", id}});
}

std::string classId(std::uint64_t number) { return "c" + std::to_string(number); }

std::string typeId(std::uint64_t number) { return "t" + std::to_string(number); }

void writeView(XmlWriter& writer, std::string_view elementClass, const std::string& id,
               const std::string& element) {
  writer.start("mdElement", {{"elementClass", elementClass}, {"xmi:id", id}});
  writer.leaf("elementID", {{"xmi:idref", element}});
  writer.start("geometry");
  writer.text("20, 20, 120, 110");
  writer.end();
  writer.end();
}

/// A package of classes with `count` attributes in all, the types one after the other.
void writeAttributes(XmlWriter& writer, std::uint64_t count, std::uint64_t types) {
  openPackage(writer, "p");
  for (std::uint64_t i = 0; i < count; ++i) {
    if (i % attributesOfClass == 0) {
      const std::uint64_t number = i / attributesOfClass;
      writer.start("packagedElement", {{"xmi:type", "uml:Class"},
                                       {"xmi:id", classId(number)},
                                       {"name", "Class" + std::to_string(number)}});
    }
    writer.leaf("ownedAttribute", {{"xmi:type", "uml:Property"},
                                   {"xmi:id", "a" + std::to_string(i)},
                                   {"name", "attribute" + std::to_string(i)},
                                   {"type", typeId(i % types)}});
    if ((i + 1) % attributesOfClass == 0 || i + 1 == count) writer.end();
  }
  writer.end();
}

}  // namespace

void writeManyClasses(XmlWriter& writer, std::uint64_t count, bool sameName) {
  openModel(writer);
  openPackage(writer, "p");
  for (std::uint64_t i = 0; i < count; ++i)
    writer.leaf("packagedElement", {{"xmi:type", "uml:Class"},
                                    {"xmi:id", classId(i)},
                                    {"name", sameName ? "Class" : "Class" + std::to_string(i)}});
  writer.end();
  closeModel(writer);
}

void writeManyLinks(XmlWriter& writer, std::uint64_t count, std::uint64_t seed) {
  Random random(mix(seed, count));
  openModel(writer);
  openPackage(writer, "p");
  for (std::uint64_t i = 0; i < linkedClasses; ++i)
    writer.leaf("packagedElement",
                {{"xmi:type", "uml:Class"}, {"xmi:id", classId(i)}, {"name", "Class" + std::to_string(i)}});
  // Each dependency brings two references. Every other one starts at class 0, whose list grows long.
  for (std::uint64_t i = 0; i < count / 2; ++i) {
    const std::uint64_t client = i % 2 == 0 ? 0 : random.below(linkedClasses);
    writer.leaf("packagedElement", {{"xmi:type", "uml:Dependency"},
                                    {"xmi:id", "d" + std::to_string(i)},
                                    {"supplier", classId(random.below(linkedClasses))},
                                    {"client", classId(client)}});
  }
  writer.end();
  closeModel(writer);
}

void writeManyTypes(XmlWriter& writer, std::uint64_t count, std::uint64_t types) {
  openModel(writer);
  openPackage(writer, "types");
  for (std::uint64_t i = 0; i < types; ++i)
    writer.leaf("packagedElement", {{"xmi:type", i % 2 == 0 ? "uml:DataType" : "uml:Class"},
                                    {"xmi:id", typeId(i)},
                                    {"name", "Type" + std::to_string(i)}});
  writer.end();
  writeAttributes(writer, count, types);
  closeModel(writer);
}

void writeSharedEnumeration(XmlWriter& writer, std::uint64_t count, std::uint64_t literals) {
  openModel(writer);
  openPackage(writer, "types");
  writer.start("packagedElement",
               {{"xmi:type", "uml:Enumeration"}, {"xmi:id", typeId(0)}, {"name", "State"}});
  for (std::uint64_t i = 0; i < literals; ++i)
    writer.leaf("ownedLiteral", {{"xmi:type", "uml:EnumerationLiteral"},
                                 {"xmi:id", "l" + std::to_string(i)},
                                 {"name", "state" + std::to_string(i)}});
  writer.end();
  writer.end();
  writeAttributes(writer, count, 1);
  closeModel(writer);
}

void writeUnresolvedTypes(XmlWriter& writer, std::uint64_t count) {
  openModel(writer);
  writeAttributes(writer, count, count);
  closeModel(writer);
}

void writeWithoutIds(XmlWriter& writer, std::uint64_t count) {
  openModel(writer);
  openPackage(writer, "p");
  for (std::uint64_t i = 0; i < count; ++i) {
    writer.start("packagedElement", {{"xmi:type", "uml:Class"}, {"name", "Class" + std::to_string(i)}});
    writer.leaf("ownedAttribute", {{"xmi:type", "uml:Property"}, {"name", "attribute"}});
    writer.end();
  }
  writer.end();
  closeModel(writer);
}

void writeLongPrefixes(XmlWriter& writer, std::uint64_t count) {
  constexpr std::size_t prefixLength = 200;
  const std::string prefix(prefixLength, '_');
  openModel(writer);
  openPackage(writer, "p");
  for (std::uint64_t i = 0; i < count; ++i) {
    writer.start(
        "packagedElement",
        {{"xmi:type", "uml:Class"}, {"xmi:id", prefix + classId(i)}, {"name", "Class" + std::to_string(i)}});
    writer.leaf("ownedAttribute", {{"xmi:type", "uml:Property"},
                                   {"xmi:id", prefix + "a" + std::to_string(i)},
                                   {"name", "attribute"},
                                   {"type", prefix + classId((i * linkedClasses + 1) % count)}});
    writer.end();
  }
  writer.end();
  closeModel(writer);
}

void writeOneClass(XmlWriter& writer, std::uint64_t count) {
  openModel(writer);
  openPackage(writer, "p");
  writer.start("packagedElement", {{"xmi:type", "uml:Class"}, {"xmi:id", "c"}, {"name", "Class"}});
  for (std::uint64_t i = 0; i < count; ++i)
    writer.leaf("ownedAttribute", {{"xmi:type", "uml:Property"},
                                   {"xmi:id", "a" + std::to_string(i)},
                                   {"name", "attribute" + std::to_string(i)}});
  writer.end();
  writer.end();
  closeModel(writer);
}

void writeDeepKeys(XmlWriter& writer, std::uint64_t count) {
  constexpr std::uint64_t depth = 500;
  openModel(writer, magicDraw);
  for (std::uint64_t chain = 0; chain < count; ++chain) {
    const std::string first = "p" + std::to_string(chain) + "_";
    for (std::uint64_t level = 0; level < depth; ++level) openPackage(writer, first + std::to_string(level));
    writer.start(
        "packagedElement",
        {{"xmi:type", "uml:Class"}, {"xmi:id", classId(chain)}, {"name", "Class" + std::to_string(chain)}});
    writer.start(
        "ownedAttribute",
        {{"xmi:type", "uml:Property"}, {"xmi:id", "a" + std::to_string(chain)}, {"name", "attribute"}});
    writer.start("xmi:Extension", {{"extender", magicDraw}});
    writer.start("modelExtension");
    writer.leaf("upperValue", {{"xmi:type", "uml:LiteralUnlimitedNatural"},
                               {"xmi:id", "u" + std::to_string(chain)},
                               {"value", "7"}});
    for (int open = 0; open < 4; ++open) writer.end();
    for (std::uint64_t level = 0; level < depth; ++level) writer.end();
  }
  closeModel(writer);
}

void writeManyDiagrams(XmlWriter& writer, std::uint64_t count) {
  openModel(writer, magicDraw);
  openPackage(writer, "p");
  for (std::uint64_t i = 0; i < linkedClasses; ++i)
    writer.leaf("packagedElement",
                {{"xmi:type", "uml:Class"}, {"xmi:id", classId(i)}, {"name", "Class" + std::to_string(i)}});
  for (std::uint64_t i = 0; i < count; ++i) {
    const std::string id = "d" + std::to_string(i);
    writer.start("ownedDiagram", {{"xmi:type", "uml:Diagram"}, {"xmi:id", id}, {"name", id}});
    writer.start("xmi:Extension", {{"extender", magicDraw}});
    writer.start("diagramRepresentation");
    writer.leaf("diagram:DiagramRepresentationObject",
                {{"umlType", "Class Diagram"}, {"type", "Class Diagram"}});
    for (int open = 0; open < 3; ++open) writer.end();
  }
  writer.end();
  writer.end();
  writer.start("xmi:Extension", {{"extender", magicDraw}});
  for (std::uint64_t i = 0; i < count; ++i) {
    const std::string id = std::to_string(i);
    writer.start("filePart", {{"name", "BINARY-" + id}, {"type", "XML"}});
    writer.start("mdOwnedViews");
    writeView(writer, "DiagramFrame", "f" + id, "d" + id);
    for (std::uint64_t shape = 0; shape < shapesOfDiagram; ++shape)
      writeView(writer, "Class", "s" + id + "_" + std::to_string(shape),
                classId((i + shape) % linkedClasses));
    writer.end();
    writer.end();
  }
  writer.end();
  writer.end();
  writer.raw("\n");
}

void writeDeepNesting(XmlWriter& writer, std::uint64_t depth) {
  constexpr std::uint64_t levelsOfModel = 2;
  openModel(writer);
  const std::uint64_t packages = depth > levelsOfModel ? depth - levelsOfModel : 0;
  for (std::uint64_t i = 0; i < packages; ++i) openPackage(writer, "p" + std::to_string(i));
  for (std::uint64_t i = 0; i < packages; ++i) writer.end();
  closeModel(writer);
}

void writeHugeAttribute(XmlWriter& writer, std::uint64_t size) {
  constexpr std::uint64_t pieceSize = 1U << 16U;
  const std::string piece(pieceSize, 'x');
  openModel(writer);
  writer.raw("\n\t\t<ownedComment xmi:id=\"c\" annotatedElement=\"m\" body=\"");
  for (std::uint64_t left = size; left != 0;) {
    const std::uint64_t now = std::min(left, pieceSize);
    writer.raw(std::string_view(piece).substr(0, now));
    left -= now;
  }
  writer.raw("\"/>");
  closeModel(writer);
}

void writeEntityBomb(XmlWriter& writer) {
  writer.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE xmi:XMI [\n<!ENTITY e0 \"bang\">\n");
  for (int i = 1; i <= 9; ++i) {
    const std::string inner = "&e" + std::to_string(i - 1) + ";";
    writer.raw("<!ENTITY e" + std::to_string(i) + " \"");
    for (int copy = 0; copy < 10; ++copy) writer.raw(inner);
    writer.raw("\">\n");
  }
  writer.raw(
      "]>\n<xmi:XMI xmlns:xmi=\"http://schema.omg.org/spec/XMI/2.1\" "
      "xmlns:uml=\"http://schema.omg.org/spec/UML/2.1\">"
      "<uml:Model xmi:id=\"m\" name=\"Bomb\"><ownedComment xmi:id=\"c\"><body>&e9;</body></ownedComment>"
      "</uml:Model></xmi:XMI>\n");
}

}  // namespace bench
