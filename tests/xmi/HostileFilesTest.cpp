// Files that are cut off, deep, or large in one direction: a clear error, or a cost that grows with
// the file and not with its square. Costs are counted, never timed.
#include <fstream>
#include <sstream>

#include "tests/xmi/Reading.h"

namespace {

std::string sample(const std::string& name) {
  std::ifstream in(std::string(KYR_SOURCE_DIR) + "/samples/" + name, std::ios::binary);
  EXPECT_TRUE(in.good()) << name;
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

TEST(HostileFiles, EverySampleCutOffAnywhereRaises) {
  for (const char* const name :
       {"plain.xmi", "enterprise-architect.xmi", "magicdraw.xmi", "together.xmi", "visual-paradigm.xmi",
        "rational-software-architect.emx", "eclipse-papyrus.uml"}) {
    const std::string whole = sample(name);
    constexpr std::size_t step = 1000;
    for (std::size_t length = 0; length + step < whole.size(); length += step) {
      const TemporaryFile file(whole.substr(0, length));
      RecordingLog log;
      XMIParser parser(&log);
      EXPECT_THROW(parser.parse(file.file()), KYRException) << name << " cut at " << length;
      EXPECT_EQ(parser.getObjects().getCount(), 0U);
    }
  }
}

TEST(HostileFiles, NestingBeyondTheLimitIsAnErrorWithItsPosition) {
  std::string open;
  for (int i = 0; i < 50000; ++i) open += "<packagedElement xmi:type='uml:Package' xmi:id='p'>";
  const TemporaryFile file("<uml:Model xmlns:uml='u' xmlns:xmi='x'>" + open);
  RecordingLog log;
  XMIParser parser(&log);
  try {
    parser.parse(file.file());
    FAIL() << "no exception";
  } catch (const KYRException& exception) {
    EXPECT_NE(exception.getMessage().view().find("1000"), std::string_view::npos) << exception.what();
    EXPECT_NE(exception.getMessage().view().find("line 1"), std::string_view::npos) << exception.what();
  }
}

TEST(HostileFiles, ALongListCostsAFewComparisonsForEachEntry) {
  constexpr unsigned int classes = 30000;
  std::string content;
  for (unsigned int i = 0; i < classes; ++i) {
    content += "<packagedElement xmi:type='uml:Class' xmi:id='c" + std::to_string(i) + "'/>";
  }
  const Reading reading(inModel(content));
  ASSERT_EQ(reading.model->packagedElement.count(), classes);
  EXPECT_LE(reading.model->packagedElement.getComparisonCount(), 10U * classes);
  EXPECT_LE(reading.model->ownedElement.getComparisonCount(), 10U * classes);
}

TEST(HostileFiles, ManyReferencesToOneElementAreKeptOnceEach) {
  constexpr unsigned int references = 30000;
  std::string content = "<packagedElement xmi:type='uml:Dependency' xmi:id='d'>";
  for (unsigned int i = 0; i < references; ++i) content += "<supplier xmi:idref='c'/>";
  const Reading reading(
      inModel(content + "</packagedElement><packagedElement xmi:type='uml:Class' xmi:id='c'/>"));
  EXPECT_EQ(idsOf(reading.get<UMLDependency>("d").supplier), "c");
}

TEST(HostileFiles, ObjectsWithoutIdsAreReadAndNeverFound) {
  constexpr unsigned int objects = 30000;
  std::string content;
  for (unsigned int i = 0; i < objects; ++i) content += "<packagedElement xmi:type='uml:Class' xmi:id=''/>";
  const Reading reading(inModel(content));
  EXPECT_EQ(reading.parser.getObjects().getCount(), objects + 1);
  EXPECT_TRUE(reading.model->packagedElement.isEmpty());
}

}  // namespace
