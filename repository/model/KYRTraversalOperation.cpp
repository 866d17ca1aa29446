// The destructor stands here so that the class has one home.
#include "repository/model/KYRTraversalOperation.h"

KYRTraversalOperation::~KYRTraversalOperation() = default;
