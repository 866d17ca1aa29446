#include "repository/storage/SqlSchema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using testing::HasSubstr;

TEST(SqlSchema, EveryClassAndEachOfItsValuesHasAPlace) {
  for (const StoredClass& stored : StoredClasses::getAll()) {
    const SqlClass& entry = SqlSchema::get().getClass(stored.name);
    ASSERT_EQ(entry.stored, &stored);
    std::size_t links = 0;
    for (const StoredField* field : stored.values) links += field->kind == StoredKind::references ? 1 : 0;
    EXPECT_EQ(entry.links.size(), links) << stored.name;
    EXPECT_EQ(entry.fields.size() + links, stored.values.size()) << stored.name;
    for (const SqlClass::Field& field : entry.fields) EXPECT_LT(field.column, entry.table->columns.size());
  }
}

// Whatever a list can hold finds its owner again: in a column of the table, or by the model.
TEST(SqlSchema, EveryListHasAColumnForTheOwner) {
  const auto isKindOf = [](int type, int base) {
    while (type != 0 && type != base) type = KYRElementType::getBase(type);
    return type == base;
  };
  for (const StoredClass& holder : StoredClasses::getAll()) {
    const SqlTable* const holders = SqlSchema::get().getClass(holder.name).table;
    if (holders->name == "models") continue;
    for (const StoredField* list : holder.lists) {
      for (const StoredClass& held : StoredClasses::getAll()) {
        if (!isKindOf(held.elementType, list->elementType)) continue;
        const SqlClass& entry = SqlSchema::get().getClass(held.name);
        bool isFound = entry.table->name == "notes";
        for (const SqlClass::Owner& owner : entry.owners) isFound |= owner.table == holders;
        EXPECT_TRUE(isFound) << held.name << " in " << list->name << " of " << holder.name;
      }
    }
  }
}

TEST(SqlSchema, ReferencesLeadToTheTableOfTheirClass) {
  struct Case {
    const char* table;
    const char* column;
    const char* target;
  };
  const Case cases[] = {
      {"attributes", "type_id", "types"},
      {"attributes", "class_id", "classes"},
      {"attributes", "model_id", "models"},
      {"classes", "data_package_id", "packages"},
      {"classes", "primary_key_id", "keys"},
      {"classes", "association_id", "associations"},
      {"keys", "candidate_key_id", "keys"},
      {"keys", "association_role_id", "association_roles"},
      {"keys", "generalization_role_id", "generalization_roles"},
      {"types", "base_concrete_type_id", "types"},
      {"types", "associated_class_id", "classes"},
      {"operations", "return_type_id", "types"},
      {"shapes", "subject_id", ""},  // classes and relations
      {"diagram_elements", "element_id", ""},
      {"notes", "object_id", ""},
      {"property_values", "property_type_id", "property_types"},
  };
  for (const Case& test : cases) {
    const SqlTable& table = SqlSchema::get().getTable(test.table);
    const std::size_t at = table.columnAt(test.column);
    ASSERT_LT(at, table.columns.size()) << test.table << '.' << test.column;
    EXPECT_EQ(table.columns[at].target, test.target) << test.table << '.' << test.column;
  }
}

TEST(SqlSchema, NoTableHasAColumnTwice) {
  for (const SqlTable& table : SqlSchema::get().getTables()) {
    std::set<std::string> names;
    for (const SqlColumn& column : table.columns) EXPECT_TRUE(names.insert(column.name).second) << table.name;
  }
}

TEST(SqlSchema, TheDialectsDifferInTypesAndInThePlaceOfForeignKeys) {
  const std::string sqlite = SqlSchema::get().createTables(SqlSchema::Dialect::sqlite);
  EXPECT_THAT(
      sqlite,
      HasSubstr("CREATE TABLE type_values (id INTEGER PRIMARY KEY, model_id INTEGER REFERENCES models "
                "NOT NULL, type_id INTEGER REFERENCES types, name TEXT, source_id TEXT, description "
                "TEXT, physical_name TEXT, position INTEGER NOT NULL, value TEXT);\n"));
  const std::string standard = SqlSchema::get().createTables(SqlSchema::Dialect::standard);
  EXPECT_THAT(standard,
              HasSubstr("CREATE TABLE associations (id BIGINT PRIMARY KEY, model_id BIGINT NOT NULL, "
                        "package_id BIGINT, name TEXT, source_id TEXT, description TEXT, physical_name "
                        "TEXT, data_package_id BIGINT, is_composite BOOLEAN NOT NULL);\n"));
  EXPECT_THAT(SqlSchema::get().addForeignKeys(),
              HasSubstr("ALTER TABLE type_values ADD FOREIGN KEY (type_id) REFERENCES types (id);\n"));
}

TEST(SqlSchema, NamesAndSourceIdsAreIndexed) {
  const std::string sql = SqlSchema::get().createIndexes();
  EXPECT_THAT(sql, HasSubstr("CREATE INDEX classes_by_name ON classes (name) WHERE name IS NOT NULL;\n"));
  EXPECT_THAT(sql, HasSubstr("CREATE INDEX attributes_by_source_id ON attributes (source_id) WHERE"));
}

}  // namespace
