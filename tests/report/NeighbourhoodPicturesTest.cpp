// The conversation with Graphviz: all pictures or none, whatever the other program does; and with the real
// one, where it is installed.
#include "report/NeighbourhoodPictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cerrno>

#include "repository/storage/StoredNumbers.h"
#include "tests/report/FakeProgram.h"
#include "tests/report/PictureReader.h"
#include "tests/report/TiedModel.h"

namespace {

using Laid = NeighbourhoodPictures::Outcome;
using std::chrono::milliseconds;

// Answers each graph of two boxes and a line without text: the class first asked has the line to the other.
const char* const willing = R"(#!/bin/sh
while read -r line; do
  case $line in
    *'->'*) edge=${line%%\[*} ;;
    '}') echo 'graph 1 3 2'; echo 'node 0 1 1 1 1'; echo 'node 1 2 1 1 1'
         echo "edge ${edge%->*} ${edge#*->} 4 1 1 1.2 1 1.5 1 2 1 solid 0"; echo stop ;;
  esac
done
)";

class NeighbourhoodPicturesTest : public testing::Test {
 protected:
  // So many classes, each a subtype of the one before.
  void tie(int count) {
    KYRClass* before = &model.addClass("Class0");
    for (int i = 1; i < count; ++i) {
      KYRClass& next = model.addClass("Class" + std::to_string(i));
      // A class between two others would have three boxes.
      if (i % 2 == 1) model.inherit(*before, next);
      before = &next;
    }
  }
  Laid layOut(const std::string& script, unsigned int mode = 0755) {
    const FakeProgram program(script, mode);
    const Laid outcome = pictures.layOut(model.get(), program.path, bounds);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD) << "a child is left";
    return outcome;
  }
  std::vector<std::string> pictured() const {
    rapidjson::Document document;
    document.Parse(pictures.getJson().c_str());
    std::vector<std::string> ids;
    if (document.HasParseError()) return ids;
    const rapidjson::Value& all = document;
    for (const auto& member : all.GetObject()) ids.emplace_back(member.name.GetString());
    return ids;
  }

  TiedModel model;
  NeighbourhoodPictures pictures;
  NeighbourhoodPictures::Bounds bounds;
};

}  // namespace

TEST_F(NeighbourhoodPicturesTest, EachTiedClassHasAPicture) {
  tie(4);
  model.addClass("Alone");
  EXPECT_EQ(layOut(willing), Laid::done);
  EXPECT_EQ(pictured().size(), 4U);
}

TEST_F(NeighbourhoodPicturesTest, AModelWithoutTiesStartsNoProgram) {
  model.addClass("Alone");
  EXPECT_EQ(pictures.layOut(model.get(), "/nowhere/dot"), Laid::done);
  EXPECT_EQ(pictures.getJson(), "");
}

TEST_F(NeighbourhoodPicturesTest, ManyClassesAreOneConversation) {
  tie(4000);
  EXPECT_EQ(layOut(willing), Laid::done);
  EXPECT_EQ(pictured().size(), 4000U);
}

TEST_F(NeighbourhoodPicturesTest, BehindTheBoundClassesHaveNoPicture) {
  tie(10);
  bounds.mostLines = 7;
  EXPECT_EQ(layOut(willing), Laid::done);
  const std::vector<std::string> first = pictured();
  EXPECT_EQ(first.size(), 7U);
  bounds.mostLines = 0;
  EXPECT_EQ(layOut(willing), Laid::done);
  EXPECT_EQ(pictures.getJson(), "");
}

TEST_F(NeighbourhoodPicturesTest, AProgramThatFailsLeavesNoPictures) {
  tie(400);
  const std::string one =
      "echo 'graph 1 3 2'; echo 'node 0 1 1 1 1'; echo 'node 1 2 1 1 1'; "
      "echo 'edge 0 1 4 1 1 1.2 1 1.5 1 2 1 solid 0'; echo stop\n";
  const struct {
    const char* what;
    std::string script;
    Laid outcome;
  } rows[] = {
      {"ends at once", "#!/bin/sh\nexit 0\n", Laid::ended},
      {"fails", "#!/bin/sh\nexit 1\n", Laid::ended},
      {"crashes", "#!/bin/sh\nkill -SEGV $$\n", Laid::ended},
      {"is no program",
       "\x7f"
       "ELF",
       Laid::ended},
      {"answers one", "#!/bin/sh\n" + one, Laid::ended},
      {"answers one and crashes", "#!/bin/sh\n" + one + "kill -ABRT $$\n", Laid::ended},
      {"cuts its answer", "#!/bin/sh\nprintf 'graph 1 3'\n", Laid::ended},
      {"says nothing and reads all", "#!/bin/sh\ncat > /dev/null\n", Laid::ended},
      {"echoes", "#!/bin/sh\nexec cat\n", Laid::notUnderstood},
      {"greets", "#!/bin/sh\necho hello\nsleep 1000\n", Laid::notUnderstood},
      {"repeats itself", "#!/bin/sh\nwhile echo 'graph 1 3 2'; do :; done\n", Laid::notUnderstood},
      {"knows no line ends", "#!/bin/sh\nexec cat /dev/zero\n", Laid::notUnderstood},
      {"hangs", "#!/bin/sh\nsleep 1000\n", Laid::late},
      {"answers one and hangs", "#!/bin/sh\n" + one + "sleep 1000\n", Laid::late},
      {"closes its input", "#!/bin/sh\nexec <&-\nsleep 1000\n", Laid::late},
  };
  for (const auto& row : rows) {
    bounds.patience.untilNextSign = milliseconds(row.outcome == Laid::late ? 300 : 60000);
    EXPECT_EQ(layOut(row.script), row.outcome) << row.what;
    EXPECT_EQ(pictures.getJson(), "") << row.what;
  }
}

