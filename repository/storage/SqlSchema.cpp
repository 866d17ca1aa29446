// The list of the tables, and the statements that follow from it.
#include "repository/storage/SqlSchema.h"

#include <algorithm>

#include "repository/model/KYRElementType.h"
#include "repository/storage/SqlViews.h"
#include "repository/storage/StoredOrigin.h"

namespace {

using Kind = SqlColumn::Kind;
using Type = KYRElementType;

struct ClassEntry {
  int elementType;
  std::string_view kind;
};

struct OwnerEntry {
  std::string_view column;
  std::string_view table;
};

// A table of objects. No class has more than two kinds of owners besides the model.
struct TableEntry {
  std::string_view name;
  std::vector<ClassEntry> classes;
  std::vector<OwnerEntry> owners;
};

const std::vector<TableEntry>& objectTables() {
  static const std::vector<TableEntry> entries = {
      {"models", {{Type::model, "model"}}, {}},
      {"property_types", {{Type::propertyType, "property type"}}, {}},
      {"packages",
       {{Type::designPackage, "package"},
        {Type::dataPackage, "data package"},
        {Type::databaseSchema, "schema"}},
       {{"parent_id", "packages"}}},
      {"types",
       {{Type::baseType, "base type"}, {Type::derivedType, "derived type"}, {Type::classType, "class type"}},
       {{"package_id", "packages"}}},
      {"type_values", {{Type::typeValue, "type value"}}, {{"type_id", "types"}}},
      {"classes", {{Type::class_, "class"}}, {{"package_id", "packages"}}},
      {"attributes", {{Type::attribute, "attribute"}}, {{"class_id", "classes"}}},
      {"operations", {{Type::operation, "operation"}}, {{"class_id", "classes"}, {"package_id", "packages"}}},
      {"arguments", {{Type::argument, "argument"}}, {{"operation_id", "operations"}}},
      {"keys",
       {{Type::candidateKey, "candidate key"}, {Type::foreignKey, "foreign key"}},
       {{"class_id", "classes"}}},
      {"associations", {{Type::association, "association"}}, {{"package_id", "packages"}}},
      {"association_roles",
       {{Type::associationRole, "association role"}},
       {{"association_id", "associations"}}},
      {"generalizations", {{Type::generalization, "generalization"}}, {{"package_id", "packages"}}},
      {"generalization_roles",
       {{Type::generalizationRole, "generalization role"}},
       {{"generalization_id", "generalizations"}}},
      {"dependencies", {{Type::dependency, "dependency"}}, {{"package_id", "packages"}}},
      {"realizations", {{Type::realization, "realization"}}, {{"package_id", "packages"}}},
      {"diagrams", {{Type::classDiagram, "diagram"}}, {{"package_id", "packages"}}},
      {"shapes",
       {{Type::projection, "box"}, {Type::relationshipProjection, "line"}},
       {{"diagram_id", "diagrams"}}},
      {"notes", {{Type::note, "note"}}, {}},
  };
  return entries;
}

// A list of references, as a table.
struct LinkEntry {
  int elementType;
  std::string_view field;
  std::string_view table;
  std::string_view ownerColumn;
  std::string_view ownerTable;
  std::string_view entryColumn;
  std::string_view entryTable;  // empty: objects of several
};

constexpr LinkEntry linkTables[] = {
    {Type::key, "attributes", "key_attributes", "key_id", "keys", "attribute_id", "attributes"},
    {Type::diagram, "modelElements", "diagram_elements", "diagram_id", "diagrams", "element_id", {}},
};

bool isKindOf(int elementType, int base) {
  while (elementType != 0 && elementType != base) elementType = Type::getBase(elementType);
  return elementType == base;
}

std::string toSnakeCase(std::string_view name) {
  std::string result;
  for (const char character : name) {
    const bool isUpper = character >= 'A' && character <= 'Z';
    if (isUpper) result += '_';
    result += isUpper ? static_cast<char>(character - 'A' + 'a') : character;
  }
  return result;
}

// The one table that holds all objects of an element type; empty when several do.
std::string_view tableOf(int elementType) {
  for (const TableEntry& entry : objectTables()) {
    for (const ClassEntry& held : entry.classes) {
      const bool isOwn = isKindOf(held.elementType, elementType);
      // A type that rests on a base type leads into the table of types, whichever class is meant.
      const bool isBase = isKindOf(elementType, held.elementType);
      if ((isOwn || isBase) && elementType != Type::modelObject && elementType != Type::modelElement) {
        return entry.name;
      }
    }
  }
  return {};
}

SqlColumn columnOf(const StoredField& field) {
  std::string name = toSnakeCase(field.name);
  switch (field.kind) {
    case StoredKind::number:
      return {std::move(name), Kind::number, {}, true};
    case StoredKind::flag:
      return {std::move(name), Kind::flag, {}, true};
    case StoredKind::reference:
      return {name + "_id", Kind::reference, tableOf(field.elementType), false};
    default:
      return {std::move(name), Kind::text, {}, false};
  }
}

std::size_t addColumn(SqlTable& table, SqlColumn column) {
  for (std::size_t at = 0; at < table.columns.size(); ++at) {
    if (table.columns[at].name == column.name) return at;
  }
  table.columns.push_back(std::move(column));
  return table.columns.size() - 1;
}

const StoredClass& storedClass(int elementType) {
  return *StoredClasses::find(Type::getClassName(elementType));
}

}  // namespace

