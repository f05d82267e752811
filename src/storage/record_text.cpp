#include "storage/record_text.h"

#include <charconv>

namespace tessarine {

bool isValidUtf8(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size()) {
    const auto lead = static_cast<unsigned char>(text[i]);
    std::size_t length = 0;
    unsigned char low = 0x80, high = 0xBF;  // range of the first continuation byte
    if (lead < 0x80) {
      ++i;
      continue;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
      length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
      length = 3;
      if (lead == 0xE0) low = 0xA0;   // overlong
      if (lead == 0xED) high = 0x9F;  // surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
      length = 4;
      if (lead == 0xF0) low = 0x90;
      if (lead == 0xF4) high = 0x8F;
    } else {
      return false;
    }
    if (i + length > text.size()) return false;
    for (std::size_t k = 1; k < length; ++k) {
      const auto byte = static_cast<unsigned char>(text[i + k]);
      const unsigned char min = k == 1 ? low : 0x80, max = k == 1 ? high : 0xBF;
      if (byte < min || byte > max) return false;
    }
    i += length;
  }
  return true;
}

std::string paddedDayIndex(int dayIndex) {
  std::string digits = std::to_string(dayIndex < 0 ? 0 : dayIndex);
  if (digits.size() < 4) digits.insert(0, 4 - digits.size(), '0');
  return digits;
}

int parseIntOr(std::string_view text, int fallback) {
  if (!text.empty() && text.front() == '+') {
    text.remove_prefix(1);
    if (!text.empty() && text.front() == '-') return fallback;
  }
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() && !text.empty() ? value : fallback;
}

}  // namespace tessarine
