#pragma once

namespace tessarine {

// A wall-clock reading in the device's own time zone. Days follow local midnights, so the core
// never needs more than this civil reading; the front end does the zone conversion.
struct LocalDateTime {
  int year = 2022;
  int month = 4;  // 1..12
  int day = 1;    // 1..31
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend bool operator==(const LocalDateTime&, const LocalDateTime&) = default;
};

// "Now" enters the core only through this interface, so tests and the CLI can pin it.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual LocalDateTime now() const = 0;
};

class FixedClock : public Clock {
 public:
  explicit FixedClock(LocalDateTime at) : at_(at) {}
  LocalDateTime now() const override { return at_; }
  void set(LocalDateTime at) { at_ = at; }

 private:
  LocalDateTime at_;
};

}  // namespace tessarine
