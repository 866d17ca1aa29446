// Soak: whether a test goes through all of its cases or through a part that fits into every run.
#pragma once

#include <cstddef>
#include <cstdlib>

/// `make soak` sets KYR_SOAK.
inline bool isSoaking() { return std::getenv("KYR_SOAK") != nullptr; }

/// The step from one case to the next: every one when soaking.
inline std::size_t stepOf(std::size_t thinned) { return isSoaking() ? 1 : thinned; }
