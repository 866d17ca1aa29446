// The two descriptions of the bridge: help texts that a host shows its users before an import.
//
// They are plain characters, ready before any object of the catalogue is built.
#pragma once

namespace BridgeDescriptions {

/// For files of any tool: what is imported, and how each supported tool exports a file.
extern const char general[];
/// The same for files of MagicDraw.
extern const char magicDraw[];

}  // namespace BridgeDescriptions