std::size_t SqlTable::columnAt(std::string_view column) const noexcept {
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [column](const SqlColumn& other) { return other.name == column; });
  return static_cast<std::size_t>(found - columns.begin());
}

struct SqlSchema::Builder {
  SqlSchema& schema;

  // Classes and columns point into the list of tables, which is therefore complete before they are made.
  void build() {
    for (const TableEntry& entry : objectTables()) addTable(entry.name, true);
    for (const LinkEntry& entry : linkTables) addTable(entry.table, false);
    addTable("property_values", false);
    addTable("origins", false);
    for (const TableEntry& entry : objectTables()) fillObjects(entry);
    for (const LinkEntry& entry : linkTables) {
      table(entry.table).columns = {
          {std::string(entry.ownerColumn), Kind::reference, entry.ownerTable, true},
          {"position", Kind::number, {}, true},
          {std::string(entry.entryColumn), Kind::reference, entry.entryTable, true}};
    }
    table("property_values").columns = {{"object_id", Kind::reference, {}, true},
                                        {"property_type_id", Kind::reference, "property_types", true},
                                        {"value", Kind::text, {}, false}};
    fillOrigins(table("origins"));
  }

  void addTable(std::string_view name, bool holdsObjects) {
    schema.tables_.push_back({name, schema.tables_.size(), holdsObjects, {}});
  }
  SqlTable& table(std::string_view name) { return schema.tables_[schema.getTable(name).index]; }

  void fillObjects(const TableEntry& entry) {
    SqlTable& table = this->table(entry.name);
    table.columns.push_back({"id", Kind::number, {}, true});
    const bool isModels = entry.name == "models";
    if (!isModels) table.columns.push_back({"model_id", Kind::reference, "models", true});
    if (entry.classes.size() > 1) table.columns.push_back({"kind", Kind::text, {}, true});
    if (entry.name == "notes") table.columns.push_back({"object_id", Kind::reference, {}, true});
    for (const OwnerEntry& owner : entry.owners) {
      table.columns.push_back({std::string(owner.column), Kind::reference, owner.table, false});
    }
    if (entry.name == "generalization_roles") table.columns.push_back({"is_supertype", Kind::flag, {}, true});
    if (isModels) fillModels(table);
    for (const ClassEntry& held : entry.classes) addClass(entry, held, table);
  }

  static void fillModels(SqlTable& table) {
    for (const char* name : {"design_level", "store_type"})
      table.columns.push_back({name, Kind::number, {}, true});
    for (const char* name : {"modification_time", "data_store", "data_store_version", "origin_path"}) {
      table.columns.push_back({name, Kind::text, {}, false});
    }
    table.columns.push_back({"last_id", Kind::number, {}, true});
  }

  static void fillOrigins(SqlTable& table) {
    table.columns = {{"model_id", Kind::reference, "models", true}, {"position", Kind::number, {}, true}};
    for (const StoredOriginField& field : storedOriginFields) {
      const Kind kind = field.text != nullptr ? Kind::text : Kind::number;
      table.columns.push_back({toSnakeCase(field.name), kind, {}, kind == Kind::number});
    }
  }

  void addClass(const TableEntry& entry, const ClassEntry& held, SqlTable& table) {
    SqlClass made{&storedClass(held.elementType), &table, held.kind, {}, {}, {}};
    for (const OwnerEntry& owner : entry.owners) {
      made.owners.push_back({&schema.getTable(owner.table), table.columnAt(owner.column)});
    }
    for (const StoredField* field : made.stored->values) {
      if (field->kind == StoredKind::references) {
        for (const LinkEntry& link : linkTables) {
          const bool isMeant = link.field == field->name && isKindOf(held.elementType, link.elementType);
          if (isMeant) made.links.push_back({field->name, &schema.getTable(link.table)});
        }
      } else {
        made.fields.push_back({field->name, addColumn(table, columnOf(*field))});
      }
    }
    schema.classes_.push_back(std::move(made));
  }
};

SqlSchema::SqlSchema() { Builder{*this}.build(); }

const SqlSchema& SqlSchema::get() {
  static const SqlSchema schema;
  return schema;
}

const SqlClass& SqlSchema::getClass(std::string_view name) const {
  return *std::find_if(classes_.begin(), classes_.end(),
                       [name](const SqlClass& entry) { return entry.stored->name == name; });
}

const SqlTable& SqlSchema::getTable(std::string_view name) const {
  return *std::find_if(tables_.begin(), tables_.end(),
                       [name](const SqlTable& entry) { return entry.name == name; });
}

