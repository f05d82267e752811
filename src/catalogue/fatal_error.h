#pragma once

#include <stdexcept>
#include <string>

namespace tessarine {

// The few failures the game cannot play on from: a missing list file or a store that will not open.
// Front ends catch it at the top, show "Fatal error" with the message, and stop.
class FatalError : public std::runtime_error {
 public:
  explicit FatalError(const std::string& message) : std::runtime_error(message) {}
};

}  // namespace tessarine
