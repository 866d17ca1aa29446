// KYRDate: the calendar is computed here (proleptic Gregorian, from days since 1970-01-01), so that
// neither the machine's time zone nor the limits of its C library play a part.
#include "foundation/KYRDate.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr std::int64_t secondsOfDay = 86400;
constexpr std::int64_t secondsOfHour = 3600;
constexpr std::int64_t secondsOfMinute = 60;
constexpr int pacificStandardHours = 8;  // behind UTC; one less in summer

struct Civil {
  int year;
  int month;
  int day;
};

constexpr bool isLeapYear(int year) noexcept { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

constexpr int daysOfMonth(int year, int month) noexcept {
  constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && isLeapYear(year) ? 29 : days[month - 1];
}

constexpr std::int64_t floorDivide(std::int64_t number, std::int64_t divisor) noexcept {
  return number / divisor - (number % divisor < 0 ? 1 : 0);
}

// Years are counted from March, so that the leap day is the last of its year.
constexpr std::int64_t daysFromCivil(int year, int month, int day) noexcept {
  const int marchYear = month <= 2 ? year - 1 : year;
  const std::int64_t era = floorDivide(marchYear, 400);
  const std::int64_t yearOfEra = marchYear - era * 400;
  const std::int64_t dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
  return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468;
}

constexpr Civil civilFromDays(std::int64_t days) noexcept {
  const std::int64_t shifted = days + 719468;
  const std::int64_t era = floorDivide(shifted, 146097);
  const std::int64_t dayOfEra = shifted - era * 146097;
  const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t marchMonth = (5 * dayOfYear + 2) / 153;
  const std::int64_t month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
  return {static_cast<int>(yearOfEra + era * 400 + (month <= 2 ? 1 : 0)), static_cast<int>(month),
          static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1)};
}

constexpr std::int64_t earliest = daysFromCivil(0, 1, 1) * secondsOfDay;
constexpr std::int64_t latest = daysFromCivil(10000, 1, 1) * secondsOfDay - 1;

// 1970-01-01 was a Thursday.
constexpr int firstSundayOf(int year, int month) noexcept {
  const std::int64_t weekday = (daysFromCivil(year, month, 1) + 4) % 7;  // 0: Sunday
  return static_cast<int>(1 + (7 - (weekday < 0 ? weekday + 7 : weekday)) % 7);
}

// The rule of 2007 is applied to every year: earlier and later rules are a matter of law, not of
// computing, and the times shown are those of builds and imports.
bool isPacificSummer(std::int64_t time) noexcept {
  const std::int64_t standardDay = floorDivide(time - pacificStandardHours * secondsOfHour, secondsOfDay);
  const int year = civilFromDays(standardDay).year;
  const std::int64_t begin = daysFromCivil(year, 3, firstSundayOf(year, 3) + 7) * secondsOfDay +
                             (2 + pacificStandardHours) * secondsOfHour;
  const std::int64_t end = daysFromCivil(year, 11, firstSundayOf(year, 11)) * secondsOfDay +
                           (2 + pacificStandardHours - 1) * secondsOfHour;
  return begin <= time && time < end;
}

KYRString format(std::int64_t time, char separator, const char* zone) {
  time = std::clamp(time, earliest, latest);
  const std::int64_t days = floorDivide(time, secondsOfDay);
  const Civil date = civilFromDays(days);
  const int second = static_cast<int>(time - days * secondsOfDay);
  char text[96];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d%c%02d:%02d:%02d%s", date.year, date.month, date.day,
                separator, second / 3600, second / 60 % 60, second % 60, zone);
  return text;
}

// Reads a text of fixed layout from its start; after the first mismatch it stays failed.
class Scanner {
 public:
  explicit Scanner(std::string_view rest) noexcept : rest_(rest) {}
  void expect(char character) noexcept {
    if (!take(character)) isFailed_ = true;
  }
  bool take(char character) noexcept {
    if (rest_.empty() || rest_.front() != character) return false;
    rest_.remove_prefix(1);
    return true;
  }
  int number(std::size_t digits, int least, int most) noexcept {
    int value = 0;
    isFailed_ = isFailed_ || rest_.size() < digits;
    for (std::size_t i = 0; !isFailed_ && i < digits; ++i) {
      isFailed_ = rest_[i] < '0' || rest_[i] > '9';
      value = value * 10 + (rest_[i] - '0');
    }
    isFailed_ = isFailed_ || value < least || value > most;
    if (!isFailed_) rest_.remove_prefix(digits);
    return isFailed_ ? least : value;
  }
  bool isAtEnd() const noexcept { return rest_.empty(); }
  bool isFailed() const noexcept { return isFailed_; }

 private:
  std::string_view rest_;
  bool isFailed_ = false;
};

std::int64_t scanTime(Scanner& scanner) noexcept {
  const int hour = scanner.number(2, 0, 23);
  scanner.expect(':');
  const int minute = scanner.number(2, 0, 59);
  return hour * secondsOfHour + minute * secondsOfMinute;
}

std::int64_t scanOffset(Scanner& scanner) noexcept {
  if (scanner.take('Z')) return 0;
  if (scanner.take('+')) return scanTime(scanner);
  scanner.expect('-');
  return -scanTime(scanner);
}

}  // namespace

KYRString KYRDate::getPstTimestamp() const {
  const std::int64_t time = std::clamp(time_, earliest, latest);  // far from where subtracting overflows
  const bool isSummer = isPacificSummer(time);
  const std::int64_t behind = (pacificStandardHours - (isSummer ? 1 : 0)) * secondsOfHour;
  return format(time - behind, ' ', isSummer ? " PDT" : " PST");
}

KYRString KYRDate::getIsoTimestamp() const { return format(time_, 'T', "Z"); }

bool KYRDate::parseIsoTimestamp(const KYRString& text, std::int64_t& time) {
  Scanner scanner(text.view());
  const int year = scanner.number(4, 0, 9999);
  scanner.expect('-');
  const int month = scanner.number(2, 1, 12);
  scanner.expect('-');
  const int day = scanner.number(2, 1, daysOfMonth(year, month));
  std::int64_t seconds = daysFromCivil(year, month, day) * secondsOfDay;
  if (!scanner.isAtEnd()) {
    scanner.expect('T');
    seconds += scanTime(scanner);
    scanner.expect(':');
    seconds += scanner.number(2, 0, 59);
    seconds -= scanOffset(scanner);
  }
  if (scanner.isFailed() || !scanner.isAtEnd()) return false;
  time = seconds;
  return true;
}
