// The roots of the container family: their destructors stand here, so that the type information of
// the classes has one home.
#include "foundation/KYRContainer.h"

_KYRContainer::~_KYRContainer() = default;

KYRContainer::Iterator::~Iterator() = default;

KYRContainer::~KYRContainer() = default;
