// Type names of Microsoft Access: those of its table designer ("Short Text", "Yes/No"), the field sizes of
// a Number field, and those of its SQL with their many synonyms.
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using enum KYRDataTypeCode;

constexpr KYRTypeNameRow rows[] = {
    {"CHAR", Char},
    {"CHARACTER", Char},
    {"VARCHAR", Varchar},
    {"CHARACTER VARYING", Varchar},
    {"CHAR VARYING", Varchar},
    {"ALPHANUMERIC", Varchar},
    {"STRING", Varchar},
    {"Text", Varchar},
    {"Short Text", Varchar},
    {"Memo", LongVarchar},
    {"Long Text", LongVarchar},
    {"LONGTEXT", LongVarchar},
    {"LONGCHAR", LongVarchar},
    {"NOTE", LongVarchar},
    {"Rich Text", LongVarchar},
    {"Hyperlink", LongVarchar},
    {"NCHAR", WChar},
    {"NATIONAL CHAR", WChar},
    {"NATIONAL CHARACTER", WChar},
    {"NCHAR VARYING", WVarchar},
    {"NATIONAL CHAR VARYING", WVarchar},
    {"NATIONAL CHARACTER VARYING", WVarchar},
    {"NTEXT", WLongVarchar},
    {"BINARY", Binary},
    {"VARBINARY", Varbinary},
    {"BINARY VARYING", Varbinary},
    {"BIT VARYING", Varbinary},
    {"IMAGE", LongVarbinary},
    {"LONGBINARY", LongVarbinary},
    {"GENERAL", LongVarbinary},
    {"OLEOBJECT", LongVarbinary},
    {"OLE Object", LongVarbinary},

    {"BIT", Bit},
    {"BOOLEAN", Boolean},
    {"LOGICAL", Boolean},
    {"LOGICAL1", Boolean},
    {"YESNO", Boolean},
    {"Yes/No", Boolean},
    {"BYTE", TinyInt},
    {"TINYINT", TinyInt},
    {"INTEGER1", TinyInt},
    {"SMALLINT", SmallInt},
    {"SHORT", SmallInt},
    {"INTEGER2", SmallInt},
    {"INTEGER", Integer},
    {"INT", Integer},
    {"LONG", Integer},
    {"INTEGER4", Integer},
    {"Long Integer", Integer},
    {"COUNTER", Integer},
    {"AUTOINCREMENT", Integer},
    {"AutoNumber", Integer},
    {"BIGINT", BigInt},
    {"Large Number", BigInt},
    {"DECIMAL", Decimal},
    {"DEC", Decimal},
    {"MONEY", Decimal},
    {"CURRENCY", Decimal},
    {"NUMERIC", Numeric},
    {"REAL", Real},
    {"SINGLE", Real},
    {"FLOAT4", Real},
    {"IEEESINGLE", Real},
    // A Number of no stated size is a Double.
    {"DOUBLE", Double},
    {"DOUBLE PRECISION", Double},
    {"FLOAT8", Double},
    {"IEEEDOUBLE", Double},
    {"NUMBER", Double},
    {"FLOAT", Float},

    // There is one type for a date and a time, whatever it is called.
    {"DATETIME", Timestamp},
    {"DATE", Timestamp},
    {"TIME", Timestamp},
    {"TIMESTAMP", Timestamp},
    {"Date/Time", Timestamp},
    {"Date/Time Extended", Timestamp},

    {"GUID", Guid},
    {"UNIQUEIDENTIFIER", Guid},
    {"Replication ID", Guid},
    {"Attachment", Other},
    {"Calculated", Other},
};

}  // namespace

const KYRDataTypeTable& accessTypes() {
  static const KYRDataTypeTable table(
      {"Microsoft Access SQL Reference: SQL Data Types, Equivalent ANSI SQL Data Types; "
       "Access 2016 Help: Data types for Access desktop databases",
       rows});
  return table;
}
