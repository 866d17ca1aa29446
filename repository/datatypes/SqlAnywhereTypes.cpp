// Type names of SQL Anywhere, with the compatibility types that it defines as domains.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"CHAR", Char},
    {"CHARACTER", Char},
    {"VARCHAR", Varchar},
    {"CHAR VARYING", Varchar},
    {"CHARACTER VARYING", Varchar},
    {"SYSNAME", Varchar},
    {"LONG VARCHAR", LongVarchar},
    {"TEXT", LongVarchar},
    {"NCHAR", WChar},
    {"NATIONAL CHAR", WChar},
    {"NATIONAL CHARACTER", WChar},
    {"NVARCHAR", WVarchar},
    {"NCHAR VARYING", WVarchar},
    {"NATIONAL CHAR VARYING", WVarchar},
    {"NATIONAL CHARACTER VARYING", WVarchar},
    {"LONG NVARCHAR", WLongVarchar},
    {"NTEXT", WLongVarchar},
    {"BINARY", Binary},
    {"VARBINARY", Varbinary},
    {"BINARY VARYING", Varbinary},
    {"LONG BINARY", LongVarbinary},
    {"IMAGE", LongVarbinary},
    // Arrays of bits.
    {"VARBIT", Varbinary},
    {"BIT VARYING", Varbinary},
    {"LONG VARBIT", LongVarbinary},
    {"LONG BIT VARYING", LongVarbinary},

    {"BIT", Bit},
    {"OLDBIT", Bit},
    // Unsigned types map as the signed ones of their width: the codes have no sign.
    {"TINYINT", TinyInt},
    {"UNSIGNED TINYINT", TinyInt},
    {"SMALLINT", SmallInt},
    {"UNSIGNED SMALLINT", SmallInt},
    {"INTEGER", Integer},
    {"INT", Integer},
    {"UNSIGNED INTEGER", Integer},
    {"UNSIGNED INT", Integer},
    {"BIGINT", BigInt},
    {"UNSIGNED BIGINT", BigInt},
    {"DECIMAL", Decimal},
    {"DEC", Decimal},
    {"MONEY", Decimal},
    {"SMALLMONEY", Decimal},
    {"NUMERIC", Numeric},
    {"REAL", Real},
    {"FLOAT", Float},
    {"DOUBLE", Double},
    {"DOUBLE PRECISION", Double},

    {"DATE", Date},
    {"TIME", Time},
    {"TIMESTAMP", Timestamp},
    {"DATETIME", Timestamp},
    {"SMALLDATETIME", Timestamp},
    {"TIMESTAMP WITH TIME ZONE", TimestampWithTimeZone},
    {"DATETIMEOFFSET", TimestampWithTimeZone},

    {"UNIQUEIDENTIFIER", Guid},
    // The same value as text of 36 characters.
    {"UNIQUEIDENTIFIERSTR", Char},
    {"XML", Xml},
    {"ARRAY", Array},
    {"ROW", Other},
    {"ST_GEOMETRY", Spatial},
    {"ST_POINT", Spatial},
    {"ST_CURVE", Spatial},
    {"ST_LINESTRING", Spatial},
    {"ST_CIRCULARSTRING", Spatial},
    {"ST_COMPOUNDCURVE", Spatial},
    {"ST_SURFACE", Spatial},
    {"ST_CURVEPOLYGON", Spatial},
    {"ST_POLYGON", Spatial},
    {"ST_GEOMCOLLECTION", Spatial},
    {"ST_MULTIPOINT", Spatial},
    {"ST_MULTICURVE", Spatial},
    {"ST_MULTILINESTRING", Spatial},
    {"ST_MULTISURFACE", Spatial},
    {"ST_MULTIPOLYGON", Spatial},
};

}  // namespace

const KYRDataTypeTable& sqlAnywhereTypes() {
  static const KYRDataTypeTable table({"SAP SQL Anywhere 17 SQL Reference: SQL Data Types", rows});
  return table;
}
