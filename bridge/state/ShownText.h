// shownText: a text of a UML object for a repository object to take over.
#pragma once

#include "foundation/KYRString.h"

/// What the reader has taken from the file only shows the characters of its document, and goes on doing
/// so in the repository: the store model keeps them (KYRStoreModel::keepTexts). Any other text is copied.
inline KYRString shownText(const KYRString& text) {
  if (!text.isBorrowed()) return text;
  KYRString shown;
  shown.borrow(text);
  return shown;
}
