// Imports that run out of memory at any point: each ends with an exception, frees what it holds, and
// the next import in the process is as good as ever.
#include <gtest/gtest.h>

#include <new>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRKey.h"
#include "tests/database/DatabaseFiles.h"
#include "tests/support/FailingAllocation.h"
#include "tests/support/MemoryGrowth.h"

namespace {

// Everything that the conversion knows.
std::string richFile(const std::string& exporter) {
  return xmi(
      element("Package", "xmi:id='p' name='P'",
              element("Class", "xmi:id='c1' name='One'",
                      "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='a'/>"
                      "<ownedOperation xmi:type='uml:Operation' xmi:id='o' name='o'>"
                      "<ownedParameter xmi:type='uml:Parameter' xmi:id='pa' name='pa'/></ownedOperation>"
                      "<generalization xmi:type='uml:Generalization' xmi:id='g' general='c2'/>"
                      "<interfaceRealization xmi:type='uml:InterfaceRealization' xmi:id='r' supplier='i' "
                      "client='c1'/>") +
                  element("Class", "xmi:id='c2' name='Two'") + element("Interface", "xmi:id='i' name='I'") +
                  element("Dependency", "xmi:id='d' supplier='c1' client='c2'") +
                  element("AssociationClass", "xmi:id='ac'",
                          "<ownedEnd xmi:type='uml:Property' xmi:id='x' type='c1'/>"
                          "<ownedEnd xmi:type='uml:Property' xmi:id='y' type='c2'/>") +
                  element("Association", "xmi:id='as'",
                          "<ownedEnd xmi:type='uml:Property' xmi:id='v' type='c1'/>"
                          "<ownedEnd xmi:type='uml:Property' xmi:id='w' type='c2'/>") +
                  "<ownedComment xmi:type='uml:Comment' xmi:id='k1' annotatedElement='c1' body='One'/>"
                  "<ownedComment xmi:type='uml:Comment' xmi:id='k2' annotatedElement='c1' body='Two'/>") +
          element("AssociationClass", "xmi:id='loose' name='Loose'") +
          element("Package", "xmi:id='e' name='Empty'"),
      "Model", writtenBy(exporter));
}

std::string property(const std::string& id, const std::string& name, const std::string& type) {
  return "<ownedAttribute xmi:type='uml:Property' xmi:id='" + id + "' name='" + name + "' type='" + type +
         "'/>";
}

std::string keyMark(const std::string& kind, const std::string& id) {
  return "<Entity_Relationship:" + kind + " xmi:id='k' base_Property='" + id + "'><id>" + kind +
         "</id></Entity_Relationship:" + kind + ">";
}

// Schemas, one of which refuses a class, all ways to a key, a dropped column, types with values.
std::string databaseFile() {
  return fileOfMagicDraw(
      element(
          "Package", "xmi:id='db' name='DB'",
          profileNamed("MySQL") +
              element(
                  "Package", "xmi:id='s' name='S'",
                  element("Class", "xmi:id='up' name='Up'", property("up.id", "id", "enum")) +
                      element("Package", "xmi:id='t' name='T'", element("Class", "xmi:id='up2' name='Up'")) +
                      element("Class", "xmi:id='down' name='Down'",
                              "<generalization xmi:type='uml:Generalization' xmi:id='g' general='up'/>" +
                                  property("own", "id", "up") + property("far", "up.id", "enum")) +
                      element("Association", "xmi:id='as'",
                              "<ownedEnd xmi:type='uml:Property' xmi:id='v' name='down' type='down'/>"
                              "<ownedEnd xmi:type='uml:Property' xmi:id='w' name='up' type='up'/>")) +
              element("Enumeration", "xmi:id='enum' name='int'",
                      "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='l1' name='one'/>"
                      "<ownedLiteral xmi:type='uml:EnumerationLiteral' xmi:id='l2' name='one'/>")),
      database("db") + schema("s") + keyMark("PrimaryKey", "up.id") + keyMark("ForeignKey", "far") +
          keyMark("ForeignKey", "own"));
}

constexpr std::size_t longestMessage = 500;  // kept in room that was there before

struct Case {
  const char* name;
  std::string file;
  bool isReadAsTree;  // besides
};

class FailingImport : public testing::TestWithParam<Case> {
 protected:
  void failEachAllocation(FailingAllocation::Extent extent);
};

}  // namespace

void FailingImport::failEachAllocation(FailingAllocation::Extent extent) {
  const TemporaryFile file(GetParam().file);
  KYROptionList options;
  getKYROmgUml2XmiImportInterface()->getOptionList(options);
  options.get("BP_FILE")->setValue(file.path.c_str());
  const auto import = [&] {
    RecordingLog log;
    KYRStoreModel model;
    KYROmgUml2XmiImportBridge bridge(&log);
    bridge.importModel(model, options, "origin");
  };
  import();  // builds what lives as long as the process
  bool isFailing = true;
  int treeFailures = 0;
  for (long number = 0; isFailing; ++number) {
    std::string message;
    message.reserve(longestMessage);
    EXPECT_FALSE(growsEachTime([&] {
      const FailingAllocation failing(number, extent);
      message.clear();
      try {
        import();
        isFailing = failing.hasFailed();
      } catch (const KYRException& exception) {
        message.assign(exception.getMessage().view().substr(0, longestMessage));
      } catch (const std::bad_alloc&) {
        return;
      }
    })) << number;
    if (message.empty()) continue;
    // Out of the reading of the tree anything else than the library's own exception comes as this one.
    EXPECT_EQ(message.find("[KBI_UML2XMI_F0007] An XML parsing error occurred 'Unknown"), 0U) << message;
    ++treeFailures;
  }
  if (GetParam().isReadAsTree && extent == FailingAllocation::Extent::one) {
    EXPECT_GT(treeFailures, 0);
  }
  import();
}

TEST_P(FailingImport, AnyAllocationMayFailAndTheImportEndsWithAnException) {
  failEachAllocation(FailingAllocation::Extent::one);
}

// So what handles the failure and what cleans up behind it gets no memory either.
TEST_P(FailingImport, MemoryMayBeUsedUpFromAnyAllocationOn) {
  failEachAllocation(FailingAllocation::Extent::allFrom);
}

INSTANTIATE_TEST_SUITE_P(Tools, FailingImport,
                         testing::Values(Case{"EnterpriseArchitect", richFile(enterpriseArchitect), true},
                                         Case{"MagicDraw", richFile(magicDraw), true},
                                         Case{"MagicDrawDatabase", databaseFile(), true},
                                         Case{"Papyrus", richFile("Papyrus"), false},
                                         Case{"Together", richFile("Together"), false}),
                         [](const auto& parameter) { return parameter.param.name; });

TEST(FailingImportFiles, TheDatabaseFileTakesEveryWayToAKey) {
  const ImportedModel imported(databaseFile());
  EXPECT_EQ(imported.get<KYRClass>("up").keys.count(), 1U);
  EXPECT_EQ(imported.get<KYRClass>("down").keys.count(), 2U);
  EXPECT_FALSE(imported.has("far"));
  EXPECT_EQ(imported.log.countOf("KBI_UML2XMI_W0019"), 1U);
}
