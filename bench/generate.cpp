// kyr-generate: writes a model file for measurements, the same bytes for the same arguments everywhere.
// The kinds plain, ea and magicdraw have the shape of real files (share of tool data, attributes for
// each element, form of ids); the others stress one thing each.
#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstring>
#include <functional>
#include <map>
#include <stdexcept>

#include "bench/SpecialShapes.h"
#include "bench/ToolModel.h"

namespace {

using namespace bench;

struct Options {
  std::string kind;
  std::string file;
  double sizeMb = 1;
  std::uint64_t seed = 1;
  std::uint64_t count = 100000;
  std::uint64_t types = 5000;
  std::uint64_t depth = 50000;
  bool sameName = false;

  std::uint64_t bytes() const { return static_cast<std::uint64_t>(sizeMb * 1e6); }
};

const std::map<std::string, std::function<std::unique_ptr<ToolModel>(std::uint64_t)>>& toolModels() {
  static const std::map<std::string, std::function<std::unique_ptr<ToolModel>(std::uint64_t)>> table = {
      {"plain", makePlainModel}, {"ea", makeEnterpriseArchitectModel}, {"magicdraw", makeMagicDrawModel}};
  return table;
}

const std::map<std::string, std::function<void(XmlWriter&, const Options&)>>& specialShapes() {
  static const std::map<std::string, std::function<void(XmlWriter&, const Options&)>> table = {
      {"classes", [](XmlWriter& w, const Options& o) { writeManyClasses(w, o.count, o.sameName); }},
      {"links", [](XmlWriter& w, const Options& o) { writeManyLinks(w, o.count, o.seed); }},
      {"types", [](XmlWriter& w, const Options& o) { writeManyTypes(w, o.count, o.types); }},
      {"enumeration", [](XmlWriter& w, const Options& o) { writeSharedEnumeration(w, o.count, o.types); }},
      {"unresolved", [](XmlWriter& w, const Options& o) { writeUnresolvedTypes(w, o.count); }},
      {"no-ids", [](XmlWriter& w, const Options& o) { writeWithoutIds(w, o.count); }},
      {"prefixes", [](XmlWriter& w, const Options& o) { writeLongPrefixes(w, o.count); }},
      {"one-class", [](XmlWriter& w, const Options& o) { writeOneClass(w, o.count); }},
      {"deep-keys", [](XmlWriter& w, const Options& o) { writeDeepKeys(w, o.count); }},
      {"diagrams", [](XmlWriter& w, const Options& o) { writeManyDiagrams(w, o.count); }},
      {"deep", [](XmlWriter& w, const Options& o) { writeDeepNesting(w, o.depth); }},
      {"attribute", [](XmlWriter& w, const Options& o) { writeHugeAttribute(w, o.bytes()); }},
      {"bomb", [](XmlWriter& w, const Options&) { writeEntityBomb(w); }}};
  return table;
}

void write(const Options& options, std::FILE* file) {
  const auto shape = specialShapes().find(options.kind);
  if (shape != specialShapes().end()) {
    XmlWriter writer(file, '"');
    shape->second(writer, options);
    writer.finish();
    return;
  }
  const std::unique_ptr<ToolModel> model = toolModels().at(options.kind)(options.seed);
  XmlWriter writer(file, model->quote());
  generateModel(*model, options.bytes(), writer);
  writer.finish();
}

int run(const Options& options) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(options.file.c_str(), "wb"),
                                                             std::fclose);
  if (!file) throw std::runtime_error(options.file + ": " + std::strerror(errno));
  write(options, file.get());
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  std::vector<std::string> kinds;
  for (const auto& [name, make] : toolModels()) kinds.push_back(name);
  for (const auto& [name, shape] : specialShapes()) kinds.push_back(name);

  CLI::App app("Writes a model file for measurements");
  app.add_option("--kind", options.kind, "What to write")->required()->check(CLI::IsMember(kinds));
  app.add_option("--size-mb", options.sizeMb, "Size in millions of bytes: plain, ea, magicdraw, attribute")
      ->check(CLI::PositiveNumber)
      ->capture_default_str();
  app.add_option("--seed", options.seed, "Same seed, same bytes")->capture_default_str();
  app.add_option("--count", options.count, "Number of classes, links, attributes, chains or diagrams")
      ->capture_default_str();
  app.add_option("--types", options.types, "Number of types of the kind types, of literals of enumeration")
      ->check(CLI::PositiveNumber)
      ->capture_default_str();
  app.add_option("--depth", options.depth, "Levels of the kind deep")->capture_default_str();
  app.add_flag("--same-name", options.sameName, "Give all classes one name");
  app.add_option("-o,--output", options.file, "File to write")->required();
  CLI11_PARSE(app, argc, argv);
  try {
    return run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "kyr-generate: %s\n", error.what());
    return 1;
  }
}
