// InspectCatalogue: the messages of an import. The catalogue of the reader is part of this program, as it
// is of the plug-in.
#pragma once

#include <vector>

class KYRMessageLiteral;

/// All messages, in the order of the catalogue. Borrowed from it.
std::vector<const KYRMessageLiteral*> importMessages();
