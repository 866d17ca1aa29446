#include "repository/storage/SqliteStoreModelWriter.h"

#include <gmock/gmock.h>

#include <map>
#include <memory>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "tests/repository/FullModel.h"
#include "tests/repository/ModelFolder.h"
#include "tests/repository/SqliteFile.h"

namespace {

constexpr const char* wholeness = "PRAGMA integrity_check; PRAGMA foreign_key_check";

std::unique_ptr<KYRStoreModel> makeModel(const char* path, const char* className) {
  auto model = std::make_unique<KYRStoreModel>();
  model->setName("M");
  auto* origin = new KYRMetadataOrigin();
  model->addMetadataOrigin(origin);
  origin->filePath = path;
  auto* package = new KYRDesignPackage();
  package->setName("P");
  model->addDesignPackage(package);
  auto* made = new KYRClass();
  made->setName(className);
  package->addNamespaceElementUniqueName(made, '/');
  return model;
}

// The same table filled by a writer that knows what was handed to it.
class CountingRows : public SqlRowWriter {
 public:
  std::map<std::string, std::int64_t> rows;

 protected:
  void beginRow(const SqlTable&) override {}
  void putNumber(const SqlTable&, std::size_t, std::int64_t) override {}
  void putText(const SqlTable&, std::size_t, std::string_view, bool) override {}
  void endRow(const SqlTable& table) override { ++rows[std::string(table.name)]; }
};

class SqliteStoreModel : public ModelFolder {
 protected:
  void saveAsSqlite(const KYRStoreModel& model) const {
    saveStoreModelFile(file("m.sqlite"), model, StoreModelFormat::sqlite);
  }
  void append(const KYRStoreModel& model) const { appendStoreModelFile(file("m.sqlite"), model); }
  std::string ask(const std::string& query) const { return SqliteFile(path("m.sqlite")).ask(query); }
};

TEST_F(SqliteStoreModel, AModelOfEveryClassAndFieldIsWhole) {
  const auto model = makeFullModel();
  saveAsSqlite(*model);
  EXPECT_EQ(ask(wholeness), "ok");
  CountingRows counting;
  writeStoreModel(*model, counting);
  EXPECT_GT(counting.rows.size(), 20U);
  for (const auto& [table, count] : counting.rows) {
    EXPECT_EQ(ask("SELECT count(*) FROM " + table), std::to_string(count)) << table;
  }
  EXPECT_EQ(filesInFolder(), 1U);
}

TEST_F(SqliteStoreModel, WhatCanStandInSeveralTablesIsAnObject) {
  saveAsSqlite(*makeFullModel());
  for (const char* query :
       {"object_id AS r FROM notes", "object_id AS r FROM property_values", "subject_id AS r FROM shapes",
        "element_id AS r FROM diagram_elements", "owner_id AS r FROM objects"}) {
    EXPECT_EQ(ask(std::string("SELECT count(*) FROM (SELECT ") + query +
                  ") WHERE r IS NOT NULL AND r NOT IN (SELECT id FROM objects)"),
              "0")
        << query;
  }
  EXPECT_EQ(ask("SELECT count(*) FROM objects"), ask("SELECT last_id FROM models"));
}

// The golden file says what the columns hold: the ids of JSON are those of the tables.
TEST_F(SqliteStoreModel, EveryFieldArrives) {
  saveAsSqlite(*makeFullModel());
  EXPECT_EQ(ask("SELECT id, name, source_id, design_level, store_type, modification_time, data_store,"
                " data_store_version, origin_path FROM models"),
            "1|Shop|model_id|1|3|2026-01-01T00:00:00Z|ORACLE|12.0.0|shop2");
  EXPECT_EQ(ask("SELECT position, file_path, origin_code, build_version FROM origins ORDER BY position"),
            "0|shop1|346|10.0.1\n1|shop2|346|10.0.1");
  EXPECT_EQ(
      ask("SELECT c.name, a.name, a.position, a.visibility, a.is_optional, a.is_derived, a.is_static, t.name,"
          " hex(a.initial_value) FROM attributes a JOIN classes c ON c.id = a.class_id"
          " JOIN types t ON t.id = a.type_id ORDER BY a.id DESC LIMIT 1"),
      "Item|order|7|1|1|1|1|colour|2271756F746564225C0A090120636166C3A9");
  EXPECT_EQ(ask("SELECT is_abstract, is_physical_class, class_category, visibility, p.name, s.name, s.kind"
                " FROM classes c JOIN packages p ON p.id = c.package_id"
                " JOIN packages s ON s.id = c.data_package_id WHERE c.name = 'Order'"),
            "1|1|9|2|Sales|SCHEMA|schema");
  EXPECT_EQ(ask("SELECT name, kind, length, scale, user_defined, (SELECT b.name FROM types b WHERE b.id ="
                " t.base_concrete_type_id) FROM types t WHERE kind = 'derived type'"),
            "colour|derived type|30|-2|1|VARCHAR");
  EXPECT_EQ(ask("SELECT r.name, r.is_supertype, c.name FROM generalization_roles r"
                " JOIN classes c ON c.id = r.associated_class_id ORDER BY r.id"),
            "super|1|Order\nsub|0|Item");
  EXPECT_EQ(ask("SELECT kind, line_points, x, y, auto_size FROM shapes ORDER BY id"),
            "box|-|-60|70|1\nline|1,2;3,4|-60|70|0");
}

// Each statement that SQLite begins costs as much as some rows do, so rows go in by hundreds.
TEST_F(SqliteStoreModel, StatementsAreFewForManyRows) {
  const auto statementsFor = [this](unsigned int packages) {
    KYRStoreModel model;
    for (unsigned int i = 0; i < packages; ++i) model.addDesignPackage(new KYRDesignPackage());
    SqliteDatabase database(path(std::to_string(packages).c_str()), KYRString("m"));
    int statements = 0;
    sqlite3_trace_v2(
        database.getHandle(), SQLITE_TRACE_STMT,
        [](unsigned int, void* count, void*, void*) { return ++*static_cast<int*>(count), 0; }, &statements);
    SqliteStoreModelWriter writer(database, KYRString("m"));
    writeStoreModel(model, writer);
    EXPECT_EQ(database.getNumber("SELECT count(*) FROM packages"), packages);
    return statements;
  };
  EXPECT_LE(statementsFor(20000), statementsFor(0) + 20000 / 200);
}

// The rows of a table wait in one block: a row must not take over what the one before has set.
TEST_F(SqliteStoreModel, EachRowHasItsOwnValuesOnly) {
  KYRStoreModel model;
  for (int i = 0; i < 6; ++i) {
    auto* package = new KYRDesignPackage();
    model.addDesignPackage(package);
    if (i % 2 == 0) package->setName(KYRString(i));
    if (i % 3 == 0) package->isModelPackage = true;
    if (i == 2) package->description = "two";
  }
  saveAsSqlite(model);
  EXPECT_EQ(ask("SELECT name, is_model_package, description FROM packages ORDER BY id"),
            "0|1|-\n-|0|-\n2|0|two\n-|1|-\n4|0|-\n-|0|-");
}

TEST_F(SqliteStoreModel, TheViewsAnswer) {
  saveAsSqlite(*makeFullModel());
  EXPECT_EQ(
      ask("SELECT class, attribute, type, visibility, optional FROM class_attributes ORDER BY attribute_id"),
      "Order|id|colour|public|no\nItem|order|colour|protected|yes");
  EXPECT_EQ(ask("SELECT association, class1, role1, multiplicity1, class2, role2, multiplicity2, aggregation"
                " FROM association_ends"),
            "holds|Order|end|0..*|Item|end|0..*|composite");
  EXPECT_EQ(
      ask("SELECT class, key_name, kind, position, attribute, referenced_class, referenced_key"
          " FROM key_columns ORDER BY key_id"),
      "Order|PK|primary key|0|id|-|-\nItem|FK1|foreign key|0|order|Order|PK\nItem|FK2|foreign key|-|-|-|-");
  EXPECT_EQ(ask("SELECT schema_name, column_name IS NOT NULL, data_type, length, nullable, primary_key"
                " FROM data_dictionary ORDER BY attribute_id"),
            "SCHEMA|1|SQL_VARCHAR|30|no|yes\nSCHEMA|1|SQL_VARCHAR|30|yes|no");
  EXPECT_EQ(ask("SELECT class, supertype FROM class_supertypes"), "Item|Order");
  EXPECT_EQ(ask("SELECT class, operation, return_type, argument, direction, type FROM operation_arguments"),
            "Order|add|Order|item|inout|colour");
  EXPECT_EQ(ask("SELECT type, name, value FROM enumeration_values ORDER BY position"),
            "colour|red|value of red\ncolour|green|value of green");
  EXPECT_EQ(ask("SELECT path FROM package_paths WHERE path LIKE 'Sales%'"), "Sales\nSales/Inner");
  EXPECT_EQ(ask("SELECT kind, name, property, value FROM object_properties WHERE kind = 'class' ORDER BY 2, "
                "3 LIMIT 1"),
            "class|Item|author|value of author");
  EXPECT_EQ(ask("SELECT note_text FROM object_notes WHERE kind = 'class' AND name = 'Item'"),
            "Text of the note");
}

TEST_F(SqliteStoreModel, WordsAreFoundInNamesDescriptionsAndNotes) {
  auto model = makeModel("a", "Invoice");
  auto* package = model->designPackages.get("P");
  package->description = "Za\xC5\xBC\xC3\xB3\xC5\x82\xC4\x87 all invoices";
  saveAsSqlite(*model);
  EXPECT_EQ(ask("SELECT kind, name FROM search WHERE search MATCH 'invoice'"), "class|Invoice");
  EXPECT_EQ(ask("SELECT kind FROM search WHERE search MATCH 'invo*' ORDER BY kind"), "class\npackage");
  EXPECT_EQ(ask("SELECT kind FROM search WHERE search MATCH 'zazo\xC5\x82\x63'"), "package");
  EXPECT_EQ(ask("INSERT INTO search(search, rank) VALUES ('integrity-check', 0)"), "");
}

// Each table is asked by the id, none is read from end to end.
TEST_F(SqliteStoreModel, AnObjectIsLookedUpById) {
  saveAsSqlite(*makeFullModel());
  for (const char* query :
       {"SELECT * FROM objects WHERE id = 7",
        "SELECT o.kind FROM search JOIN objects o ON o.id = search.rowid WHERE search MATCH 'x'"}) {
    const std::string plan = ask(std::string("EXPLAIN QUERY PLAN ") + query);
    EXPECT_THAT(plan, testing::HasSubstr("USING INTEGER PRIMARY KEY"));
    EXPECT_THAT(plan, testing::Not(testing::HasSubstr("MATERIALIZE")));
  }
  EXPECT_THAT(ask("EXPLAIN QUERY PLAN SELECT * FROM classes WHERE name = 'Order'"),
              testing::HasSubstr("classes_by_name"));
  EXPECT_THAT(ask("EXPLAIN QUERY PLAN SELECT * FROM class_attributes WHERE class = 'Order'"),
              testing::HasSubstr("attributes_by_class_id"));
}

TEST_F(SqliteStoreModel, TheSameModelGivesTheSameBytes) {
  saveAsSqlite(*makeFullModel());
  const std::string first = content("m.sqlite");
  saveAsSqlite(*makeFullModel());
  EXPECT_EQ(content("m.sqlite"), first);
}

TEST_F(SqliteStoreModel, ModelsStandSideBySide) {
  append(*makeModel("a", "Order"));
  append(*makeFullModel());
  append(*makeModel("b", "Order"));
  EXPECT_EQ(ask(wholeness), "ok");
  EXPECT_EQ(ask("SELECT origin_path, id FROM models ORDER BY id LIMIT 2"), "a|1\nshop2|4");
  EXPECT_EQ(ask("SELECT count(*) FROM objects"), ask("SELECT max(last_id) FROM models"));
  EXPECT_EQ(
      ask("SELECT m.origin_path FROM classes c JOIN models m ON m.id = c.model_id WHERE c.name = 'Order'"),
      "a\nshop2\nb");
  EXPECT_EQ(ask("SELECT count(*) FROM class_attributes WHERE class = 'Order'"), "1");
}

TEST_F(SqliteStoreModel, AModelOfTheSameOriginIsReplaced) {
  append(*makeModel("a", "Old"));
  append(*makeFullModel());
  append(*makeModel("a", "New"));
  append(*makeFullModel());
  EXPECT_EQ(ask(wholeness), "ok");
  EXPECT_EQ(ask("SELECT origin_path FROM models ORDER BY id"), "a\nshop2");
  EXPECT_EQ(ask("SELECT count(*) FROM classes WHERE name = 'Old'"), "0");
  EXPECT_EQ(ask("SELECT name FROM search WHERE search MATCH 'old OR new'"), "New");
  EXPECT_EQ(ask("INSERT INTO search(search, rank) VALUES ('integrity-check', 0)"), "");
  saveAsSqlite(*makeFullModel());
  const std::string alone =
      ask("SELECT count(*) FROM property_values; SELECT count(*) FROM key_attributes;"
          "SELECT count(*) FROM notes; SELECT count(*) FROM origins");
  append(*makeFullModel());
  EXPECT_EQ(ask("SELECT count(*) FROM property_values; SELECT count(*) FROM key_attributes;"
                "SELECT count(*) FROM notes; SELECT count(*) FROM origins"),
            alone);
}

TEST_F(SqliteStoreModel, ModelsWithoutAnOriginReplaceNothing) {
  KYRStoreModel model;
  append(model);
  append(model);
  EXPECT_EQ(ask("SELECT count(*) FROM models WHERE origin_path IS NULL"), "2");
}

TEST_F(SqliteStoreModel, AnyTextIsTextAndNothingElse) {
  struct Case {
    std::string text;
    const char* stored;  // in hexadecimal
  };
  const Case cases[] = {
      {"x'); DROP TABLE classes; --", "7827293B2044524F50205441424C4520636C61737365733B202D2D"},
      {"\"?1\" ' \\", "223F31222027205C"},
      {std::string("a\0b", 3), "61EFBFBD62"},
      {"a\xFFz", "61EFBFBD7A"},
  };
  for (const Case& test : cases) {
    KYRStoreModel model;
    model.setName(KYRString(std::string_view(test.text)));
    saveAsSqlite(model);
    EXPECT_EQ(ask("SELECT hex(name) FROM models"), test.stored);
  }
}

TEST_F(SqliteStoreModel, OtherDatabasesAreLeftAlone) {
  const auto attempt = [this] { append(*makeModel("a", "Order")); };
  write("this is text, and long enough to be no empty file", "m.sqlite");
  EXPECT_EQ(failureOf(attempt),
            "[KYRSTD_F0120] The file '" + path("m.sqlite") + "' cannot be saved: file is not a database");
  EXPECT_EQ(content("m.sqlite"), "this is text, and long enough to be no empty file");
  std::filesystem::remove(path("m.sqlite"));
  saveAsSqlite(*makeModel("a", "Order"));
  ask("PRAGMA user_version = 77");
  EXPECT_EQ(failureOf(attempt), "[KYRSTD_F0151] No model can be added to '" + path("m.sqlite") +
                                    "': the version 77 of its tables is not known");
  ask("PRAGMA user_version = 1; PRAGMA application_id = 1");
  EXPECT_EQ(failureOf(attempt), "[KYRSTD_F0150] No model can be added to '" + path("m.sqlite") +
                                    "': this database was not made for models");
  EXPECT_EQ(ask("SELECT count(*) FROM models"), "1");
}

}  // namespace
