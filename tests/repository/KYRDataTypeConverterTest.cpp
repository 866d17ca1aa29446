// What well-known type names become, store by store, as someone who knows the manuals would say it.
#include "repository/datatypes/KYRDataTypeConverter.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "repository/datatypes/KYRDataStores.h"
#include "repository/datatypes/KYRDataTypeConstants.h"

namespace {

using Constants = KYRDataTypeConstants;

class SilentLog : public KYRLog {
 public:
  void log(const KYRLogEvent& /*event*/) override { ++events; }
  int events = 0;
};

std::string convert(const char* store, const char* typeName) {
  SilentLog log;
  const KYRDataTypeConverter converter(log, KYRDataStoreVersion(store, 1, 0, 0), Constants::TOOL_KYRGENERIC);
  const std::string text = converter.getImportTypeName(typeName).getCharacters();
  EXPECT_EQ(log.events, 0);
  return text;
}

struct Expected {
  const char* typeName;
  const char* dataType;
};

void expectAll(const char* store, const std::vector<Expected>& rows) {
  for (const Expected& row : rows) {
    EXPECT_EQ(convert(store, row.typeName), row.dataType) << row.typeName << " of " << store;
  }
}

TEST(KYRDataTypeConverter, KnowsOracle) {
  expectAll(Constants::DATASTORE_ORACLE,
            {{"VARCHAR2", "SQL_VARCHAR"},
             {"VARCHAR2(30 CHAR)", "SQL_VARCHAR"},
             {"varchar2 (4000)", "SQL_VARCHAR"},
             {"NVARCHAR2(10)", "SQL_WVARCHAR"},
             {"CHAR(1)", "SQL_CHAR"},
             {"NCHAR", "SQL_WCHAR"},
             {"NUMBER", "SQL_NUMERIC"},
             {"NUMBER(10,2)", "SQL_NUMERIC"},
             {"NUMBER(*,0)", "SQL_NUMERIC"},
             {"INTEGER", "SQL_INTEGER"},
             {"FLOAT(126)", "SQL_FLOAT"},
             {"BINARY_FLOAT", "SQL_REAL"},
             {"BINARY_DOUBLE", "SQL_DOUBLE"},
             {"LONG", "SQL_LONGVARCHAR"},
             {"LONG RAW", "SQL_LONGVARBINARY"},
             {"RAW(16)", "SQL_VARBINARY"},
             {"CLOB", "SQL_CLOB"},
             {"NCLOB", "SQL_NCLOB"},
             {"BLOB", "SQL_BLOB"},
             {"BFILE", "SQL_BLOB"},
             {"DATE", "SQL_TIMESTAMP"},
             {"TIMESTAMP", "SQL_TIMESTAMP"},
             {"TIMESTAMP(6)", "SQL_TIMESTAMP"},
             {"TIMESTAMP WITH TIME ZONE", "SQL_TIMESTAMP_WITH_TIMEZONE"},
             {"TIMESTAMP(6) WITH TIME ZONE", "SQL_TIMESTAMP_WITH_TIMEZONE"},
             {"timestamp(3) with local time zone", "SQL_TIMESTAMP_WITH_TIMEZONE"},
             {"INTERVAL YEAR(2) TO MONTH", "SQL_INTERVAL"},
             {"INTERVAL DAY TO SECOND", "SQL_INTERVAL"},
             {"INTERVAL DAY(2) TO SECOND(6)", "SQL_INTERVAL"},
             {"INTERVAL DAY TO SECOND(6)", "SQL_INTERVAL"},
             {"ROWID", "SQL_ROWID"},
             {"UROWID(4000)", "SQL_ROWID"},
             {"SYS.XMLTYPE", "SQL_XML"},
             {"JSON", "SQL_JSON"},
             {"MDSYS.SDO_GEOMETRY", "SQL_SPATIAL"},
             {"PLS_INTEGER", "SQL_INTEGER"},
             {"BOOLEAN", "SQL_BOOLEAN"},
             {"SYS_REFCURSOR", "SQL_OTHER"},
             {"uniqueidentifier", "undefined"},
             {"TIME", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsDb2) {
  expectAll(Constants::DATASTORE_DB2_UDB, {{"GRAPHIC(10)", "SQL_WCHAR"},
                                           {"VARGRAPHIC(10)", "SQL_WVARCHAR"},
                                           {"LONG VARGRAPHIC", "SQL_WLONGVARCHAR"},
                                           {"DBCLOB(1M)", "SQL_NCLOB"},
                                           {"DECFLOAT", "SQL_DECFLOAT"},
                                           {"DECFLOAT(34)", "SQL_DECFLOAT"},
                                           {"DECIMAL(5,2)", "SQL_DECIMAL"},
                                           {"NUMERIC", "SQL_NUMERIC"},
                                           {"SMALLINT", "SQL_SMALLINT"},
                                           {"INTEGER", "SQL_INTEGER"},
                                           {"BIGINT", "SQL_BIGINT"},
                                           {"REAL", "SQL_REAL"},
                                           {"DOUBLE", "SQL_DOUBLE"},
                                           {"CHAR(8)", "SQL_CHAR"},
                                           {"CHAR(8) FOR BIT DATA", "SQL_BINARY"},
                                           {"VARCHAR () FOR BIT DATA", "SQL_VARBINARY"},
                                           {"LONG VARCHAR FOR BIT DATA", "SQL_LONGVARBINARY"},
                                           {"VARCHAR(254)", "SQL_VARCHAR"},
                                           {"CLOB(2G)", "SQL_CLOB"},
                                           {"BLOB(1048576)", "SQL_BLOB"},
                                           {"DATE", "SQL_DATE"},
                                           {"TIME", "SQL_TIME"},
                                           {"TIMESTAMP(12)", "SQL_TIMESTAMP"},
                                           {"TIMESTAMP(6) WITH TIME ZONE", "SQL_TIMESTAMP_WITH_TIMEZONE"},
                                           {"TIMESTAMP WITHOUT TIME ZONE", "SQL_TIMESTAMP"},
                                           {"XML", "SQL_XML"},
                                           {"ROWID", "SQL_ROWID"},
                                           {"BOOLEAN", "SQL_BOOLEAN"},
                                           {"DATALINK(200)", "SQL_OTHER"},
                                           {"DB2GSE.ST_POINT", "SQL_SPATIAL"},
                                           {"TINYINT", "undefined"},
                                           {"bytea", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsSqlServer) {
  expectAll(Constants::DATASTORE_MICROSOFT_SQL_SERVER, {{"nvarchar", "SQL_WVARCHAR"},
                                                        {"nvarchar(max)", "SQL_WVARCHAR"},
                                                        {"varchar(max)", "SQL_VARCHAR"},
                                                        {"nchar(10)", "SQL_WCHAR"},
                                                        {"ntext", "SQL_WLONGVARCHAR"},
                                                        {"text", "SQL_LONGVARCHAR"},
                                                        {"datetime", "SQL_TIMESTAMP"},
                                                        {"datetime2", "SQL_TIMESTAMP"},
                                                        {"datetime2(7)", "SQL_TIMESTAMP"},
                                                        {"smalldatetime", "SQL_TIMESTAMP"},
                                                        {"datetimeoffset(7)", "SQL_TIMESTAMP_WITH_TIMEZONE"},
                                                        {"date", "SQL_DATE"},
                                                        {"time(7)", "SQL_TIME"},
                                                        {"timestamp", "SQL_BINARY"},
                                                        {"rowversion", "SQL_BINARY"},
                                                        {"uniqueidentifier", "SQL_GUID"},
                                                        {"money", "SQL_DECIMAL"},
                                                        {"smallmoney", "SQL_DECIMAL"},
                                                        {"decimal(18, 0)", "SQL_DECIMAL"},
                                                        {"numeric(18, 0)", "SQL_NUMERIC"},
                                                        {"bit", "SQL_BIT"},
                                                        {"tinyint", "SQL_TINYINT"},
                                                        {"smallint", "SQL_SMALLINT"},
                                                        {"int", "SQL_INTEGER"},
                                                        {"int identity", "SQL_INTEGER"},
                                                        {"numeric(10,0) identity", "SQL_NUMERIC"},
                                                        {"bigint", "SQL_BIGINT"},
                                                        {"real", "SQL_REAL"},
                                                        {"float(53)", "SQL_FLOAT"},
                                                        {"binary(50)", "SQL_BINARY"},
                                                        {"varbinary(max)", "SQL_VARBINARY"},
                                                        {"image", "SQL_LONGVARBINARY"},
                                                        {"xml", "SQL_XML"},
                                                        {"sql_variant", "SQL_OTHER"},
                                                        {"hierarchyid", "SQL_OTHER"},
                                                        {"geography", "SQL_SPATIAL"},
                                                        {"boolean", "undefined"},
                                                        {"VARCHAR2", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsPostgreSql) {
  expectAll(Constants::DATASTORE_POSTGRESQL, {{"int4", "SQL_INTEGER"},
                                              {"int2", "SQL_SMALLINT"},
                                              {"int8", "SQL_BIGINT"},
                                              {"serial", "SQL_INTEGER"},
                                              {"bigserial", "SQL_BIGINT"},
                                              {"smallserial", "SQL_SMALLINT"},
                                              {"bytea", "SQL_VARBINARY"},
                                              {"json", "SQL_JSON"},
                                              {"jsonb", "SQL_JSON"},
                                              {"timestamptz", "SQL_TIMESTAMP_WITH_TIMEZONE"},
                                              {"timestamptz(3)", "SQL_TIMESTAMP_WITH_TIMEZONE"},
                                              {"timestamp(3) with time zone", "SQL_TIMESTAMP_WITH_TIMEZONE"},
                                              {"timestamp(3) without time zone", "SQL_TIMESTAMP"},
                                              {"timestamp without time zone", "SQL_TIMESTAMP"},
                                              {"time with time zone", "SQL_TIME_WITH_TIMEZONE"},
                                              {"timetz", "SQL_TIME_WITH_TIMEZONE"},
                                              {"time", "SQL_TIME"},
                                              {"date", "SQL_DATE"},
                                              {"interval", "SQL_INTERVAL"},
                                              {"interval day to second(3)", "SQL_INTERVAL"},
                                              {"boolean", "SQL_BOOLEAN"},
                                              {"bool", "SQL_BOOLEAN"},
                                              {"bit(8)", "SQL_BIT"},
                                              {"bit varying(8)", "SQL_VARBINARY"},
                                              {"character varying(30)", "SQL_VARCHAR"},
                                              {"varchar", "SQL_VARCHAR"},
                                              {"bpchar", "SQL_CHAR"},
                                              {"text", "SQL_LONGVARCHAR"},
                                              {"numeric(10,2)", "SQL_NUMERIC"},
                                              {"decimal", "SQL_DECIMAL"},
                                              {"money", "SQL_DECIMAL"},
                                              {"real", "SQL_REAL"},
                                              {"float8", "SQL_DOUBLE"},
                                              {"double precision", "SQL_DOUBLE"},
                                              {"uuid", "SQL_GUID"},
                                              {"xml", "SQL_XML"},
                                              {"inet", "SQL_OTHER"},
                                              {"tsvector", "SQL_OTHER"},
                                              {"tstzrange", "SQL_OTHER"},
                                              {"oid", "SQL_BIGINT"},
                                              {"point", "SQL_SPATIAL"},
                                              {"geometry(Point,4326)", "SQL_SPATIAL"},
                                              {"integer[]", "SQL_ARRAY"},
                                              {"varchar(30)[]", "SQL_ARRAY"},
                                              {"timestamp(3) with time zone[]", "SQL_ARRAY"},
                                              {"_text", "SQL_ARRAY"},
                                              {"nvarchar2", "undefined"},
                                              {"blob", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsMySql) {
  expectAll(Constants::DATASTORE_MYSQL, {{"mediumint", "SQL_INTEGER"},
                                         {"tinyint(1)", "SQL_TINYINT"},
                                         {"smallint(5) unsigned", "SQL_SMALLINT"},
                                         {"int(10) unsigned zerofill", "SQL_INTEGER"},
                                         {"int unsigned", "SQL_INTEGER"},
                                         {"bigint(20)", "SQL_BIGINT"},
                                         {"serial", "SQL_BIGINT"},
                                         {"enum", "SQL_VARCHAR"},
                                         {"enum('small','large (x)')", "SQL_VARCHAR"},
                                         {"set('a','b')", "SQL_VARCHAR"},
                                         {"year", "SQL_SMALLINT"},
                                         {"YEAR(4)", "SQL_SMALLINT"},
                                         {"bit(1)", "SQL_BIT"},
                                         {"bool", "SQL_BOOLEAN"},
                                         {"decimal(10,2) unsigned", "SQL_DECIMAL"},
                                         {"numeric", "SQL_NUMERIC"},
                                         {"float(7,4)", "SQL_FLOAT"},
                                         {"double", "SQL_DOUBLE"},
                                         {"real", "SQL_DOUBLE"},
                                         {"char(3)", "SQL_CHAR"},
                                         {"varchar(255)", "SQL_VARCHAR"},
                                         {"nvarchar(20)", "SQL_WVARCHAR"},
                                         {"text", "SQL_LONGVARCHAR"},
                                         {"longtext", "SQL_LONGVARCHAR"},
                                         {"tinyblob", "SQL_BLOB"},
                                         {"longblob", "SQL_BLOB"},
                                         {"varbinary(16)", "SQL_VARBINARY"},
                                         {"date", "SQL_DATE"},
                                         {"time", "SQL_TIME"},
                                         {"datetime(6)", "SQL_TIMESTAMP"},
                                         {"timestamp", "SQL_TIMESTAMP"},
                                         {"json", "SQL_JSON"},
                                         {"geometry", "SQL_SPATIAL"},
                                         {"uuid", "undefined"},
                                         {"String", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsAdaptiveServerEnterprise) {
  expectAll(Constants::DATASTORE_SYBASE_SQL_SERVER, {{"univarchar(20)", "SQL_WVARCHAR"},
                                                     {"unichar", "SQL_WCHAR"},
                                                     {"unitext", "SQL_WLONGVARCHAR"},
                                                     {"text", "SQL_LONGVARCHAR"},
                                                     {"image", "SQL_LONGVARBINARY"},
                                                     {"bigdatetime", "SQL_TIMESTAMP"},
                                                     {"datetime", "SQL_TIMESTAMP"},
                                                     {"bigtime", "SQL_TIME"},
                                                     {"date", "SQL_DATE"},
                                                     {"timestamp", "SQL_VARBINARY"},
                                                     {"unsigned int", "SQL_INTEGER"},
                                                     {"bit", "SQL_BIT"},
                                                     {"money", "SQL_DECIMAL"},
                                                     {"numeric(10,0) identity", "SQL_NUMERIC"},
                                                     {"uniqueidentifier", "undefined"},
                                                     {"datetime2", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsSqlAnywhere) {
  expectAll(Constants::DATASTORE_SYBASE_AS_ANYWHERE,
            {{"LONG VARCHAR", "SQL_LONGVARCHAR"},
             {"LONG NVARCHAR", "SQL_WLONGVARCHAR"},
             {"LONG BINARY", "SQL_LONGVARBINARY"},
             {"UNSIGNED BIGINT", "SQL_BIGINT"},
             {"INTEGER", "SQL_INTEGER"},
             {"VARBIT(8)", "SQL_VARBINARY"},
             {"BIT", "SQL_BIT"},
             {"TIMESTAMP", "SQL_TIMESTAMP"},
             {"TIMESTAMP WITH TIME ZONE", "SQL_TIMESTAMP_WITH_TIMEZONE"},
             {"SMALLMONEY", "SQL_DECIMAL"},
             {"UNIQUEIDENTIFIER", "SQL_GUID"},
             {"UNIQUEIDENTIFIERSTR", "SQL_CHAR"},
             {"XML", "SQL_XML"},
             {"ST_Point", "SQL_SPATIAL"},
             {"unitext", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsInformix) {
  expectAll(Constants::DATASTORE_INFORMIX, {{"SERIAL", "SQL_INTEGER"},
                                            {"SERIAL8", "SQL_BIGINT"},
                                            {"SERIAL(100)", "SQL_INTEGER"},
                                            {"INT8", "SQL_BIGINT"},
                                            {"LVARCHAR(500)", "SQL_LONGVARCHAR"},
                                            {"VARCHAR(20,5)", "SQL_VARCHAR"},
                                            {"NVARCHAR(20)", "SQL_WVARCHAR"},
                                            {"BYTE", "SQL_LONGVARBINARY"},
                                            {"TEXT", "SQL_LONGVARCHAR"},
                                            {"MONEY(16,2)", "SQL_DECIMAL"},
                                            {"SMALLFLOAT", "SQL_REAL"},
                                            {"FLOAT", "SQL_FLOAT"},
                                            {"BOOLEAN", "SQL_BOOLEAN"},
                                            {"DATE", "SQL_DATE"},
                                            {"DATETIME YEAR TO DAY", "SQL_DATE"},
                                            {"DATETIME YEAR TO SECOND", "SQL_TIMESTAMP"},
                                            {"datetime year to fraction(5)", "SQL_TIMESTAMP"},
                                            {"DATETIME DAY TO HOUR", "SQL_TIMESTAMP"},
                                            {"DATETIME HOUR TO SECOND", "SQL_TIME"},
                                            {"INTERVAL DAY(3) TO SECOND", "SQL_INTERVAL"},
                                            {"INTERVAL DAY(3) TO FRACTION(2)", "SQL_INTERVAL"},
                                            {"INTERVAL YEAR TO MONTH", "SQL_INTERVAL"},
                                            {"INTERVAL MONTH TO DAY", "undefined"},
                                            {"LIST(INTEGER NOT NULL)", "SQL_ARRAY"},
                                            {"ROW(a INT, b CHAR(3))", "SQL_OTHER"},
                                            {"BSON", "SQL_JSON"},
                                            {"TIMESTAMP", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsIngres) {
  expectAll(Constants::DATASTORE_INGRES, {{"integer4", "SQL_INTEGER"},
                                          {"integer1", "SQL_TINYINT"},
                                          {"float4", "SQL_REAL"},
                                          {"float8", "SQL_DOUBLE"},
                                          {"money", "SQL_DECIMAL"},
                                          {"c(10)", "SQL_CHAR"},
                                          {"text(20)", "SQL_VARCHAR"},
                                          {"long varchar", "SQL_LONGVARCHAR"},
                                          {"long nvarchar", "SQL_WLONGVARCHAR"},
                                          {"byte(8)", "SQL_BINARY"},
                                          {"byte varying(8)", "SQL_VARBINARY"},
                                          {"long byte", "SQL_LONGVARBINARY"},
                                          {"ansidate", "SQL_DATE"},
                                          {"ingresdate", "SQL_TIMESTAMP"},
                                          {"time(3) with time zone", "SQL_TIME_WITH_TIMEZONE"},
                                          {"timestamp with local time zone", "SQL_TIMESTAMP_WITH_TIMEZONE"},
                                          {"interval year to month", "SQL_INTERVAL"},
                                          {"object_key", "SQL_BINARY"},
                                          {"ipv4", "SQL_OTHER"},
                                          {"uuid", "SQL_GUID"},
                                          {"jsonb", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsInterBaseAndFirebird) {
  expectAll(Constants::DATASTORE_INTERBASE, {{"BLOB", "SQL_BLOB"},
                                             {"BLOB SUB_TYPE TEXT", "SQL_CLOB"},
                                             {"blob sub_type 1", "SQL_CLOB"},
                                             {"BLOB SUB_TYPE 0", "SQL_BLOB"},
                                             {"BLOB(80,1)", "SQL_BLOB"},
                                             {"CSTRING(20)", "SQL_VARCHAR"},
                                             {"NCHAR(20)", "SQL_WCHAR"},
                                             {"DOUBLE PRECISION", "SQL_DOUBLE"},
                                             {"DECFLOAT(16)", "SQL_DECFLOAT"},
                                             {"INT128", "SQL_NUMERIC"},
                                             {"NUMERIC(18,4)", "SQL_NUMERIC"},
                                             {"TIMESTAMP WITH TIME ZONE", "SQL_TIMESTAMP_WITH_TIMEZONE"},
                                             {"TIME WITH TIME ZONE", "SQL_TIME_WITH_TIMEZONE"},
                                             {"DATE", "SQL_DATE"},
                                             {"BOOLEAN", "SQL_BOOLEAN"},
                                             {"datetime", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsAccess) {
  expectAll(Constants::DATASTORE_ACCESS, {{"Short Text", "SQL_VARCHAR"},
                                          {"Text(50)", "SQL_VARCHAR"},
                                          {"Memo", "SQL_LONGVARCHAR"},
                                          {"Long Text", "SQL_LONGVARCHAR"},
                                          {"Yes/No", "SQL_BOOLEAN"},
                                          {"YESNO", "SQL_BOOLEAN"},
                                          {"Bit", "SQL_BIT"},
                                          {"Byte", "SQL_TINYINT"},
                                          {"Short", "SQL_SMALLINT"},
                                          {"Long", "SQL_INTEGER"},
                                          {"Long Integer", "SQL_INTEGER"},
                                          {"AutoNumber", "SQL_INTEGER"},
                                          {"COUNTER", "SQL_INTEGER"},
                                          {"Large Number", "SQL_BIGINT"},
                                          {"Currency", "SQL_DECIMAL"},
                                          {"Single", "SQL_REAL"},
                                          {"Double", "SQL_DOUBLE"},
                                          {"Number", "SQL_DOUBLE"},
                                          {"Date/Time", "SQL_TIMESTAMP"},
                                          {"DATETIME", "SQL_TIMESTAMP"},
                                          {"OLE Object", "SQL_LONGVARBINARY"},
                                          {"GUID", "SQL_GUID"},
                                          {"Hyperlink", "SQL_LONGVARCHAR"},
                                          {"Attachment", "SQL_OTHER"},
                                          {"clob", "undefined"}});
}

TEST(KYRDataTypeConverter, KnowsDerby) {
  expectAll(Constants::DATASTORE_DERBY, {{"VARCHAR(30)", "SQL_VARCHAR"},
                                         {"CHAR(8) FOR BIT DATA", "SQL_BINARY"},
                                         {"VARCHAR(8) FOR BIT DATA", "SQL_VARBINARY"},
                                         {"LONG VARCHAR", "SQL_LONGVARCHAR"},
                                         {"CLOB(1M)", "SQL_CLOB"},
                                         {"BLOB(1M)", "SQL_BLOB"},
                                         {"DECIMAL(5,2)", "SQL_DECIMAL"},
                                         {"DOUBLE PRECISION", "SQL_DOUBLE"},
                                         {"TIMESTAMP", "SQL_TIMESTAMP"},
                                         {"XML", "SQL_XML"},
                                         {"LONGINT", "SQL_BIGINT"},
                                         {"serial", "undefined"}});
}

TEST(KYRDataTypeConverter, BothUmlStoresKnowTheCommonNamesWithEveryPrefix) {
  const std::vector<Expected> common = {{"boolean", "SQL_BOOLEAN"},
                                        {"bool", "SQL_BOOLEAN"},
                                        {"byte", "SQL_TINYINT"},
                                        {"short", "SQL_SMALLINT"},
                                        {"smallint", "SQL_SMALLINT"},
                                        {"int", "SQL_INTEGER"},
                                        {"integer", "SQL_INTEGER"},
                                        {"long", "SQL_BIGINT"},
                                        {"bigint", "SQL_BIGINT"},
                                        {"real", "SQL_REAL"},
                                        {"unlimitednatural", "SQL_BIGINT"},
                                        {"float", "SQL_FLOAT"},
                                        {"double", "SQL_DOUBLE"},
                                        {"decimal", "SQL_DECIMAL"},
                                        {"numeric", "SQL_NUMERIC"},
                                        {"number", "SQL_NUMERIC"},
                                        {"char", "SQL_CHAR"},
                                        {"string", "SQL_VARCHAR"},
                                        {"varchar", "SQL_VARCHAR"},
                                        {"varchar2", "SQL_VARCHAR"},
                                        {"date", "SQL_DATE"},
                                        {"time", "SQL_TIME"},
                                        {"datetime", "SQL_TIMESTAMP"},
                                        {"timestamp", "SQL_TIMESTAMP"}};
  for (const char* store : {Constants::DATASTORE_OMG_UML_OMG_UML, Constants::DATASTORE_OMG_UML_OMG_UML_SEA}) {
    for (const char* prefix : {"", "E", "xs:", "xsd:", "java.lang."}) {
      for (const Expected& row : common) {
        EXPECT_EQ(convert(store, (std::string(prefix) + row.typeName).c_str()), row.dataType)
            << prefix << row.typeName << " of " << store;
      }
    }
  }
}

TEST(KYRDataTypeConverter, KnowsThePrimitiveNamesOfModelsAndLanguages) {
  expectAll(Constants::DATASTORE_OMG_UML_OMG_UML,
            {// UML and Ecore
             {"String", "SQL_VARCHAR"},
             {"Integer", "SQL_INTEGER"},
             {"Boolean", "SQL_BOOLEAN"},
             {"Real", "SQL_REAL"},
             {"UnlimitedNatural", "SQL_BIGINT"},
             {"EString", "SQL_VARCHAR"},
             {"EInt", "SQL_INTEGER"},
             {"EIntegerObject", "SQL_INTEGER"},
             {"EBigDecimal", "SQL_DECIMAL"},
             {"EByteArray", "SQL_VARBINARY"},
             // Java
             {"java.lang.Character", "SQL_CHAR"},
             {"java.math.BigDecimal", "SQL_DECIMAL"},
             {"java.util.Date", "SQL_TIMESTAMP"},
             {"java.time.LocalDate", "SQL_DATE"},
             {"ZonedDateTime", "SQL_TIMESTAMP_WITH_TIMEZONE"},
             {"byte[]", "SQL_VARBINARY"},
             // C# and Visual Basic
             {"sbyte", "SQL_TINYINT"},
             {"ushort", "SQL_SMALLINT"},
             {"uint", "SQL_INTEGER"},
             {"ulong", "SQL_BIGINT"},
             {"System.Int32", "SQL_INTEGER"},
             {"Int64", "SQL_BIGINT"},
             {"Guid", "SQL_GUID"},
             {"TimeSpan", "SQL_INTERVAL"},
             {"System.DateTime", "SQL_TIMESTAMP"},
             {"Single", "SQL_REAL"},
             // C++
             {"unsigned int", "SQL_INTEGER"},
             {"unsigned short int", "SQL_SMALLINT"},
             {"long long", "SQL_BIGINT"},
             {"long double", "SQL_DOUBLE"},
             {"wchar_t", "SQL_WCHAR"},
             {"std::string", "SQL_VARCHAR"},
             {"uint8_t", "SQL_TINYINT"},
             // XML Schema
             {"dateTime", "SQL_TIMESTAMP"},
             {"xsd:string", "SQL_VARCHAR"},
             {"xs:anyURI", "SQL_VARCHAR"},
             {"anyURI", "SQL_VARCHAR"},
             {"xs:base64Binary", "SQL_VARBINARY"},
             {"xsd:nonNegativeInteger", "SQL_INTEGER"},
             {"xs:unsignedLong", "SQL_BIGINT"},
             {"xs:duration", "SQL_INTERVAL"},
             {"xs:dateTimeStamp", "SQL_TIMESTAMP_WITH_TIMEZONE"},
             {"gYear", "SQL_VARCHAR"},
             // SQL as modellers write it
             {"VARCHAR2(30)", "SQL_VARCHAR"},
             {"NUMBER(10,2)", "SQL_NUMERIC"},
             {"varchar(30)", "SQL_VARCHAR"},
             {"timestamp(6) with time zone", "SQL_TIMESTAMP_WITH_TIMEZONE"},
             {"clob", "SQL_CLOB"}});
}

TEST(KYRDataTypeConverter, LeavesNamesThatModelsUseForTheirOwnThingsUndefined) {
  expectAll(Constants::DATASTORE_OMG_UML_OMG_UML, {{"void", "undefined"},
                                                   {"Object", "undefined"},
                                                   {"Class", "undefined"},
                                                   {"Set", "undefined"},
                                                   {"Sequence", "undefined"},
                                                   {"Order", "undefined"},
                                                   {"Event", "undefined"},
                                                   {"Element", "undefined"},
                                                   {"undefined", "undefined"},
                                                   {"xs:", "undefined"},
                                                   {"E", "undefined"},
                                                   {"java.lang.", "undefined"},
                                                   {"String[0..1]", "undefined"},
                                                   {"//String", "undefined"},
                                                   {"", "undefined"}});
}

TEST(KYRDataTypeConverter, ADatabaseDoesNotFallBackOnTheNamesOfUml) {
  for (const KYRKnownDataStore& store : getKnownDataStores()) {
    const bool isUml = std::string(store.name).starts_with("OMG_UML");
    for (const char* name :
         {"EString", "xs:string", "java.lang.Integer", "UnlimitedNatural", "std::string"}) {
      EXPECT_EQ(convert(store.name, name) == "undefined", !isUml) << name << " of " << store.name;
    }
  }
}

TEST(KYRDataTypeConverter, AStoreWithoutATableKnowsNoName) {
  for (const char* store : {"", "NO_SUCH_STORE"}) {
    EXPECT_EQ(convert(store, "VARCHAR"), "undefined");
    EXPECT_EQ(convert(store, "String"), "undefined");
  }
}

TEST(KYRDataTypeConverter, NeitherVersionNorToolChangesWhatANameMeans) {
  SilentLog log;
  for (const int version : {0, 1, 7, 12, 99}) {
    for (const char* tool : {Constants::TOOL_OMG_UML, Constants::TOOL_KYRGENERIC, ""}) {
      const KYRDataTypeConverter converter(log, KYRDataStoreVersion("ORACLE", version, 0, 0), tool);
      EXPECT_STREQ(converter.getImportTypeName("JSON").getCharacters(), "SQL_JSON");
      EXPECT_STREQ(converter.getTool().getCharacters(), tool);
    }
  }
}

TEST(KYRDataTypeConverter, KeepsAVersionOfItsOwn) {
  SilentLog log;
  auto version = std::make_unique<KYRDataStoreVersion>(Constants::DATASTORE_OMG_UML_OMG_UML_SEA, 1, 2, 3);
  const KYRDataTypeConverter converter(log, *version, Constants::TOOL_OMG_UML);
  version.reset();
  EXPECT_STREQ(converter.getTargetDataStore().getDataStore().getCharacters(), "OMG_UML_OMG_UML_SEA");
  EXPECT_EQ(converter.getTargetDataStore().getMajorVersion(), 1);
  EXPECT_EQ(converter.getTargetDataStore().getMinorVersion(), 2);
  EXPECT_EQ(converter.getTargetDataStore().getReleaseVersion(), 3);
}

TEST(KYRDataTypeConverter, TellsAnUndefinedAnswerFromAKnownOne) {
  SilentLog log;
  const KYRDataTypeConverter converter(log, KYRDataStoreVersion("MYSQL", 5, 0, 0),
                                       Constants::TOOL_KYRGENERIC);
  EXPECT_TRUE(KYRDataTypeConverter::isUndefined(converter.getImportTypeName("Customer")));
  EXPECT_FALSE(KYRDataTypeConverter::isUndefined(converter.getImportTypeName("Enum('x')")));
  EXPECT_TRUE(KYRDataTypeConverter::isUndefined(""));
}

}  // namespace
