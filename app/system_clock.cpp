#include "system_clock.h"

#include <ctime>

#include "catalogue/calendar.h"

tessarine::LocalDateTime SystemClock::now() const {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::optional<tessarine::LocalDateTime> pinnedNoon(const std::string& isoDate) {
  const auto date = tessarine::parseIsoDate(isoDate);
  if (!date) return std::nullopt;
  return tessarine::LocalDateTime{date->year, date->month, date->day, 12, 0, 0};
}
