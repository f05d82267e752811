#include "storage/presentation.h"

namespace tessarine {
namespace {

constexpr char kMark = '#';

}  // namespace

std::string presentationRecord(const Presentation& presentation) {
  return std::string(1, kMark) + (presentation.colourBlind ? "Y" : "N");
}

bool isPresentationRecord(std::string_view text) {
  return !text.empty() && text.front() == kMark;
}

Presentation parsePresentationRecord(std::string_view text) {
  Presentation presentation;
  presentation.colourBlind = text.size() > 1 && text[1] == 'Y';
  return presentation;
}

}  // namespace tessarine
