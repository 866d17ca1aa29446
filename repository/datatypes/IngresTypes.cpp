// Type names of Ingres, with the numbered names of its numeric types ("integer4") and the two meanings
// that a date can have in it.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"char", Char},
    {"character", Char},
    {"c", Char},
    // A text column holds a varying number of characters up to its length.
    {"varchar", Varchar},
    {"character varying", Varchar},
    {"char varying", Varchar},
    {"text", Varchar},
    {"long varchar", LongVarchar},
    {"clob", Clob},
    {"character large object", Clob},
    {"char large object", Clob},
    {"nchar", WChar},
    {"national char", WChar},
    {"national character", WChar},
    {"nvarchar", WVarchar},
    {"nchar varying", WVarchar},
    {"national char varying", WVarchar},
    {"national character varying", WVarchar},
    {"long nvarchar", WLongVarchar},
    {"nclob", NClob},
    {"nchar large object", NClob},
    {"national character large object", NClob},
    // A byte column is a string of bytes of fixed length.
    {"byte", Binary},
    {"binary", Binary},
    {"byte varying", Varbinary},
    {"varbyte", Varbinary},
    {"varbinary", Varbinary},
    {"binary varying", Varbinary},
    {"long byte", LongVarbinary},
    {"blob", Blob},
    {"binary large object", Blob},

    {"boolean", Boolean},
    {"tinyint", TinyInt},
    {"integer1", TinyInt},
    {"int1", TinyInt},
    {"i1", TinyInt},
    {"smallint", SmallInt},
    {"integer2", SmallInt},
    {"int2", SmallInt},
    {"i2", SmallInt},
    {"integer", Integer},
    {"int", Integer},
    {"integer4", Integer},
    {"int4", Integer},
    {"i4", Integer},
    {"bigint", BigInt},
    {"integer8", BigInt},
    {"int8", BigInt},
    {"i8", BigInt},
    {"decimal", Decimal},
    {"dec", Decimal},
    {"money", Decimal},
    {"numeric", Numeric},
    {"real", Real},
    {"float4", Real},
    {"f4", Real},
    {"float", Float},
    {"double precision", Double},
    {"float8", Double},
    {"f8", Double},

    // Which of the two a plain date is, an installation decides; SQL means the first.
    {"date", Date},
    {"ansidate", Date},
    {"ingresdate", Timestamp},
    {"time", Time},
    {"time() without time zone", Time},
    {"time() with time zone", TimeWithTimeZone},
    {"time() with local time zone", TimeWithTimeZone},
    {"timestamp", Timestamp},
    {"timestamp() without time zone", Timestamp},
    {"timestamp() with time zone", TimestampWithTimeZone},
    {"timestamp() with local time zone", TimestampWithTimeZone},
    {"interval year to month", Interval},
    {"interval day to second", Interval},

    {"uuid", Guid},
    // Keys that the server hands out, 8 and 16 bytes.
    {"table_key", Binary},
    {"object_key", Binary},
    {"geometry", Spatial},
    {"point", Spatial},
    {"linestring", Spatial},
    {"polygon", Spatial},
    {"multipoint", Spatial},
    {"multilinestring", Spatial},
    {"multipolygon", Spatial},
    {"geometrycollection", Spatial},
    {"nbr", Spatial},
    {"ipv4", Other},
    {"ipv6", Other},
};

}  // namespace

const KYRDataTypeTable& ingresTypes() {
  static const KYRDataTypeTable table(
      {"Actian X 12.0 and Ingres 11.1 SQL Reference Guide: Data Types", rows});
  return table;
}
