// targetDatabases: the database management systems that the two tools with database profiles know,
// and the data stores that stand for them here.
#pragma once

#include "repository/datatypes/KYRDataStoreVersion.h"

/// One system as the tools name it. A name is empty where the tool has none for it.
class targetDatabaseInfo : public KYRDataStoreVersion {
 public:
  /// The texts must outlive the object.
  targetDatabaseInfo(const char* dataStore, int version, const char* eaName, const char* magicDrawName);

  const char* eaName;         // as Enterprise Architect names the system
  const char* magicDrawName;  // as MagicDraw names it
};

/// Read from the top; the first row of a name counts. Ends with a row whose two names are null.
extern const targetDatabaseInfo targetDatabases[];
