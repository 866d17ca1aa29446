// Which data store a file's profiles lead to, and what is made of a file without one.
#include <gtest/gtest.h>

#include "database/TargetDatabases.h"
#include "repository/datatypes/KYRDataTypeConverter.h"
#include "repository/model/KYRClass.h"
#include "tests/database/DatabaseFiles.h"
#include "uml/UMLNamespaces.h"

namespace {

const std::string classes =
    element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'"));

// The bridge after the choice for a tree, as if it had read a model of that tool.
struct Choice {
  Choice(const std::string& exporter, const std::string& content) : file(content) {
    uml.exporter = exporter.c_str();
    bridge.umlModel = &uml;
    if (!content.empty()) {
      bridge.dom = std::make_unique<KYRDOM>(&log);
      bridge.domRoot.reset(bridge.dom->parseFile(file.file()));
      bridge.domModel = bridge.domRoot->getFirstElement("uml:Model");
    }
    bridge.chooseDataStore();
  }
  // The store, its version and the tool.
  std::string told() const {
    const KYRDataStoreVersion& store = bridge.dataTypeConverter->getTargetDataStore();
    return text(store.getDataStore()) + " " + text(store.getVersionText()) + " " +
           text(bridge.dataTypeConverter->getTool());
  }

  TemporaryFile file;
  RecordingLog log;
  UMLModel uml{"m", "M"};
  KYROmgUml2XmiImportBridge bridge{&log};
};

std::string packageWith(const std::string& id, const std::string& content) {
  return element("Package", "xmi:id='" + id + "' name='P'", content);
}

Choice ofEA(const std::string& name) { return {enterpriseArchitect, xmi(dbms(name))}; }
Choice ofMagicDraw(const std::string& name) {
  return {magicDraw, xmi(packageWith("db", profileNamed(name)), "Model", database("db"))};
}

const std::string logical = "OMG_UML_OMG_UML 1.0.0 OMG_UML";
const std::string logicalOfEA = "OMG_UML_OMG_UML_SEA 1.0.0 OMG_UML";

}  // namespace

TEST(DataStoreChoice, EveryNameOfTheTableIsFoundForItsToolAlone) {
  for (const targetDatabaseInfo* row = targetDatabases; row->eaName != nullptr; ++row) {
    const std::string expected =
        text(row->getDataStore()) + " " + text(row->getVersionText()) + " KYRGENERIC";
    const std::string ea = row->eaName;
    const std::string md = row->magicDrawName;
    if (!ea.empty()) {
      const Choice choice = ofEA(ea);
      EXPECT_EQ(choice.told(), expected);
      EXPECT_EQ(choice.bridge.targetDataStore, row);
      EXPECT_TRUE(choice.bridge.isPhysicalTarget());
    }
    if (!md.empty()) {
      const Choice choice = ofMagicDraw(md);
      EXPECT_EQ(choice.told(), expected);
      EXPECT_EQ(choice.bridge.targetDataStore, row);
    }
  }
}

TEST(DataStoreChoice, TheTwoToolsNameOneStoreInDifferentVersions) {
  EXPECT_EQ(ofEA("Oracle").told(), "ORACLE 12.0.0 KYRGENERIC");
  EXPECT_EQ(ofMagicDraw("Oracle Extensions Profile").told(), "ORACLE 1.0.0 KYRGENERIC");
  EXPECT_EQ(ofEA("Oracle Extensions Profile").told(), logicalOfEA);
  EXPECT_EQ(ofMagicDraw("Oracle").told(), logical);
  EXPECT_EQ(ofMagicDraw("MySQL").told(), "MYSQL 1.0.0 KYRGENERIC");
  EXPECT_EQ(ofEA("MySQL").told(), logicalOfEA);
}

TEST(DataStoreChoice, NamesAreComparedExactly) {
  for (const char* name : {"oracle", "ORACLE", "Oracle ", "Oracl", "Unheard of", ""}) {
    const Choice choice = ofEA(name);
    EXPECT_EQ(choice.told(), logicalOfEA) << name;
    EXPECT_EQ(choice.bridge.targetDataStore, nullptr);
    EXPECT_FALSE(choice.bridge.isPhysicalTarget());
    EXPECT_EQ(ofMagicDraw(name).told(), logical) << name;
    EXPECT_TRUE(choice.log.lines.empty());
  }
}

