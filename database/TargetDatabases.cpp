// The table of known database systems. A profile of MagicDraw names no version, so its rows have
// version 1, also where Enterprise Architect knows better. Names are compared exactly, and the two
// tools do write "MySql" and "MySQL".
#include "database/TargetDatabases.h"

#include "repository/datatypes/KYRDataTypeConstants.h"

using Stores = KYRDataTypeConstants;

targetDatabaseInfo::targetDatabaseInfo(const char* dataStore, int version, const char* nameOfEA,
                                       const char* nameOfMagicDraw)
    : KYRDataStoreVersion(KYRString::borrowed(dataStore), version, 0, 0),
      eaName(nameOfEA),
      magicDrawName(nameOfMagicDraw) {}

const targetDatabaseInfo targetDatabases[] = {
    {Stores::DATASTORE_DB2_UDB, 1, "DB2", "DB2"},
    {Stores::DATASTORE_INTERBASE, 1, "Firebird", ""},
    {Stores::DATASTORE_INFORMIX, 1, "Informix", ""},
    {Stores::DATASTORE_INGRES, 1, "Ingres", ""},
    {Stores::DATASTORE_INTERBASE, 1, "InterBase", ""},
    {Stores::DATASTORE_ACCESS, 1, "", "MSAccess"},
    {Stores::DATASTORE_ACCESS, 11, "MSAccess", ""},
    {Stores::DATASTORE_ACCESS, 12, "MSAccess 2007", ""},
    {Stores::DATASTORE_MYSQL, 1, "", "MySQL"},
    {Stores::DATASTORE_MYSQL, 5, "MySql", ""},
    {Stores::DATASTORE_ORACLE, 1, "", "Oracle Extensions Profile"},
    {Stores::DATASTORE_ORACLE, 12, "Oracle", ""},
    {Stores::DATASTORE_POSTGRESQL, 1, "PostgreSQL", "PostgreSQL"},
    {Stores::DATASTORE_MICROSOFT_SQL_SERVER, 1, "", "MSServer"},
    {Stores::DATASTORE_MICROSOFT_SQL_SERVER, 7, "SQLServer7", ""},
    {Stores::DATASTORE_MICROSOFT_SQL_SERVER, 8, "SQL Server 2000", ""},
    {Stores::DATASTORE_MICROSOFT_SQL_SERVER, 9, "SQL Server 2005", ""},
    {Stores::DATASTORE_MICROSOFT_SQL_SERVER, 10, "SQL Server 2008", ""},
    {Stores::DATASTORE_MICROSOFT_SQL_SERVER, 11, "SQL Server 2012", ""},
    {Stores::DATASTORE_SYBASE_AS_ANYWHERE, 1, "Sybase", "Sybase"},
    {Stores::DATASTORE_SYBASE_SQL_SERVER, 1, "Sybase ASE", ""},
    {Stores::DATASTORE_DERBY, 1, "", "Cloudscape"},
    {"", 0, nullptr, nullptr},
};
