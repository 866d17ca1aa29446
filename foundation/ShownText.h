// shownText: a text taken on by somebody who lives no longer than the characters that it may show.
#pragma once

#include "foundation/KYRString.h"

/// A view of the same characters when `text` only shows those of others, else a copy. What an XML reader
/// hands over shows the characters of its document: objects that are read from it take them on like this, and
/// so do those of a store model, which keeps the characters (KYRStoreModel::keepTexts).
inline KYRString shownText(const KYRString& text) {
  if (!text.isBorrowed()) return text;
  KYRString shown;
  shown.borrow(text);
  return shown;
}
