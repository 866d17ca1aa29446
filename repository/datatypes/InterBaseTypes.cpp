// Type names of InterBase and Firebird. The two grew from one code base; what only one of them has does
// not clash with the other, so one table serves both.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"CHAR", Char},
    {"CHARACTER", Char},
    {"VARCHAR", Varchar},
    {"CHAR VARYING", Varchar},
    {"CHARACTER VARYING", Varchar},
    // A text that ends in a zero, for external functions.
    {"CSTRING", Varchar},
    {"NCHAR", WChar},
    {"NATIONAL CHAR", WChar},
    {"NATIONAL CHARACTER", WChar},
    {"NCHAR VARYING", WVarchar},
    {"NATIONAL CHAR VARYING", WVarchar},
    {"NATIONAL CHARACTER VARYING", WVarchar},
    {"BINARY", Binary},
    {"VARBINARY", Varbinary},
    {"BINARY VARYING", Varbinary},
    {"BLOB", Blob},
    {"BLOB SUB_TYPE 0", Blob},
    {"BLOB SUB_TYPE BINARY", Blob},
    {"BINARY LARGE OBJECT", Blob},
    // Sub-type 1 is text. 80 is the segment size that tools write out.
    {"BLOB SUB_TYPE 1", Clob},
    {"BLOB SUB_TYPE TEXT", Clob},
    {"CHAR LARGE OBJECT", Clob},
    {"CHARACTER LARGE OBJECT", Clob},
    {"BLOB SUB_TYPE 1 SEGMENT SIZE 80", Clob},
    {"BLOB SUB_TYPE TEXT SEGMENT SIZE 80", Clob},
    {"BLOB SUB_TYPE 0 SEGMENT SIZE 80", Blob},
    {"BLOB SUB_TYPE BINARY SEGMENT SIZE 80", Blob},

    {"BOOLEAN", Boolean},
    {"SMALLINT", SmallInt},
    {"INTEGER", Integer},
    {"INT", Integer},
    {"BIGINT", BigInt},
    // No integer code is this wide.
    {"INT128", Numeric},
    {"DECIMAL", Decimal},
    {"DEC", Decimal},
    {"NUMERIC", Numeric},
    {"REAL", Real},
    {"FLOAT", Float},
    {"DOUBLE PRECISION", Double},
    {"LONG FLOAT", Double},
    {"DECFLOAT", DecFloat},

    {"DATE", Date},
    {"TIME", Time},
    {"TIME WITHOUT TIME ZONE", Time},
    {"TIME WITH TIME ZONE", TimeWithTimeZone},
    {"TIMESTAMP", Timestamp},
    {"TIMESTAMP WITHOUT TIME ZONE", Timestamp},
    {"TIMESTAMP WITH TIME ZONE", TimestampWithTimeZone},
};

}  // namespace

const KYRDataTypeTable& interBaseTypes() {
  static const KYRDataTypeTable table(
      {"Firebird 5.0 Language Reference; InterBase 2020 Data Definition Guide, Language Reference", rows});
  return table;
}
