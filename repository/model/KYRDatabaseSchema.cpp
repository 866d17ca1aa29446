// The end of a schema.
#include "repository/model/KYRDatabaseSchema.h"

KYRDatabaseSchema::~KYRDatabaseSchema() { dissolve(); }
