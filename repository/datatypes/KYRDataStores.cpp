// The list of the data stores. A new store is a constant, a file of rows and a line here.
#include "repository/datatypes/KYRDataStores.h"

#include "repository/datatypes/KYRDataTypeConstants.h"
#include "repository/datatypes/StoreTypeTables.h"

namespace {

using Constants = KYRDataTypeConstants;

constexpr KYRKnownDataStore knownDataStores[] = {
    {Constants::DATASTORE_ACCESS, "Microsoft Access", &accessTypes},
    {Constants::DATASTORE_DB2_UDB, "IBM Db2", &db2Types},
    {Constants::DATASTORE_DERBY, "Apache Derby, Cloudscape", &derbyTypes},
    {Constants::DATASTORE_INFORMIX, "IBM Informix", &informixTypes},
    {Constants::DATASTORE_INGRES, "Ingres", &ingresTypes},
    {Constants::DATASTORE_INTERBASE, "InterBase, Firebird", &interBaseTypes},
    {Constants::DATASTORE_MICROSOFT_SQL_SERVER, "Microsoft SQL Server", &sqlServerTypes},
    {Constants::DATASTORE_MYSQL, "MySQL", &mySqlTypes},
    {Constants::DATASTORE_ORACLE, "Oracle Database", &oracleTypes},
    {Constants::DATASTORE_POSTGRESQL, "PostgreSQL", &postgreSqlTypes},
    {Constants::DATASTORE_SYBASE_AS_ANYWHERE, "SQL Anywhere", &sqlAnywhereTypes},
    {Constants::DATASTORE_SYBASE_SQL_SERVER, "Adaptive Server Enterprise", &sybaseAseTypes},
    {Constants::DATASTORE_OMG_UML_OMG_UML, "UML primitive types", &umlTypes},
    {Constants::DATASTORE_OMG_UML_OMG_UML_SEA, "UML primitive types (Enterprise Architect)", &umlTypes},
};

}  // namespace

std::span<const KYRKnownDataStore> getKnownDataStores() noexcept { return knownDataStores; }

const KYRKnownDataStore* findKnownDataStore(const KYRString& name) noexcept {
  for (const KYRKnownDataStore& store : knownDataStores) {
    if (equalsIgnoringCase(store.name, name.view())) return &store;
  }
  return nullptr;
}
