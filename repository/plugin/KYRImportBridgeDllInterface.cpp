// Bridges that import.
#include "repository/plugin/KYRImportBridgeDllInterface.h"

KYRImportBridgeDllInterface::~KYRImportBridgeDllInterface() = default;
