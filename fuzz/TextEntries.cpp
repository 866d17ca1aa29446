// Entries of short texts.
#include <limits>
#include <string>

#include "diagram/DiagramGeometry.h"
#include "extension/HrefText.h"
#include "extension/StandardTypes.h"
#include "foundation/KYRDate.h"
#include "fuzz/FuzzEntries.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/bridgelib/Point2DVector.h"
#include "repository/datatypes/KYRDataStores.h"

void fuzzHref(std::string_view input) {
  const KYRString text(input);
  const KYRString decoded = decodePercent(text);
  promise(decoded.getLength() <= text.getLength(), "decoding never lengthens");
  const HrefText href(text);
  promise(href.filePart.getLength() + href.fragment.getLength() <= 2 * text.getLength(),
          "the parts are parts of the text");
  const char* const name = StandardTypes::nameOf(href.fragment);
  promise(name == nullptr || StandardTypes::idOf(name) != nullptr, "a standard type has an id");
}

void fuzzNumbers(std::string_view input) {
  int numbers[4] = {-1, -1, -1, -1};
  const int count = scanNumbers(input, numbers, 4);
  promise(count >= 0 && count <= 4, "as many numbers as fit");
  for (const int number : numbers) {
    unscaleX(scaleX(number));
    unscaleY(scaleY(number));
    sum(number, numbers[0]);
    buildMultiplicity(number, numbers[1]);
  }
  const KYRString text(input);
  text.getInt();
  std::int64_t time = 0;
  if (KYRDate::parseIsoTimestamp(text, time)) {
    KYRDate(time).getPstTimestamp();
    std::int64_t again = 0;
    promise(KYRDate::parseIsoTimestamp(KYRDate(time).getIsoTimestamp(), again), "a time can be read back");
  }
  Point2DVector points;
  if (!Point2DVector::decodeKYRLinePoints(text, points)) return;
  promise(points.encodeKYRLinePoints() == text, "line points come back as they were");
  if (points.getSize() < fewestLinePoints) return;
  for (const HalfDirection direction : {HalfDirection::fileOrder, HalfDirection::outward}) {
    const LineHalves halves = splitLine(points, direction);
    promise(!halves.first.empty() && !halves.second.empty(), "both halves have the middle");
  }
}

void fuzzTypeNames(std::string_view input) {
  std::string folded(input);
  for (char& letter : folded) letter = foldCase(letter);
  for (const KYRKnownDataStore& store : getKnownDataStores()) {
    const KYRDataTypeTable& table = store.getTable();
    const auto found = table.find(input);
    promise(found == table.find(folded), "case does not count");
    promise(found == table.find(" " + folded + "\t"), "white space around a name does not count");
  }
}
