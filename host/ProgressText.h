// ProgressText: the progress of an import in words.
#pragma once

#include "foundation/KYRImportProgress.h"
#include "foundation/KYRString.h"

namespace ProgressText {

/// "reading 34.2 of 101.3 MB, 33 %", or the name of a later phase; empty between two phases.
KYRString of(const KYRImportProgress::State& state);
/// The same without the bytes: "reading 33 %".
KYRString brieflyOf(const KYRImportProgress::State& state);

}  // namespace ProgressText
