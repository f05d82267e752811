#include "catalogue/calendar.h"

#include <array>
#include <charconv>

namespace tessarine {
namespace {

// The program's own month names, so the display never depends on the device's language.
constexpr std::array<std::string_view, 12> kEnglishMonths = {"January",   "February", "March",    "April",
                                                             "May",       "June",     "July",     "August",
                                                             "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 12> kSpanishMonths = {
    "enero", "febrero", "marzo",      "abril",   "mayo",      "junio",
    "julio", "agosto",  "septiembre", "octubre", "noviembre", "diciembre"};

constexpr std::string_view kFirstDay = "April 1, 2022";

CivilDate today(const Clock& clock) {
  const LocalDateTime now = clock.now();
  return {now.year, now.month, now.day};
}

std::optional<int> parseNumber(std::string_view text) {
  int value = 0;
  if (text.empty()) return std::nullopt;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

bool isValidDate(const CivilDate& date) {
  if (date.month < 1 || date.month > 12 || date.day < 1) return false;
  return civilFromDays(daysFromCivil(date)) == date;
}

}  // namespace

long daysFromCivil(const CivilDate& date) {
  // Howard Hinnant's days_from_civil.
  const long y = date.year - (date.month <= 2 ? 1 : 0);
  const long era = (y >= 0 ? y : y - 399) / 400;
  const long yoe = y - era * 400;
  const long mp = (date.month + 9) % 12;
  const long doy = (153 * mp + 2) / 5 + date.day - 1;
  const long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

CivilDate civilFromDays(long days) {
  days += 719468;
  const long era = (days >= 0 ? days : days - 146096) / 146097;
  const long doe = days - era * 146097;
  const long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const long mp = (5 * doy + 2) / 153;
  const int day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  const int month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  const int year = static_cast<int>(yoe + era * 400 + (month <= 2 ? 1 : 0));
  return {year, month, day};
}

CivilDate addDays(const CivilDate& date, int offset) {
  return civilFromDays(daysFromCivil(date) + offset);
}

std::optional<CivilDate> parseEnglishDate(std::string_view text) {
  const auto space = text.find(' ');
  const auto comma = text.find(", ");
  if (space == std::string_view::npos || comma == std::string_view::npos || comma < space)
    return std::nullopt;
  const std::string_view monthName = text.substr(0, space);
  int month = 0;
  for (std::size_t i = 0; i < kEnglishMonths.size(); ++i) {
    if (kEnglishMonths[i] == monthName) month = static_cast<int>(i) + 1;
  }
  const auto day = parseNumber(text.substr(space + 1, comma - space - 1));
  const auto year = parseNumber(text.substr(comma + 2));
  if (month == 0 || !day || !year) return std::nullopt;
  const CivilDate date{*year, month, *day};
  if (!isValidDate(date)) return std::nullopt;
  return date;
}

std::optional<CivilDate> parseIsoDate(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = parseNumber(text.substr(0, 4));
  const auto month = parseNumber(text.substr(5, 2));
  const auto day = parseNumber(text.substr(8, 2));
  if (!year || !month || !day) return std::nullopt;
  const CivilDate date{*year, *month, *day};
  if (!isValidDate(date)) return std::nullopt;
  return date;
}

int daysFromApril1st(const Clock& clock) {
  // The start is parsed with a fixed English reading, so the count never falls to 0 on a device
  // set to another language. Going through the day's text truncates "now" to its calendar day.
  const auto first = parseEnglishDate(kFirstDay);
  const auto now = parseEnglishDate(plainDateString(clock, 0));
  if (!first || !now) return 0;
  return static_cast<int>(daysFromCivil(*now) - daysFromCivil(*first)) + 1;
}

std::string plainDateString(const Clock& clock, int offset) {
  return displayDateOf(addDays(today(clock), offset), true);
}

std::string displayDateOf(const CivilDate& date, bool englishTranslation) {
  if (englishTranslation) {
    return std::string(kEnglishMonths[date.month - 1]) + " " + std::to_string(date.day) + ", " +
           std::to_string(date.year);
  }
  return std::to_string(date.day) + " " + std::string(kSpanishMonths[date.month - 1]) + ", " +
         std::to_string(date.year);
}

std::string displayDateString(const Clock& clock, int offset, bool thankYouFlag, bool englishTranslation) {
  if (thankYouFlag) return " ";
  return displayDateOf(addDays(today(clock), offset), englishTranslation);
}

}  // namespace tessarine
