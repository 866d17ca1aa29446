// Owners of both tools, and the schemas that classes are placed in.
#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDatabaseSchema.h"
#include "repository/model/KYRDesignPackage.h"
#include "tests/database/DatabaseFiles.h"

namespace {

std::string classNamed(const std::string& id, const std::string& name) {
  return element("Class", "xmi:id='" + id + "' name='" + name + "'");
}
std::string package(const std::string& id, const std::string& name, const std::string& content) {
  return element("Package", "xmi:id='" + id + "' name='" + name + "'", content);
}
// The package that is the database of a MagicDraw file.
std::string databasePackage(const std::string& content) {
  return package("db", "Base", profileNamed("PostgreSQL") + content);
}

// Each schema of the model as its name and the names of its classes.
std::vector<std::string> schemasOf(const ImportedModel& imported) {
  std::vector<std::string> rows;
  for (const KYRDataPackage* schema : imported.model.dataPackages) {
    std::string row = text(schema->getName()) + ":";
    for (const KYRNamespaceElement* object : schema->dataElements) row += " " + text(object->getName());
    rows.push_back(row);
  }
  return rows;
}

using Rows = std::vector<std::string>;

const std::string warning = "KBI_UML2XMI_W";

}  // namespace

TEST(SchemasOfEA, TheOwnerOfATableNamesItsSchema) {
  const ImportedModel imported(
      fileOfEA(package("p", "P", classNamed("a", "A") + classNamed("b", "B") + classNamed("c", "C")) +
               dbms("Oracle") + table("a", "sales") + table("b", "stock") + table("c", "sales")));
  EXPECT_EQ(schemasOf(imported), (Rows{"sales: A C", "stock: B"}));
  EXPECT_EQ(imported.model.dataPackages[0]->getElementType(), KYRElementType::databaseSchema);
  EXPECT_EQ(imported.get<KYRClass>("a").getDataPackage(), imported.model.dataPackages[0]);
  EXPECT_EQ(imported.pathOf("a"), "P/A");  // it stays in its package
  EXPECT_EQ(imported.log.countOf(warning), 0U);
}

TEST(SchemasOfEA, ATableWithoutAnOwnerIsInTheDefaultSchema) {
  const ImportedModel imported(fileOfEA(package("p", "P", classNamed("a", "A") + classNamed("b", "B")) +
                                        dbms("Oracle") + table("b", "sales")));
  EXPECT_EQ(schemasOf(imported), (Rows{": A", "sales: B"}));
}

TEST(SchemasOfEA, WithoutAnyOwnerAllClassesAreInOneNamelessSchema) {
  const ImportedModel imported(fileOfEA(
      package("p", "P", classNamed("a", "A") + package("q", "Q", classNamed("b", "B"))) + dbms("Oracle")));
  EXPECT_EQ(schemasOf(imported), Rows{": B A"});  // packages go before classes
}

TEST(SchemasOfEA, OwnersThatDifferInCaseAloneShareTheSchemaAsFirstWritten) {
  const ImportedModel imported(fileOfEA(package("p", "P", classNamed("a", "A") + classNamed("b", "B")) +
                                        dbms("Oracle") + table("a", "Sales") + table("b", "SALES")));
  EXPECT_EQ(schemasOf(imported), Rows{"Sales: A B"});
}

TEST(SchemasOfEA, MarksWithoutIdOrOwnerAreNoOwnersAndOfSeveralTheFirstCounts) {
  const ImportedModel imported(fileOfEA(
      package("p", "P", classNamed("a", "A") + classNamed("b", "B")) + dbms("Oracle") + table("", "x") +
      table("a", "") + "<EAUML:table/>" + table("a", "one") + table("a", "two") + table("nowhere", "three") +
      table("p", "four") + table("B", "five")));  // ids are compared exactly
  EXPECT_EQ(schemasOf(imported), (Rows{"one: A", ": B"}));
}

