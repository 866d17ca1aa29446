// Rows are gathered for each table into statements of many rows, which load far faster than single ones.
// So the rows of one table come out in order, those of different tables do not; foreign keys are
// therefore added at the end, which is cheaper than looking up every row, too.
#include "repository/storage/SqlStoreModelWriter.h"

namespace {

// The two lines that only PostgreSQL needs keep the texts what they are, whatever the server's
// settings are.
constexpr std::string_view head =
    "-- A model saved by kyr. It is loaded into an empty database or schema: psql -v ON_ERROR_STOP=1 -f "
    "FILE\n"
    "-- The two SET commands are for PostgreSQL; other systems do without them.\n"
    "SET client_encoding = 'UTF8';\n"
    "SET standard_conforming_strings = on;\n"
    "START TRANSACTION;\n";
constexpr std::string_view end = "COMMIT;\n";

constexpr std::size_t statementSize = std::size_t{64} * 1024;

// PostgreSQL takes at most a third of a page of 8 KiB for an entry of an index.
constexpr std::size_t longestIndexed = 2600;

std::string_view defaultOf(SqlColumn::Kind kind) {
  switch (kind) {
    case SqlColumn::Kind::number:
      return "0";
    case SqlColumn::Kind::flag:
      return "FALSE";
    default:
      return "NULL";
  }
}

}  // namespace

SqlStoreModelWriter::SqlStoreModelWriter(BlockSink& sink)
    : output_(sink), rows_(getSchema().getTables().size()) {
  for (const SqlTable& table : getSchema().getTables()) {
    rows_[table.index].cells.resize(table.columns.size());
    rows_[table.index].isTooLong.resize(table.columns.size());
  }
}

SqlStoreModelWriter::~SqlStoreModelWriter() = default;

void SqlStoreModelWriter::beginDocument(const KYRStoreModel& model) {
  SqlRowWriter::beginDocument(model);
  output_.write(head);
  output_.write(getSchema().createTables(SqlSchema::Dialect::standard));
}

void SqlStoreModelWriter::endDocument() {
  SqlRowWriter::endDocument();
  const SqlSchema& schema = getSchema();
  for (const SqlTable& table : schema.getTables()) flush(table);
  output_.write("UPDATE models SET last_id = " + std::to_string(getLastId()) + ";\n");
  output_.write(schema.addForeignKeys());
  output_.write(schema.createIndexes([this](const SqlTable& table, std::size_t column) -> bool {
    return !rows_[table.index].isTooLong[column];
  }));
  output_.write(schema.createViews());
  output_.write(end);
  output_.Flush();
}

void SqlStoreModelWriter::beginRow(const SqlTable& table) {
  std::vector<std::string>& cells = rows_[table.index].cells;
  for (std::size_t i = 0; i < cells.size(); ++i) cells[i] = defaultOf(table.columns[i].kind);
}

void SqlStoreModelWriter::putNumber(const SqlTable& table, std::size_t column, std::int64_t value) {
  std::string& cell = rows_[table.index].cells[column];
  if (table.columns[column].kind == SqlColumn::Kind::flag) {
    cell = value != 0 ? "TRUE" : "FALSE";
  } else {
    cell = std::to_string(value);
  }
}

void SqlStoreModelWriter::putText(const SqlTable& table, std::size_t column, std::string_view value, bool) {
  Rows& rows = rows_[table.index];
  if (value.size() > longestIndexed) rows.isTooLong[column] = true;
  std::string& cell = rows.cells[column];
  cell = '\'';
  for (const char character : value) {
    if (character == '\'') cell += '\'';
    cell += character;
  }
  cell += '\'';
}

void SqlStoreModelWriter::endRow(const SqlTable& table) {
  Rows& rows = rows_[table.index];
  const char* separator = rows.values.empty() ? "(" : ",\n(";
  for (const std::string& cell : rows.cells) {
    rows.values += separator;
    rows.values += cell;
    separator = ", ";
  }
  rows.values += ')';
  if (rows.values.size() >= statementSize) flush(table);
}

void SqlStoreModelWriter::flush(const SqlTable& table) {
  std::string& values = rows_[table.index].values;
  if (values.empty()) return;
  output_.write("INSERT INTO " + std::string(table.name) + " (");
  for (const SqlColumn& column : table.columns) {
    if (&column != &table.columns.front()) output_.write(", ");
    output_.write(column.name);
  }
  output_.write(") VALUES\n");
  output_.write(values);
  output_.write(";\n");
  values.clear();
}