TEST(DataStoreChoice, TheFirstMarkOfEnterpriseArchitectCountsAndOnlyBelowTheModel) {
  EXPECT_EQ(Choice(enterpriseArchitect, xmi(dbms("DB2") + dbms("Oracle"))).told(),
            "DB2_UDB 1.0.0 KYRGENERIC");
  EXPECT_EQ(Choice(enterpriseArchitect, xmi(dbms("unknown") + dbms("Oracle"))).told(), logicalOfEA);
  EXPECT_EQ(Choice(enterpriseArchitect, xmi("<thecustomprofile:DBMS/>" + dbms("Oracle"))).told(),
            logicalOfEA);
  EXPECT_EQ(Choice(enterpriseArchitect, xmi("", "M", dbms("Oracle"))).told(), logicalOfEA);
}

TEST(DataStoreChoice, ExportersAreComparedWithoutRegardToCase) {
  EXPECT_EQ(Choice("enterprise ARCHITECT", xmi(dbms("DB2"))).told(), "DB2_UDB 1.0.0 KYRGENERIC");
  EXPECT_EQ(Choice("magicdraw uml", xmi(packageWith("db", profileNamed("DB2")), "M", database("db"))).told(),
            "DB2_UDB 1.0.0 KYRGENERIC");
}

TEST(DataStoreChoice, AThirdToolIsNotLookedAt) {
  const std::string both =
      xmi(dbms("Oracle") + packageWith("db", profileNamed("DB2")), "Model", database("db"));
  for (const char* exporter : {"", "Visual Paradigm", "Enterprise Architect 2", "MagicDraw"}) {
    EXPECT_EQ(Choice(exporter, both).told(), logical) << exporter;
  }
}

TEST(DataStoreChoice, WithoutATreeTheModelIsLogical) {
  EXPECT_EQ(Choice(enterpriseArchitect, "").told(), logicalOfEA);
  EXPECT_EQ(Choice(magicDraw, "").told(), logical);
  EXPECT_EQ(Choice(magicDraw, "<root/>").told(), logical);
}

TEST(DataStoreChoice, AMissingStepOnThePathOfMagicDrawLeavesTheModelLogical) {
  const std::string marks = database("db");
  for (const std::string& inside :
       {std::string(), std::string("<profileApplication/>"),
        std::string("<profileApplication><appliedProfile/></profileApplication>"),
        std::string(
            "<profileApplication><appliedProfile><xmi:Extension/></appliedProfile></profileApplication>"),
        std::string("<profileApplication><appliedProfile><xmi:Extension><referenceExtension/>"
                    "</xmi:Extension></appliedProfile></profileApplication>"),
        "<profileApplication/>" + profileNamed("DB2")}) {  // only the first child counts
    EXPECT_EQ(Choice(magicDraw, xmi(packageWith("db", inside), "M", marks)).told(), logical) << inside;
  }
  const std::string good = packageWith("db", profileNamed("DB2"));
  EXPECT_EQ(Choice(magicDraw, xmi(good, "M", "")).told(), logical);
  EXPECT_EQ(Choice(magicDraw, xmi(good, "M", "<SQLProfile:Database/>" + marks)).told(), logical);
  EXPECT_EQ(Choice(magicDraw, xmi(good, "M", database("nowhere"))).told(), logical);
  EXPECT_EQ(Choice(magicDraw, xmi(good, "M", database("pa"))).told(), logical);   // no packaged element
  EXPECT_EQ(Choice(magicDraw, xmi(good, "M", database("dbm"))).told(), logical);  // the mark itself
}

