#include "bench/SpecialShapes.h"

#include <algorithm>
#include <string>

#include "bench/Random.h"

namespace bench {

namespace {

constexpr std::uint64_t linkedClasses = 1000;
constexpr std::uint64_t attributesOfClass = 20;

void openModel(XmlWriter& writer) {
  writer.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
  writer.start("xmi:XMI", {{"xmi:version", "2.1"},
                           {"xmlns:xmi", "http://schema.omg.org/spec/XMI/2.1"},
                           {"xmlns:uml", "http://schema.omg.org/spec/UML/2.1"}});
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
