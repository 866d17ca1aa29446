// HrefText: the parts of a reference into another file.
#pragma once

#include "foundation/KYRString.h"

/// "file part # fragment". The file part is percent-encoded in the file, decoded here. Without a "#"
/// the whole text is both.
struct HrefText {
  explicit HrefText(const KYRString& href);
  KYRString filePart;
  KYRString fragment;
};

/// Decodes "%20" and the like. A percent sign with fewer than two characters behind it ends the text;
/// an escape that gives no character (two bad digits, or 00) stays as it is. Digits are read as far as
/// they go, so "%1G" gives the character 1.
KYRString decodePercent(const KYRString& text);
