#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "catalogue/clock.h"

namespace tessarine {

struct CivilDate {
  int year = 2022;
  int month = 4;
  int day = 1;
  friend bool operator==(const CivilDate&, const CivilDate&) = default;
};

// Days since 1970-01-01 of a proleptic Gregorian date, and back.
long daysFromCivil(const CivilDate& date);
CivilDate civilFromDays(long days);
CivilDate addDays(const CivilDate& date, int offset);

// Parses "MMMM d, yyyy" with English month names; nothing else is accepted.
std::optional<CivilDate> parseEnglishDate(std::string_view text);
// Parses "YYYY-MM-DD" as the CLI takes it.
std::optional<CivilDate> parseIsoDate(std::string_view text);

// Today as a 1-based count: April 1, 2022 is 1. Counts whole local days, so a daylight-saving
// change in between never moves it.
int daysFromApril1st(const Clock& clock);

// "MMMM d, yyyy" in English for the day that lies `offset` days from today.
std::string plainDateString(const Clock& clock, int offset);

// The date as the player sees it: English "April 1, 2022" or Spanish "1 abril, 2022"; a single
// blank while the thank-you cover is up.
std::string displayDateString(const Clock& clock, int offset, bool thankYouFlag, bool englishTranslation);
std::string displayDateOf(const CivilDate& date, bool englishTranslation);

}  // namespace tessarine
