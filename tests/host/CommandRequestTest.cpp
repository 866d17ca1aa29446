// From words to settings.
#include "host/CommandRequest.h"

#include <gtest/gtest.h>

namespace {

using Kind = CommandRequest::Kind;

CommandRequest read(std::vector<const char*> words) {
  words.insert(words.begin(), "anything");
  return readCommandLine(static_cast<int>(words.size()), words.data());
}

TEST(CommandRequest, AnImportWithNothingElseHasDefaults) {
  const CommandRequest request = read({"import", "shop.xmi"});
  EXPECT_EQ(request.kind, Kind::import);
  EXPECT_EQ(request.import.file, "shop.xmi");
  EXPECT_EQ(request.import.output, "");
  EXPECT_EQ(request.import.plugin, "");
  EXPECT_EQ(request.encoding, "");
  EXPECT_FALSE(request.import.isQuiet);
  EXPECT_EQ(request.import.format, HostLog::Format::text);
}

TEST(CommandRequest, EveryOptionOfAnImportArrives) {
  const CommandRequest request =
      read({"import", "-o", "out", "--root-package", "Top", "--modification-time", "2026-01-01T00:00:00Z",
            "--encoding", "windows-1252", "--plugin", "p.so", "--quiet", "--log-format", "json", "--log-file",
            "a.log", "shop.xmi"});
  EXPECT_EQ(request.kind, Kind::import);
  EXPECT_EQ(request.import.file, "shop.xmi");
  EXPECT_EQ(request.import.output, "out");
  EXPECT_EQ(request.import.rootPackage, "Top");
  EXPECT_EQ(request.import.modificationTime, "2026-01-01T00:00:00Z");
  EXPECT_EQ(request.encoding, "windows-1252");
  EXPECT_EQ(request.import.plugin, "p.so");
  EXPECT_TRUE(request.import.isQuiet);
  EXPECT_EQ(request.import.format, HostLog::Format::json);
  EXPECT_EQ(request.import.logFile, "a.log");
}

TEST(CommandRequest, TheFormatOfTheModelIsAnOption) {
  EXPECT_FALSE(read({"import", "a"}).import.modelFormat.has_value());
  EXPECT_EQ(read({"import", "a", "--format", "json"}).import.modelFormat, StoreModelFormat::json);
  EXPECT_EQ(read({"import", "a", "--format", "sqlite"}).import.modelFormat, StoreModelFormat::sqlite);
  EXPECT_TRUE(read({"import", "a", "--append"}).import.isAppending);
  EXPECT_EQ(read({"import", "a", "--format", "xml"}).kind, Kind::wrongUsage);
}

TEST(CommandRequest, AnImportCanHaveSeveralFiles) {
  const CommandRequest request = read({"import", "a", "-j", "3", "b", "-o", "out", "c"});
  EXPECT_EQ(request.import.files, (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(request.import.file, "a");
  EXPECT_EQ(request.import.jobs, 3U);
  EXPECT_EQ(read({"import", "a"}).import.jobs, 0U);
}

TEST(CommandRequest, ADifferenceIsOfTwoModels) {
  const CommandRequest request = read({"diff", "a.json", "b.json", "--json"});
  EXPECT_EQ(request.kind, Kind::diff);
  EXPECT_EQ(request.diff.before, "a.json");
  EXPECT_EQ(request.diff.after, "b.json");
  EXPECT_TRUE(request.diff.isJson);
  EXPECT_EQ(read({"diff", "a.json"}).kind, Kind::wrongUsage);
}

TEST(CommandRequest, AWrongCommandIsNamed) {
  EXPECT_EQ(read({"exprot", "a"}).text, "There is no command 'exprot'");
}

TEST(CommandRequest, AFileMayBeNamedLikeACommand) {
  EXPECT_EQ(read({"import", "info"}).import.file, "info");
  EXPECT_EQ(read({"inspect", "inspect"}).inspect.file, "inspect");
}

TEST(CommandRequest, InfoAndInspectHaveTheirFlags) {
  const CommandRequest info = read({"info", "--json", "--plugin", "p.so"});
  EXPECT_EQ(info.kind, Kind::info);
  EXPECT_TRUE(info.info.isJson);
  EXPECT_EQ(info.info.plugin, "p.so");
  EXPECT_FALSE(info.info.listsTypes);
  const CommandRequest types = read({"info", "--types"});
  EXPECT_TRUE(types.info.listsTypes);
  EXPECT_EQ(types.info.store, "");
  const CommandRequest typesOfOne = read({"info", "--json", "--types", "oracle"});
  EXPECT_TRUE(typesOfOne.info.listsTypes);
  EXPECT_TRUE(typesOfOne.info.isJson);
  EXPECT_EQ(typesOfOne.info.store, "oracle");
  const CommandRequest inspect = read({"inspect", "shop.xmi", "--objects"});
  EXPECT_EQ(inspect.kind, Kind::inspect);
  EXPECT_TRUE(inspect.inspect.listsObjects);
  EXPECT_FALSE(inspect.inspect.isJson);
  const CommandRequest diagram = read({"diagram", "shop.json", "--name", "Orders", "-o", "out"});
  EXPECT_EQ(diagram.kind, Kind::diagram);
  EXPECT_EQ(diagram.diagram.file, "shop.json");
  EXPECT_EQ(diagram.diagram.name, "Orders");
  EXPECT_EQ(diagram.diagram.folder, "out");
  const CommandRequest report = read({"report", "shop.json", "-o", "out.html"});
  EXPECT_EQ(report.kind, Kind::report);
  EXPECT_EQ(report.report.file, "shop.json");
  EXPECT_EQ(report.report.output, "out.html");
}

TEST(CommandRequest, HelpAndVersionAreAnswersAlsoWithoutTheRest) {
  EXPECT_EQ(read({"--help"}).kind, Kind::answer);
  EXPECT_EQ(read({"import", "-h"}).kind, Kind::answer);
  EXPECT_EQ(read({"--version"}).kind, Kind::answer);
}

TEST(CommandRequest, WrongUsageSaysWhyAndHowFarTheWordsWereUnderstood) {
  const CommandRequest request = read({"inspect", "a", "b"});
  EXPECT_EQ(request.kind, Kind::wrongUsage);
  EXPECT_EQ(request.command, "kyr inspect");
  EXPECT_NE(request.text.find('b'), std::string::npos);
  EXPECT_EQ(read({"other"}).command, "kyr");
}

}  // namespace
