// Type names of Derby, and of Cloudscape, from which it came and under whose name tools know it.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"CHAR", Char},
    {"CHARACTER", Char},
    {"VARCHAR", Varchar},
    {"CHAR VARYING", Varchar},
    {"CHARACTER VARYING", Varchar},
    {"LONG VARCHAR", LongVarchar},
    {"CLOB", Clob},
    {"CHAR LARGE OBJECT", Clob},
    {"CHARACTER LARGE OBJECT", Clob},
    {"CHAR() FOR BIT DATA", Binary},
    {"CHARACTER() FOR BIT DATA", Binary},
    {"VARCHAR() FOR BIT DATA", Varbinary},
    {"CHAR VARYING() FOR BIT DATA", Varbinary},
    {"CHARACTER VARYING() FOR BIT DATA", Varbinary},
    {"LONG VARCHAR FOR BIT DATA", LongVarbinary},
    {"BLOB", Blob},
    {"BINARY LARGE OBJECT", Blob},

    {"BOOLEAN", Boolean},
    {"SMALLINT", SmallInt},
    {"INTEGER", Integer},
    {"INT", Integer},
    {"BIGINT", BigInt},
    {"DECIMAL", Decimal},
    {"DEC", Decimal},
    {"NUMERIC", Numeric},
    {"REAL", Real},
    {"FLOAT", Float},
    {"DOUBLE", Double},
    {"DOUBLE PRECISION", Double},

    {"DATE", Date},
    {"TIME", Time},
    {"TIMESTAMP", Timestamp},
    {"XML", Xml},

    // Cloudscape only. Its BIT is a string of bits of fixed length.
    {"TINYINT", TinyInt},
    {"LONGINT", BigInt},
    {"BIT", Binary},
    {"BIT VARYING", Varbinary},
    {"LONG BIT VARYING", LongVarbinary},
    {"NCHAR", WChar},
    {"NATIONAL CHAR", WChar},
    {"NATIONAL CHARACTER", WChar},
    {"NVARCHAR", WVarchar},
    {"NCHAR VARYING", WVarchar},
    {"NATIONAL CHAR VARYING", WVarchar},
    {"NATIONAL CHARACTER VARYING", WVarchar},
    {"LONG NVARCHAR", WLongVarchar},
};

}  // namespace

const KYRDataTypeTable& derbyTypes() {
  static const KYRDataTypeTable table(
      {"Derby Reference Manual 10.16; Cloudscape Reference Manual 3.6", rows});
  return table;
}
