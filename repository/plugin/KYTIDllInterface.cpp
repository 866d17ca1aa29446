// Root of the plug-in classes.
#include "repository/plugin/KYTIDllInterface.h"

KYTIDllInterface::~KYTIDllInterface() = default;
