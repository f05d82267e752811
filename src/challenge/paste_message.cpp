#include "challenge/paste_message.h"

#include "catalogue/lists.h"

namespace tessarine {
namespace {

// A keycap is a digit, U+FE0F and U+20E3; the digits of the key are the last six of the text.
std::string keycapDigits(std::string_view text) {
  static constexpr std::string_view kKeycap = "\xEF\xB8\x8F\xE2\x83\xA3";
  std::string digits;
  for (std::size_t at = text.find(kKeycap); at != std::string_view::npos; at = text.find(kKeycap, at + 1)) {
    if (at > 0 && text[at - 1] >= '0' && text[at - 1] <= '9') digits += text[at - 1];
  }
  return digits.size() >= 6 ? digits.substr(digits.size() - 6) : std::string();
}

std::string guessAfter(std::string_view text) {
  for (const std::string_view marker : {"guess is ", "Supongo que es "}) {
    const auto at = text.find(marker);
    if (at == std::string_view::npos) continue;
    std::string_view rest = text.substr(at + marker.size());
    rest = rest.substr(0, rest.find('\n'));
    return std::string(trimView(rest));
  }
  return {};
}

}  // namespace

PastedMessage readPastedMessage(std::string_view text, bool english) {
  PastedMessage pasted;
  pasted.keyDigits = keycapDigits(text);
  pasted.guess = guessAfter(text);
  if (pasted.keyDigits.empty() && pasted.guess.empty())
    pasted.message = english ? "No challenge key or guess found in the pasted text"
                             : "No se encontró clave ni conjetura en el texto pegado";
  return pasted;
}

}  // namespace tessarine