namespace {

std::string typeOf(const SqlTable& table, const SqlColumn& column, SqlSchema::Dialect dialect) {
  const bool isSqlite = dialect == SqlSchema::Dialect::sqlite;
  const bool isId = table.holdsObjects && &column == &table.columns.front();
  // The primary key of SQLite must be called just so to be the row's own number.
  if (isId) return isSqlite ? "INTEGER PRIMARY KEY" : "BIGINT PRIMARY KEY";
  std::string type;
  switch (column.kind) {
    case Kind::text:
      type = "TEXT";
      break;
    case Kind::flag:
      type = isSqlite ? "INTEGER" : "BOOLEAN";
      break;
    case Kind::number:
      // Numbers of the format have 32 bits, sums of ids more.
      type = isSqlite || column.name != "last_id" ? "INTEGER" : "BIGINT";
      break;
    case Kind::reference:
      type = isSqlite ? "INTEGER" : "BIGINT";
      if (isSqlite && !column.target.empty()) type += " REFERENCES " + std::string(column.target);
      break;
  }
  if (column.isRequired) type += " NOT NULL";
  if (isSqlite && column.name == "origin_path") type += " UNIQUE";
  return type;
}

bool isIndexed(const SqlTable& table, const SqlColumn& column) {
  if (column.name == "model_id" || &column == &table.columns.front()) return !table.holdsObjects;
  return column.kind == Kind::reference || column.name == "name" || column.name == "source_id";
}

}  // namespace

std::string SqlSchema::createTables(Dialect dialect) const {
  std::string sql;
  for (const SqlTable& table : tables_) {
    sql += "CREATE TABLE " + std::string(table.name) + " (";
    for (const SqlColumn& column : table.columns) {
      if (&column != &table.columns.front()) sql += ", ";
      sql += column.name + ' ' + typeOf(table, column, dialect);
    }
    sql += ");\n";
  }
  return sql;
}

std::string SqlSchema::addForeignKeys() const {
  std::string sql;
  for (const SqlTable& table : tables_) {
    for (const SqlColumn& column : table.columns) {
      if (column.target.empty()) continue;
      sql += "ALTER TABLE " + std::string(table.name) + " ADD FOREIGN KEY (" + column.name + ") REFERENCES " +
             std::string(column.target) + " (id);\n";
    }
  }
  return sql;
}

std::string SqlSchema::createIndexes(const IndexChoice& isWanted) const {
  std::string sql;
  for (const SqlTable& table : tables_) {
    for (std::size_t at = 0; at < table.columns.size(); ++at) {
      const SqlColumn& column = table.columns[at];
      if (!isIndexed(table, column) || (isWanted && !isWanted(table, at))) continue;
      sql += "CREATE INDEX " + std::string(table.name) + "_by_" + column.name + " ON " +
             std::string(table.name) + " (" + column.name + ")";
      // Where most rows have no value, they need not stand in the index.
      if (!column.isRequired) sql += " WHERE " + column.name + " IS NOT NULL";
      sql += ";\n";
    }
  }
  return sql;
}

// Each column has one type in all tables, hence the casts: SQLite then looks an id up in each of them
// instead of putting them all together first.
std::string SqlSchema::createObjectsView() const {
  std::string sql = "CREATE VIEW objects AS";
  const char* separator = "\n";
  for (const SqlTable& table : tables_) {
    if (!table.holdsObjects) continue;
    const std::string name(table.name);
    const bool isModels = name == "models";
    const bool hasKind = table.columnAt("kind") != table.columns.size();
    std::string kind = "kind";
    std::string owner = isModels ? "NULL" : "model_id";
    for (const SqlClass& entry : classes_) {
      if (entry.table != &table) continue;
      if (!hasKind) kind = "CAST('" + std::string(entry.kind) + "' AS TEXT)";
      if (entry.owners.empty()) continue;
      owner = "COALESCE(";
      for (const SqlClass::Owner& held : entry.owners)
        owner.append(table.columns[held.column].name).append(", ");
      owner += "model_id)";
    }
    const bool isNotes = name == "notes";
    if (isNotes) owner = "object_id";
    sql += separator;
    for (const std::string_view part :
         {std::string_view("SELECT id, "), std::string_view(isModels ? "id" : "model_id"),
          std::string_view(" AS model_id, "), std::string_view(kind), std::string_view(" AS kind, CAST("),
          std::string_view(owner), std::string_view(" AS BIGINT) AS owner_id, name, source_id, "),
          std::string_view(isNotes ? "CAST(COALESCE(note_text, description) AS TEXT)" : "description"),
          std::string_view(" AS description FROM "), std::string_view(name)}) {
      sql += part;
    }
    separator = "\nUNION ALL ";
  }
  return sql + ";\n";
}

std::string SqlSchema::createViews() const {
  std::string sql = createObjectsView();
  for (const SqlView& view : sqlViews) {
    sql += "CREATE VIEW " + std::string(view.name) + " AS\n" + std::string(view.query) + ";\n";
  }
  return sql;
}
