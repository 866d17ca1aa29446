// Type names of Oracle Database: the built-in types, the ANSI and DB2 names it accepts, the types it
// supplies, and the predefined types of PL/SQL, which stand in the signatures of stored programs.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"VARCHAR2", Varchar},
    {"VARCHAR", Varchar},
    {"CHAR VARYING", Varchar},
    {"CHARACTER VARYING", Varchar},
    {"STRING", Varchar},
    {"CHAR", Char},
    {"CHARACTER", Char},
    {"NCHAR", WChar},
    {"NATIONAL CHAR", WChar},
    {"NATIONAL CHARACTER", WChar},
    {"NVARCHAR2", WVarchar},
    {"NCHAR VARYING", WVarchar},
    {"NATIONAL CHAR VARYING", WVarchar},
    {"NATIONAL CHARACTER VARYING", WVarchar},
    {"LONG", LongVarchar},
    {"LONG VARCHAR", LongVarchar},
    {"CLOB", Clob},
    {"NCLOB", NClob},
    {"BLOB", Blob},
    // A locator of a file beside the database, read like a BLOB.
    {"BFILE", Blob},
    {"RAW", Varbinary},
    {"LONG RAW", LongVarbinary},

    {"NUMBER", Numeric},
    {"NUMERIC", Numeric},
    {"DECIMAL", Decimal},
    {"DEC", Decimal},
    {"INTEGER", Integer},
    {"INT", Integer},
    {"SMALLINT", SmallInt},
    {"FLOAT", Float},
    {"DOUBLE PRECISION", Double},
    {"REAL", Real},
    {"BINARY_FLOAT", Real},
    {"BINARY_DOUBLE", Double},
    {"PLS_INTEGER", Integer},
    {"BINARY_INTEGER", Integer},
    {"SIMPLE_INTEGER", Integer},
    {"NATURAL", Integer},
    {"NATURALN", Integer},
    {"POSITIVE", Integer},
    {"POSITIVEN", Integer},
    {"SIGNTYPE", TinyInt},
    {"SIMPLE_FLOAT", Real},
    {"SIMPLE_DOUBLE", Double},
    {"BOOLEAN", Boolean},
    {"BOOL", Boolean},

    // It holds hours, minutes and seconds too.
    {"DATE", Timestamp},
    {"TIMESTAMP", Timestamp},
    {"TIMESTAMP() WITH TIME ZONE", TimestampWithTimeZone},
    {"TIMESTAMP() WITH LOCAL TIME ZONE", TimestampWithTimeZone},
    // The forms of one field answer for a name that ends with its second precision, as in
    // "INTERVAL DAY(2) TO SECOND(6)".
    {"INTERVAL", Interval},
    {"INTERVAL YEAR", Interval},
    {"INTERVAL DAY", Interval},
    {"INTERVAL YEAR() TO MONTH", Interval},
    {"INTERVAL DAY() TO SECOND", Interval},
    // PL/SQL: the same types with the greatest precision.
    {"TIMESTAMP_UNCONSTRAINED", Timestamp},
    {"TIMESTAMP_TZ_UNCONSTRAINED", TimestampWithTimeZone},
    {"TIMESTAMP_LTZ_UNCONSTRAINED", TimestampWithTimeZone},
    {"YMINTERVAL_UNCONSTRAINED", Interval},
    {"DSINTERVAL_UNCONSTRAINED", Interval},

    {"ROWID", RowId},
    {"UROWID", RowId},
    {"JSON", Json},
    {"XMLTYPE", Xml},
    {"SYS.XMLTYPE", Xml},
    {"VECTOR", Array},
    {"VARRAY", Array},
    {"VARYING ARRAY", Array},
    {"SDO_GEOMETRY", Spatial},
    {"SDO_TOPO_GEOMETRY", Spatial},
    {"SDO_GEORASTER", Spatial},
    {"MDSYS.SDO_GEOMETRY", Spatial},
    {"MDSYS.SDO_TOPO_GEOMETRY", Spatial},
    {"MDSYS.SDO_GEORASTER", Spatial},
    {"ANYDATA", Other},
    {"ANYTYPE", Other},
    {"ANYDATASET", Other},
    {"SYS.ANYDATA", Other},
    {"SYS.ANYTYPE", Other},
    {"SYS.ANYDATASET", Other},
    {"URITYPE", Other},
    {"DBURITYPE", Other},
    {"XDBURITYPE", Other},
    {"HTTPURITYPE", Other},
    {"REF", Other},
    {"REF CURSOR", Other},
    {"SYS_REFCURSOR", Other},
};

}  // namespace

const KYRDataTypeTable& oracleTypes() {
  static const KYRDataTypeTable table(
      {"Oracle Database SQL Language Reference, Oracle Database PL/SQL Language Reference, 23ai", rows});
  return table;
}
