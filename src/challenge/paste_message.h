// Reading a pasted challenge text back: the key digits of its keycaps, or the guess after
// "guess is " (in Spanish "Supongo que es "). A person still decides what to do with it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

struct PastedMessage {
  std::string keyDigits;  // six plain digits, or empty
  std::string guess;      // the guess word, or empty
  std::string message;    // why nothing could be read; empty on success
};

PastedMessage readPastedMessage(std::string_view text, bool english);

}  // namespace tessarine