TEST(SchemasOfEA, WithoutADatabaseSystemTablesMeanNothing) {
  const ImportedModel imported(fileOfEA(package("p", "P", classNamed("a", "A")) + table("a", "sales")));
  EXPECT_TRUE(imported.model.dataPackages.isEmpty());
  EXPECT_EQ(imported.get<KYRClass>("a").getDataPackage(), nullptr);
  EXPECT_FALSE(imported.get<KYRClass>("a").isPhysicalClass);
}

TEST(SchemasOfEA, AThirdToolHasNoSchemas) {
  const ImportedModel imported(
      xmi(package("p", "P", classNamed("a", "A")) + dbms("Oracle") + table("a", "sales"), "M",
          writtenBy("Other") + schema("p")));
  EXPECT_TRUE(imported.model.dataPackages.isEmpty());
}

TEST(SchemasOfEA, ANameThatTheSchemaHoldsIsWarnedOfAndTheImportGoesOn) {
  const ImportedModel imported(fileOfEA(package("p", "P", classNamed("a", "A")) +
                                        package("q", "Q", classNamed("b", "A") + classNamed("c", "C")) +
                                        dbms("Oracle") + table("a", "sales") + table("b", "sales") +
                                        table("c", "sales")));
  EXPECT_EQ(schemasOf(imported), Rows{"sales: A C"});
  EXPECT_EQ(imported.get<KYRClass>("a").getDataPackage(), imported.model.dataPackages[0]);
  EXPECT_EQ(imported.get<KYRClass>("b").getDataPackage(), nullptr);
  ASSERT_EQ(imported.log.countOf(warning), 1U);
  for (const std::string& line : imported.log.lines) {
    if (line.rfind(warning, 0) != 0) continue;
    EXPECT_NE(line.find("Q/A"), std::string::npos) << line;
    EXPECT_NE(line.find("sales"), std::string::npos) << line;
  }
}

TEST(SchemasOfEA, AssociationClassesAreInSchemasToo) {
  const ImportedModel imported(
      fileOfEA(package("p", "P",
                       classNamed("a", "A") + element("AssociationClass", "xmi:id='ac' name='Link'") +
                           element("Interface", "xmi:id='i' name='I'")) +
               dbms("Oracle") + table("ac", "sales")));
  EXPECT_EQ(schemasOf(imported), (Rows{": A I", "sales: Link"}));
}

TEST(SchemasOfMagicDraw, AMarkedPackageIsASchemaOfAllClassesBelowIt) {
  const ImportedModel imported(fileOfMagicDraw(
      databasePackage(
          package("s1", "sales", classNamed("a", "A") + package("in", "In", classNamed("b", "B"))) +
          package("s2", "stock", classNamed("c", "C")) + classNamed("d", "D")),
      database("db") + schema("s2") + schema("s1")));
  EXPECT_EQ(schemasOf(imported), (Rows{"stock: C", "sales: B A", ": D"}));  // in the order of the marks
}

TEST(SchemasOfMagicDraw, WithoutSchemasAllClassesAreInTheDefaultOne) {
  const ImportedModel imported(fileOfMagicDraw(databasePackage(classNamed("a", "A")), database("db")));
  EXPECT_EQ(schemasOf(imported), Rows{": A"});
}

TEST(SchemasOfMagicDraw, AMarkThatLeadsToNoDesignPackageIsSkipped) {
  const ImportedModel imported(fileOfMagicDraw(databasePackage(package("s1", "sales", classNamed("a", "A"))),
                                               database("db") + schema("nowhere") + schema("a") +
                                                   schema("model") + schema("") + schema("S1") +
                                                   "<SQLProfile:Schema xmi:id='self' base_Package='self'/>"));
  EXPECT_EQ(schemasOf(imported), Rows{": A"});
}

TEST(SchemasOfMagicDraw, AMarkedPackageWithoutClassesIsAnEmptySchema) {
  const ImportedModel imported(fileOfMagicDraw(
      databasePackage(package("s1", "sales", "") + classNamed("a", "A")), database("db") + schema("s1")));
  EXPECT_EQ(schemasOf(imported), (Rows{"sales:", ": A"}));
}

