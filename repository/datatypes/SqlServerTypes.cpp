// Type names of Microsoft SQL Server: the system types, the synonyms of Transact-SQL, and the names under
// which the catalogue lists columns that number themselves.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"char", Char},
    {"character", Char},
    {"varchar", Varchar},
    {"char varying", Varchar},
    {"character varying", Varchar},
    {"text", LongVarchar},
    {"nchar", WChar},
    {"national char", WChar},
    {"national character", WChar},
    {"nvarchar", WVarchar},
    {"national char varying", WVarchar},
    {"national character varying", WVarchar},
    {"ntext", WLongVarchar},
    {"national text", WLongVarchar},
    // The type of object names, nvarchar(128).
    {"sysname", WVarchar},
    {"binary", Binary},
    {"varbinary", Varbinary},
    {"binary varying", Varbinary},
    {"image", LongVarbinary},
    // Eight bytes that count the changes of the database; nothing of a time is in them.
    {"timestamp", Binary},
    {"rowversion", Binary},

    {"bit", Bit},
    {"tinyint", TinyInt},
    {"smallint", SmallInt},
    {"int", Integer},
    {"integer", Integer},
    {"bigint", BigInt},
    {"decimal", Decimal},
    {"dec", Decimal},
    {"money", Decimal},
    {"smallmoney", Decimal},
    {"numeric", Numeric},
    {"real", Real},
    {"float", Float},
    {"double precision", Double},
    {"tinyint identity", TinyInt},
    {"smallint identity", SmallInt},
    {"int identity", Integer},
    {"bigint identity", BigInt},
    {"decimal() identity", Decimal},
    {"numeric() identity", Numeric},

    {"date", Date},
    {"time", Time},
    {"datetime", Timestamp},
    {"datetime2", Timestamp},
    {"smalldatetime", Timestamp},
    {"datetimeoffset", TimestampWithTimeZone},

    {"uniqueidentifier", Guid},
    {"xml", Xml},
    {"json", Json},
    {"vector", Array},
    {"geometry", Spatial},
    {"geography", Spatial},
    {"sql_variant", Other},
    {"hierarchyid", Other},
    {"cursor", Other},
    {"table", Other},
};

}  // namespace

const KYRDataTypeTable& sqlServerTypes() {
  static const KYRDataTypeTable table(
      {"Transact-SQL Reference: Data types, Data type synonyms, sp_datatype_info; SQL Server 2025", rows});
  return table;
}
