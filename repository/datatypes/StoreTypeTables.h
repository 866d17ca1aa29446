// The tables of type names, each in a file of its own. Only the list of data stores asks for them.
#pragma once

#include "repository/datatypes/KYRDataTypeTable.h"

const KYRDataTypeTable& accessTypes();
const KYRDataTypeTable& db2Types();
const KYRDataTypeTable& derbyTypes();
const KYRDataTypeTable& informixTypes();
const KYRDataTypeTable& ingresTypes();
const KYRDataTypeTable& interBaseTypes();
const KYRDataTypeTable& mySqlTypes();
const KYRDataTypeTable& oracleTypes();
const KYRDataTypeTable& postgreSqlTypes();
const KYRDataTypeTable& sqlAnywhereTypes();
const KYRDataTypeTable& sqlServerTypes();
const KYRDataTypeTable& sybaseAseTypes();
const KYRDataTypeTable& umlTypes();
