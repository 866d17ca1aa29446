#include "bench/ToolModel.h"

namespace bench {

void generateModel(ToolModel& model, std::uint64_t size, XmlWriter& writer) {
  model.open(writer);
  // Sections stand two or three levels deep, which shows in the size: every line is indented.
  XmlWriter sectionBytes;
  for (int level = 0; level < 3; ++level) sectionBytes.start("level");
  std::uint32_t packages = 0;
  while (packages == 0 || writer.bytes() + sectionBytes.bytes() < size) {
    model.writePackage(writer, packages);
    for (unsigned section = 0; section < model.sections(); ++section)
      model.writeSection(sectionBytes, section, packages);
    ++packages;
  }
  model.closeModel(writer);
  for (unsigned section = 0; section < model.sections(); ++section) {
    model.openSection(writer, section);
    for (std::uint32_t package = 0; package < packages; ++package)
      model.writeSection(writer, section, package);
    model.closeSection(writer, section);
  }
  model.close(writer);
}

}  // namespace bench
