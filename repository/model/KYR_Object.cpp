// The destructor stands here so that the class has one home.
#include "repository/model/KYR_Object.h"

KYR_Object::~KYR_Object() = default;