// Only the name of the profile is read: where the reference leads, be it to itself, plays no part.
TEST(DataStoreChoice, AProfileThatPointsNowhereOrAtItselfIsNoTrouble) {
  for (const char* profile : {"nowhere.mdzip#x", "#nowhere", "#pa", "#db", "", "#"}) {
    const std::string application =
        "<profileApplication xmi:type='uml:ProfileApplication' xmi:id='pa'><appliedProfile href='" +
        std::string(profile) +
        "'><xmi:Extension extender='MagicDraw UML'><referenceExtension referentPath='DB2'/></xmi:Extension>"
        "</appliedProfile></profileApplication>";
    const ImportedModel imported(fileOfMagicDraw(
        packageWith("db", application + element("Class", "xmi:id='c' name='C'")),
        database("db") + "<Profile:Stereotype xmi:id='st' base_Class='nowhere'/>"
                         "<Profile:Stereotype xmi:id='st2' base_Class='st2'/>"
                         "<Profile:Stereotype xmi:id='st3' base_Class='db'/><Profile:Stereotype/>"));
    EXPECT_TRUE(imported.get<KYRClass>("c").isPhysicalClass) << profile;
    EXPECT_EQ(imported.all<KYRClass>().size(), 1U) << profile;
  }
}

TEST(DataStoreChoice, ThePackageIsFoundByItsIdInAnyCaseChildrenFirst) {
  EXPECT_EQ(Choice(magicDraw, xmi(packageWith("dB", profileNamed("DB2")), "M", database("Db"))).told(),
            "DB2_UDB 1.0.0 KYRGENERIC");
  // Below a package, a class, whatever it is; the inner one of two comes first.
  const std::string nested =
      packageWith("x", profileNamed("Sybase") + element("Class", "xmi:id='X'", profileNamed("DB2")));
  EXPECT_EQ(Choice(magicDraw, xmi(nested, "M", database("x"))).told(), "DB2_UDB 1.0.0 KYRGENERIC");
  // The model itself is asked last.
  const std::string model = packageWith("MODEL", profileNamed("DB2")) + profileNamed("Sybase");
  EXPECT_EQ(Choice(magicDraw, xmi(model, "M", database("model"))).told(), "DB2_UDB 1.0.0 KYRGENERIC");
  EXPECT_EQ(Choice(magicDraw, xmi(profileNamed("Sybase"), "M", database("model"))).told(),
            "SYBASE_AS_ANYWHERE 1.0.0 KYRGENERIC");
}

TEST(DataStoreChoice, AVeryDeepPackageIsFound) {
  constexpr int depth = 900;
  std::string content = packageWith("db", profileNamed("DB2"));
  for (int i = 0; i < depth; ++i) content = "<packagedElement>" + content + "</packagedElement>";
  EXPECT_EQ(Choice(magicDraw, xmi(content, "M", database("db"))).told(), "DB2_UDB 1.0.0 KYRGENERIC");
}

TEST(DataStoreChoice, APhysicalModelHasLevelAndStoreTypeZeroALogicalOneOneAndThree) {
  const ImportedModel physical(fileOfEA(classes + dbms("Oracle")));
  EXPECT_EQ(physical.model.designLevel, 0);
  EXPECT_EQ(physical.model.storeType, 0);
  EXPECT_EQ(text(physical.model.dataStore), "ORACLE");
  EXPECT_EQ(text(physical.model.dataStoreVersion), "12.0.0");
  EXPECT_TRUE(physical.get<KYRClass>("c").isPhysicalClass);
  const ImportedModel unknown(fileOfEA(classes + dbms("oracle")));
  EXPECT_EQ(unknown.model.designLevel, 1);
  EXPECT_EQ(unknown.model.storeType, 3);
  EXPECT_EQ(text(unknown.model.dataStore), "OMG_UML_OMG_UML_SEA");
  EXPECT_EQ(text(unknown.model.dataStoreVersion), "1.0.0");
  EXPECT_FALSE(unknown.get<KYRClass>("c").isPhysicalClass);
  const ImportedModel other(xmi(classes));
  EXPECT_EQ(other.model.designLevel, 1);
  EXPECT_EQ(other.model.storeType, 3);
  EXPECT_EQ(text(other.model.dataStore), "OMG_UML_OMG_UML");
  const ImportedModel md(
      fileOfMagicDraw(packageWith("db", profileNamed("MSServer")) + classes, database("db")));
  EXPECT_EQ(md.model.designLevel, 0);
  EXPECT_EQ(text(md.model.dataStore), "MICROSOFT_SQL_SERVER");
}
