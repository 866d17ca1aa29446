// SqlSchema: the tables that a saved model fills in a relational database.
//
// The columns are made out of the rows that say what each class saves, so a new field is a column of its
// own accord: `initialValue` becomes `initial_value`, the reference `dataPackage` becomes
// `data_package_id`. What rows cannot say stands in one list here: which classes share a table, and
// which table holds the owner. docs/sqlite.md describes the result.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/Export.h"
#include "repository/storage/StoredClasses.h"

struct SqlColumn {
  enum class Kind { number, flag, text, reference };
  std::string name;
  Kind kind;
  /// Of a reference: the table that it leads to; empty when objects of several tables can stand there.
  std::string_view target;
  /// Whether it must have a value. Numbers and flags always have one.
  bool isRequired = false;
};

struct KYR_EXPORT SqlTable {
  std::string_view name;
  /// Its place among all tables.
  std::size_t index;
  /// Tables of objects begin with `id`, which is the primary key. The others begin with a reference to
  /// the object that a row belongs to.
  bool holdsObjects;
  std::vector<SqlColumn> columns;

  /// The place of the column of that name, which must exist.
  std::size_t columnAt(std::string_view column) const noexcept;
};

/// How the objects of one class fill their table.
struct SqlClass {
  struct Field {
    std::string_view name;
    std::size_t column;
  };
  struct Owner {
    const SqlTable* table;
    std::size_t column;
  };
  struct Link {
    std::string_view name;
    const SqlTable* table;
  };

  const StoredClass* stored;
  const SqlTable* table;
  /// What the column `kind` says of it; where several classes share the table, that column tells them apart.
  std::string_view kind;
  /// Values, in the order in which they are saved.
  std::vector<Field> fields;
  /// The column for each table of which an object can be the owner.
  std::vector<Owner> owners;
  /// Lists of references, each of which has a table of its own: owner, position, entry.
  std::vector<Link> links;
};

/// The tables are built at the first call and live as long as the process.
class KYR_EXPORT SqlSchema {
 public:
  enum class Dialect {
    sqlite,
    standard,  // as PostgreSQL understands it
  };
  /// What programs find in `PRAGMA user_version`; a change of the tables raises it.
  static constexpr int version = 1;

  static const SqlSchema& get();
  SqlSchema(const SqlSchema&) = delete;
  SqlSchema& operator=(const SqlSchema&) = delete;

  const std::vector<SqlTable>& getTables() const noexcept { return tables_; }
  const std::vector<SqlClass>& getClasses() const noexcept { return classes_; }
  /// The class of that name, of which objects can be saved.
  const SqlClass& getClass(std::string_view name) const;
  const SqlTable& getTable(std::string_view name) const;

  /// Statements, each ended by a semicolon and a line break.
  std::string createTables(Dialect dialect) const;
  /// Foreign keys as statements of their own; SQLite has them in its tables.
  std::string addForeignKeys() const;
  /// Whether the column, which has an index, is to get it; an empty function wants all.
  using IndexChoice = std::function<bool(const SqlTable& table, std::size_t column)>;
  std::string createIndexes(const IndexChoice& isWanted = {}) const;
  std::string createViews() const;

 private:
  struct Builder;
  SqlSchema();
  std::string createObjectsView() const;

  std::vector<SqlTable> tables_;
  std::vector<SqlClass> classes_;
};
