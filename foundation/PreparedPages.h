// PreparedPages: pages of memory before they are written to.
#pragma once

#include <cstddef>

#include "foundation/Export.h"

/// Lets the system provide the pages of memory that is about to be filled whole, all by one call: page by
/// page, at the first write to each, takes a third longer. Does nothing for small pieces, and where the
/// system knows no such call or has no memory to give; the first writes then decide as ever.
KYR_EXPORT void preparePages(void* memory, std::size_t size) noexcept;
