// KYRDataTypeConstants: the names under which data stores and tools are known to the data type
// library. The texts go into saved models, so a name never changes once it is here.
#pragma once

/// Plain character constants: tables made while a module is loaded may use them at once.
class KYRDataTypeConstants {
 public:
  KYRDataTypeConstants() = delete;

  static constexpr const char* DATASTORE_ACCESS = "ACCESS";
  static constexpr const char* DATASTORE_DB2_UDB = "DB2_UDB";
  static constexpr const char* DATASTORE_DERBY = "DERBY";
  static constexpr const char* DATASTORE_INFORMIX = "INFORMIX";
  static constexpr const char* DATASTORE_INGRES = "INGRES";
  /// InterBase and Firebird, one dialect with extensions on both sides.
  static constexpr const char* DATASTORE_INTERBASE = "INTERBASE";
  static constexpr const char* DATASTORE_MICROSOFT_SQL_SERVER = "MICROSOFT_SQL_SERVER";
  static constexpr const char* DATASTORE_MYSQL = "MYSQL";
  static constexpr const char* DATASTORE_ORACLE = "ORACLE";
  static constexpr const char* DATASTORE_POSTGRESQL = "POSTGRESQL";
  /// SQL Anywhere, formerly Adaptive Server Anywhere.
  static constexpr const char* DATASTORE_SYBASE_AS_ANYWHERE = "SYBASE_AS_ANYWHERE";
  /// Adaptive Server Enterprise.
  static constexpr const char* DATASTORE_SYBASE_SQL_SERVER = "SYBASE_SQL_SERVER";
  /// Not a database: the primitive types of UML models.
  static constexpr const char* DATASTORE_OMG_UML_OMG_UML = "OMG_UML_OMG_UML";
  /// The same types, for the models of Enterprise Architect.
  static constexpr const char* DATASTORE_OMG_UML_OMG_UML_SEA = "OMG_UML_OMG_UML_SEA";

  /// The tool behind a model without a database.
  static constexpr const char* TOOL_OMG_UML = "OMG_UML";
  /// The tool behind a model of a database.
  static constexpr const char* TOOL_KYRGENERIC = "KYRGENERIC";
};
