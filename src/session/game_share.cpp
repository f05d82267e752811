#include "session/game_share.h"

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"

namespace tessarine {
namespace {

constexpr const char* kHiddenTile = "⬛";

// The emoji of one tile; null for a tile that says nothing about the answer.
const char* tileEmoji(TileColor color) {
  const std::string_view scoring = scoringEmoji(color);
  if (!scoring.empty()) return scoring.data();
  // On a finished board only the fixed equals tile stays white.
  return color == TileColor::white ? "🟰" : nullptr;
}

// The mark behind row `row`, and whether it keeps the game perfect. The first row has no marks of
// its own and always shows the star.
std::pair<const char*, bool> shareMark(const ContentView& view, int row) {
  if (row == 0) return {"⭐️", true};
  const int mark = row - 1;
  if (view.singleHint[mark]) return {"⁉️", false};
  if (view.usedHints[mark]) return {"❓", false};
  if (view.smartModeError[mark]) return {"‼️", false};
  if (view.validGuessError[mark]) return {"⚠️", false};
  if (view.smartModeCorrect[mark]) return {"⭐️", true};
  return {"❌", false};
}

}  // namespace

std::string gameShareText(const ContentView& view, const Clock& clock) {
  const GameTypeInfo* info = findGameType(view.gameType);
  std::string text = view.EnglishTranslation ? "Tessarine " : "Tessarina ";
  // A type without a code of its own runs straight into the date.
  if (info != nullptr && info->gameShareCode != kNoShareCode)
    text += std::string(info->gameShareCode) + "\n";
  else
    text += kNoShareCode;
  text += displayDateString(clock, view.activeDate, view.thankYouFlag, view.EnglishTranslation) + "\n\n";

  const int lastRow = view.activeRow == view.gameRows ? view.activeRow - 1 : view.activeRow;
  bool allStars = true;
  bool unscoredTile = false;
  for (int row = 0; row <= lastRow && row <= kMarkedRows; ++row) {
    for (int column = 0; column < view.gameLetters; ++column) {
      const int cell = cellIndex(view, row, column);
      const char* emoji =
          cell < 0 || view.cellBorderWidth[cell] == 4.0 ? nullptr : tileEmoji(view.cellBackground[cell]);
      unscoredTile = unscoredTile || emoji == nullptr;
      text += emoji != nullptr ? emoji : kHiddenTile;
    }
    const auto [mark, star] = shareMark(view, row);
    allStars = allStars && star;
    text += std::string(mark) + "\n";
  }
  text += "\n";
  text += scoreName(view.activeRow, view.gameType, view.EnglishTranslation);

  const bool genius = info != nullptr && info->kind == GameKind::geniusWords;
  if (!unscoredTile && allStars && lastRow <= 3 && genius) return text + " 🎓";
  if (allStars) text += " ⭐️";
  return text;
}

}  // namespace tessarine
