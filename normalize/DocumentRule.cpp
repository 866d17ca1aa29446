// DocumentRule: the base of the rules has nothing of its own.
#include "normalize/DocumentRule.h"

DocumentRule::~DocumentRule() = default;
