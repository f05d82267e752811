// What the finished game and the statistics hand to their screens and to the share sheet.
#include "session/game_share.h"
#include "session/session.h"

namespace tessarine {

SecondView Session::secondView(double screenWidth) const {
  return makeSecondView(view_, view_.statisticsScope(), clock_, screenWidth);
}

std::optional<std::string> Session::gameShareText() const {
  if (!gameShareable()) return std::nullopt;
  return tessarine::gameShareText(view_, clock_);
}

bool Session::toggleHighlight(int cell) {
  if (view_.showKeypad || cell < 0 || cell >= view_.gameRows * view_.gameLetters ||
      cell >= view_.maximumCells)
    return false;
  double& border = view_.cellBorderWidth[cell];
  border = border == 4.0 ? 1.0 : 4.0;
  return true;
}

}  // namespace tessarine
