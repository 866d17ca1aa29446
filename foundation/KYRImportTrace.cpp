// One pointer that is nearly always null.
#include "foundation/KYRImportTrace.h"

namespace {
KYRImportTrace* current = nullptr;
}

KYRImportTrace::~KYRImportTrace() = default;

void KYRImportTrace::setCurrent(KYRImportTrace* trace) noexcept { current = trace; }

KYRImportTrace* KYRImportTrace::getCurrent() noexcept { return current; }
