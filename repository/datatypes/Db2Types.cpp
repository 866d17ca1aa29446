// Type names of Db2 on its three platforms: Linux, UNIX and Windows, z/OS, and i. Names that only one
// of them has stand here as well, since a file does not tell the platform.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"CHAR", Char},
    {"CHARACTER", Char},
    {"BPCHAR", Char},
    {"CHAR() FOR SBCS DATA", Char},
    {"CHAR() FOR MIXED DATA", Char},
    {"CHARACTER() FOR SBCS DATA", Char},
    {"CHARACTER() FOR MIXED DATA", Char},
    {"VARCHAR", Varchar},
    {"CHAR VARYING", Varchar},
    {"CHARACTER VARYING", Varchar},
    {"VARCHAR2", Varchar},
    {"VARCHAR() FOR SBCS DATA", Varchar},
    {"VARCHAR() FOR MIXED DATA", Varchar},
    {"LONG VARCHAR", LongVarchar},
    {"CLOB", Clob},
    {"CHAR LARGE OBJECT", Clob},
    {"CHARACTER LARGE OBJECT", Clob},
    // Double-byte characters: the graphic types are the national ones under another name.
    {"GRAPHIC", WChar},
    {"NCHAR", WChar},
    {"NATIONAL CHAR", WChar},
    {"NATIONAL CHARACTER", WChar},
    {"VARGRAPHIC", WVarchar},
    {"GRAPHIC VARYING", WVarchar},
    {"NVARCHAR", WVarchar},
    {"NVARCHAR2", WVarchar},
    {"NCHAR VARYING", WVarchar},
    {"NATIONAL CHAR VARYING", WVarchar},
    {"NATIONAL CHARACTER VARYING", WVarchar},
    {"LONG VARGRAPHIC", WLongVarchar},
    {"DBCLOB", NClob},
    {"NCLOB", NClob},
    {"NCHAR LARGE OBJECT", NClob},
    {"NATIONAL CHARACTER LARGE OBJECT", NClob},
    {"BINARY", Binary},
    {"CHAR() FOR BIT DATA", Binary},
    {"CHARACTER() FOR BIT DATA", Binary},
    {"VARBINARY", Varbinary},
    {"BINARY VARYING", Varbinary},
    {"RAW", Varbinary},
    {"VARCHAR() FOR BIT DATA", Varbinary},
    {"CHAR VARYING() FOR BIT DATA", Varbinary},
    {"CHARACTER VARYING() FOR BIT DATA", Varbinary},
    {"LONG VARCHAR FOR BIT DATA", LongVarbinary},
    {"BLOB", Blob},
    {"BINARY LARGE OBJECT", Blob},

    {"SMALLINT", SmallInt},
    {"INT2", SmallInt},
    {"INTEGER", Integer},
    {"INT", Integer},
    {"INT4", Integer},
    {"BIGINT", BigInt},
    {"INT8", BigInt},
    {"DECIMAL", Decimal},
    {"DEC", Decimal},
    {"NUMERIC", Numeric},
    {"NUM", Numeric},
    {"NUMBER", Numeric},
    {"REAL", Real},
    {"FLOAT4", Real},
    {"FLOAT", Float},
    {"DOUBLE", Double},
    {"DOUBLE PRECISION", Double},
    {"FLOAT8", Double},
    {"DECFLOAT", DecFloat},
    {"BOOLEAN", Boolean},
    {"BOOL", Boolean},

    {"DATE", Date},
    {"TIME", Time},
    {"TIMESTAMP", Timestamp},
    {"TIMESTAMP() WITHOUT TIME ZONE", Timestamp},
    {"TIMESTAMP() WITH TIME ZONE", TimestampWithTimeZone},

    {"XML", Xml},
    {"ROWID", RowId},
    {"ARRAY", Array},
    // The label of a row in label-based access control, stored as bytes.
    {"DB2SECURITYLABEL", Varbinary},
    {"SYSPROC.DB2SECURITYLABEL", Varbinary},
    {"ST_GEOMETRY", Spatial},
    {"ST_POINT", Spatial},
    {"ST_LINESTRING", Spatial},
    {"ST_POLYGON", Spatial},
    {"ST_GEOMCOLLECTION", Spatial},
    {"ST_MULTIPOINT", Spatial},
    {"ST_MULTILINESTRING", Spatial},
    {"ST_MULTIPOLYGON", Spatial},
    {"DB2GSE.ST_GEOMETRY", Spatial},
    {"DB2GSE.ST_POINT", Spatial},
    {"DB2GSE.ST_LINESTRING", Spatial},
    {"DB2GSE.ST_POLYGON", Spatial},
    {"DB2GSE.ST_GEOMCOLLECTION", Spatial},
    {"DB2GSE.ST_MULTIPOINT", Spatial},
    {"DB2GSE.ST_MULTILINESTRING", Spatial},
    {"DB2GSE.ST_MULTIPOLYGON", Spatial},
    {"DATALINK", Other},
    {"CURSOR", Other},
    {"ROW", Other},
    {"REF", Other},
};

}  // namespace

const KYRDataTypeTable& db2Types() {
  static const KYRDataTypeTable table(
      {"Db2 11.5 for Linux, UNIX, and Windows SQL Reference; Db2 13 for z/OS SQL Reference; "
       "Db2 for i 7.5 SQL Reference",
       rows});
  return table;
}