TEST_F(NeighbourhoodPicturesTest, OneThatIsNotExecutableHasEnded) {
  tie(2);
  EXPECT_EQ(layOut("#!/bin/sh\n", 0644), Laid::ended);
  EXPECT_EQ(pictures.layOut(model.get(), "/nowhere/dot"), Laid::ended);
}

TEST_F(NeighbourhoodPicturesTest, WhereTheSystemHasNoMoreFilesNoneIsStarted) {
  tie(2);
  const FakeProgram program(willing);
  rlimit before = {};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
  rlimit none = before;
  none.rlim_cur = 0;
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
  const Laid outcome = pictures.layOut(model.get(), program.path);
  setrlimit(RLIMIT_NOFILE, &before);
  EXPECT_EQ(outcome, Laid::notStarted);
  EXPECT_EQ(pictures.getJson(), "");
}

TEST_F(NeighbourhoodPicturesTest, OneThatAnswersAndStaysIsNotWaitedFor) {
  tie(4);
  EXPECT_EQ(layOut(std::string(willing) + "sleep 1000\n"), Laid::done);
  EXPECT_EQ(pictured().size(), 4U);
}

namespace {

// What is left of the model's names when they are a matter of the page alone: all hostile ones.
const std::string namesThatMeanHarm[] = {
    "\"];}digraph{0->1;}",  "a\\nb\\",     "line\nline\r\n",         "\x01\x1b[2J",
    std::string("n\0l", 3), "</script><>", std::string(1000000, 'W')};

class RealGraphviz : public NeighbourhoodPicturesTest {
 protected:
  void SetUp() override {
    program_ = GraphvizProcess::findProgram();
    if (program_.empty()) GTEST_SKIP() << "Graphviz is not installed: scripts/install-deps.sh graphviz";
  }
  Laid layOutReally() { return pictures.layOut(model.get(), program_, bounds); }
  std::vector<std::int64_t> pictureOf(const KYRClass& class_) const {
    const StoredNumbers numbers(model.get(), StoredNumbers::Use::shared);
    rapidjson::Document document;
    document.Parse(pictures.getJson().c_str());
    return numbersIn(document[std::to_string(numbers.get(&class_)).c_str()].GetString());
  }

 private:
  std::string program_;
};

}  // namespace

TEST_F(RealGraphviz, SupertypesStandAboveSubtypes) {
  KYRClass& super = model.addClass("Vessel");
  KYRClass& sub = model.addClass("Barrel");
  model.inherit(super, sub);
  ASSERT_EQ(layOutReally(), Laid::done);
  const std::vector<std::int64_t> picture = pictureOf(sub);
  // size, direction, own height, two boxes of four numbers each: the own one first
  EXPECT_EQ(picture[2], 1);
  EXPECT_EQ(picture[4], 2);
  EXPECT_GT(picture[7], picture[11]);
  const std::vector<std::int64_t> other = pictureOf(super);
  EXPECT_LT(other[7], other[11]);
}

TEST_F(RealGraphviz, EveryKindOfTieIsLaidOut) {
  KYRClass& own = model.addClass("Own");
  KYRClass& other = model.addClass("Other");
  for (int i = 0; i < 3; ++i) {
    model.associate(own, other, "role", i == 0 ? "" : "other");
    model.associate(other, own);
    model.associate(own, own, "boss", "reports");
  }
  model.inherit(own, own);
  model.inherit(own, other);
  model.inherit(other, own);
  model.realize(other, own);
  model.depend(own, other);
  model.depend(own, own);
  ASSERT_EQ(layOutReally(), Laid::done);
  EXPECT_EQ(pictured().size(), 2U);
}

TEST_F(RealGraphviz, NamesDoNoHarm) {
  KYRClass& hub = model.addClass("Hub");
  for (const std::string& name : namesThatMeanHarm) {
    KYRClass& other = model.addClass(name);
    model.associate(hub, other, name, name);
    model.inherit(other, hub);
  }
  ASSERT_EQ(layOutReally(), Laid::done);
  EXPECT_EQ(pictured().size(), 1 + std::size(namesThatMeanHarm));
  EXPECT_LT(pictures.getJson().size(), 4000U);
}

TEST_F(RealGraphviz, TheSameModelGivesTheSamePictures) {
  KYRClass& hub = model.addClass("Hub");
  for (int i = 0; i < 300; ++i) {
    KYRClass& other = model.addClass("C" + std::to_string(i));
    model.associate(hub, other, "hub", "others");
    model.depend(other, hub);
  }
  ASSERT_EQ(layOutReally(), Laid::done);
  const std::string first = pictures.getJson();
  ASSERT_EQ(layOutReally(), Laid::done);
  EXPECT_EQ(pictures.getJson(), first);
  EXPECT_EQ(pictured().size(), 301U);
}
