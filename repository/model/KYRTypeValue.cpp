// The end of a type value.
#include "repository/model/KYRTypeValue.h"

KYRTypeValue::~KYRTypeValue() { dissolve(); }
