#pragma once

#include <optional>
#include <string>

#include "catalogue/clock.h"

// The device's wall clock in its own time zone: the only place the app reads the time.
class SystemClock : public tessarine::Clock {
 public:
  tessarine::LocalDateTime now() const override;
};

// A day given as "YYYY-MM-DD" pinned at noon, for screenshots and tests; nothing when malformed.
std::optional<tessarine::LocalDateTime> pinnedNoon(const std::string& isoDate);