TEST(SchemasOfMagicDraw, AClassBelowTwoSchemasIsInTheOneMarkedLast) {
  const std::string elements = databasePackage(
      package("outer", "outer", package("inner", "inner", classNamed("a", "A")) + classNamed("b", "B")));
  EXPECT_EQ(
      schemasOf(ImportedModel(fileOfMagicDraw(elements, database("db") + schema("outer") + schema("inner")))),
      (Rows{"outer: B", "inner: A"}));
  EXPECT_EQ(
      schemasOf(ImportedModel(fileOfMagicDraw(elements, database("db") + schema("inner") + schema("outer")))),
      (Rows{"inner:", "outer: A B"}));
}

TEST(SchemasOfMagicDraw, PackagesOfOneNameInAnyCaseAreOneSchema) {
  const ImportedModel imported(
      fileOfMagicDraw(databasePackage(package("s1", "Sales", classNamed("a", "A")) +
                                      package("x", "X", package("s2", "SALES", classNamed("b", "B")))),
                      database("db") + schema("s1") + schema("s2")));
  EXPECT_EQ(schemasOf(imported), Rows{"Sales: A B"});
}

TEST(SchemasOfMagicDraw, AClassThatItsSchemaRefusesFallsToTheDefaultOne) {
  const ImportedModel imported(
      fileOfMagicDraw(databasePackage(package(
                          "s1", "sales", classNamed("a", "A") + package("in", "In", classNamed("b", "A")))),
                      database("db") + schema("s1")));
  EXPECT_EQ(schemasOf(imported), (Rows{"sales: A", ": A"}));
  EXPECT_EQ(imported.log.countOf(warning), 1U);
  EXPECT_EQ(imported.get<KYRClass>("b").getDataPackage(), imported.model.dataPackages[0]);
}

TEST(SchemasOfMagicDraw, APackageMarkedAgainAndAgainEndsInAnErrorNotInAnEndlessImport) {
  constexpr int times = 6000;
  std::string classes;
  std::string marks;
  for (int i = 0; i < times; ++i) {
    const std::string number = std::to_string(i);
    classes += classNamed("c" + number, "C" + number);
    marks += schema("db");
  }
  EXPECT_THROW(ImportedModel(fileOfMagicDraw(databasePackage(classes), database("db") + marks)),
               KYRException);
}

TEST(Schemas, OneThatTheModelRefusesLeavesItsClassesOutside) {
  const ImportedModel imported(fileOfEA(package("p", "P", classNamed("a", "A") + classNamed("b", "B")) +
                                        dbms("Oracle") + table("a", "sales")),
                               "", [](KYRStoreModel& model) {
                                 auto* const present = new KYRDatabaseSchema();
                                 present->setName("sales");
                                 model.addDataPackage(present);
                               });
  EXPECT_EQ(schemasOf(imported), (Rows{"sales:", ": B"}));
  EXPECT_EQ(imported.get<KYRClass>("a").getDataPackage(), nullptr);  // and not a schema that is gone
}

TEST(Schemas, ASchemaIsFetchedByNameInAnyCase) {
  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  KYRDatabaseSchema* const first = bridge.fetchSchema("Sales");
  EXPECT_EQ(bridge.fetchSchema("sALES"), first);
  EXPECT_NE(bridge.fetchSchema(""), first);
  EXPECT_EQ(bridge.fetchSchema(""), bridge.fetchSchema(""));
  EXPECT_EQ(bridge.dataPackages.count(), 2U);
  EXPECT_EQ(text(first->getName()), "Sales");
  EXPECT_TRUE(model.dataPackages.isEmpty());
  bridge.release();  // nobody took them: they go, and the leak check holds the rest
  EXPECT_TRUE(bridge.dataPackages.isEmpty());
}
