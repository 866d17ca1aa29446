// KYRDataTypeCode: the closed list of data types that the repository knows.
//
// Every type name of every data store maps onto one of these. They follow the type codes of the SQL
// call-level interface (ISO/IEC 9075-3, and the codes that drivers added to it); models hold them as
// texts, such as "SQL_VARCHAR". What stands for none of them is "undefined".
#pragma once

#include "foundation/Export.h"
#include "foundation/KYRString.h"

enum class KYRDataTypeCode : unsigned char {
  Char,
  Varchar,
  LongVarchar,
  WChar,
  WVarchar,
  WLongVarchar,
  Clob,
  NClob,
  Binary,
  Varbinary,
  LongVarbinary,
  Blob,
  Boolean,
  Bit,
  TinyInt,
  SmallInt,
  Integer,
  BigInt,
  Decimal,
  Numeric,
  Real,
  Float,
  Double,
  DecFloat,
  Date,
  Time,
  TimeWithTimeZone,
  Timestamp,
  TimestampWithTimeZone,
  Interval,
  Guid,
  Xml,
  Json,
  Array,
  RowId,
  Spatial,
  /// A type that exists but has no code of its own: network addresses, ranges, cursors.
  Other
};

/// Number of codes; they run from 0 to one below it.
constexpr int dataTypeCodeCount = static_cast<int>(KYRDataTypeCode::Other) + 1;

/// The text of a code, such as "SQL_VARCHAR". It lives as long as the process.
KYR_EXPORT const KYRString& getDataTypeText(KYRDataTypeCode code);
/// "undefined", the text that stands for no known type.
KYR_EXPORT const KYRString& getUndefinedDataType();
/// Whether the data type text stands for no known type: "undefined", the empty text, and all that is
/// not spelled exactly as one of the codes.
KYR_EXPORT bool isUndefined(const KYRString& dataType);
/// The logical name of a data type: its text without the prefix, so "VARCHAR" for "SQL_VARCHAR", and
/// "undefined" where `isUndefined` holds. It lives as long as the process.
KYR_EXPORT const KYRString& getDefaultLogicalName(const KYRString& dataType);
