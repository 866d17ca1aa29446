// Type names of Adaptive Server Enterprise. It shares its beginnings with Microsoft SQL Server but not its
// later types, so it has a table of its own.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"char", Char},
    {"character", Char},
    {"varchar", Varchar},
    {"char varying", Varchar},
    {"character varying", Varchar},
    {"sysname", Varchar},
    {"longsysname", Varchar},
    {"text", LongVarchar},
    {"unichar", WChar},
    {"nchar", WChar},
    {"national char", WChar},
    {"national character", WChar},
    {"univarchar", WVarchar},
    {"nvarchar", WVarchar},
    {"nchar varying", WVarchar},
    {"national char varying", WVarchar},
    {"national character varying", WVarchar},
    {"unitext", WLongVarchar},
    {"binary", Binary},
    {"varbinary", Varbinary},
    {"binary varying", Varbinary},
    {"image", LongVarbinary},
    // varbinary(8) that counts the changes of the database; nothing of a time is in it.
    {"timestamp", Varbinary},

    {"bit", Bit},
    {"tinyint", TinyInt},
    // Unsigned types map as the signed ones of their width: the codes have no sign.
    {"smallint", SmallInt},
    {"unsigned smallint", SmallInt},
    {"usmallint", SmallInt},
    {"int", Integer},
    {"integer", Integer},
    {"unsigned int", Integer},
    {"unsigned integer", Integer},
    {"uint", Integer},
    {"bigint", BigInt},
    {"unsigned bigint", BigInt},
    {"ubigint", BigInt},
    {"decimal", Decimal},
    {"dec", Decimal},
    {"money", Decimal},
    {"smallmoney", Decimal},
    {"numeric", Numeric},
    {"real", Real},
    {"float", Float},
    {"double precision", Double},
    {"numeric() identity", Numeric},
    {"decimal() identity", Decimal},

    {"date", Date},
    {"time", Time},
    {"bigtime", Time},
    {"datetime", Timestamp},
    {"smalldatetime", Timestamp},
    {"bigdatetime", Timestamp},
};

}  // namespace

const KYRDataTypeTable& sybaseAseTypes() {
  static const KYRDataTypeTable table(
      {"SAP Adaptive Server Enterprise 16.0 Reference Manual: Building Blocks, System and User-Defined "
       "Datatypes",
       rows});
  return table;
}
