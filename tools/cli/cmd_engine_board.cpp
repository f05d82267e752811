#include "cli/cmd_engine_board.h"

#include "catalogue/catalogue.h"
#include "engine/scoring.h"

namespace tessarine::cli {

EngineBoard::EngineBoard(const Args& args, const std::string& type, const std::string& answer) {
  const GameTypeInfo* info = findGameType(type);
  if (info == nullptr) throw UsageError{"unknown game type '" + type + "'"};
  if (!answer.empty() && info->answerFile.empty()) {
    throw UsageError{"game type " + type + " has no answer list, so its answer cannot be chosen"};
  }
  source_ = std::make_unique<AnswerSource>(listSourceFor(args), std::string(info->answerFile), answer);
  lists_ = std::make_unique<Lists>(*source_);
  view_.gameType = type;
  applyCatalogue(view_);
  view_.latestDateIndex = 0;
  view_.activeDate = 0;
  if (!answer.empty()) requireRowLength(answer);
}

void EngineBoard::requireRowLength(const std::string& guess) const {
  if (static_cast<int>(symbolCount(guess)) != view_.gameLetters) {
    throw UsageError{"'" + guess + "' must have " + std::to_string(view_.gameLetters) + " symbols"};
  }
}

void EngineBoard::enterRow(int row, const std::string& guess) {
  if (row * view_.gameLetters + view_.gameLetters > kMaximumCells || row >= view_.gameRows) {
    throw UsageError{"more guesses than the board has rows"};
  }
  requireRowLength(guess);
  view_.activeRow = row;
  const auto symbols = splitSymbols(guess);
  for (int c = 0; c < view_.gameLetters; ++c) {
    view_.cellLetter[static_cast<std::size_t>(cellIndex(view_, row, c))] =
        symbols[static_cast<std::size_t>(c)];
  }
  view_.activeWord = guess;
}

void EngineBoard::playRow(int row, const std::string& guess) {
  enterRow(row, guess);
  if (isWin(view_, *lists_, guess)) {
    fillRow(view_, *lists_, TileColor::green);
  } else {
    scoreGuess(view_, *lists_, guess);
  }
}

std::string EngineBoard::rowColors() const {
  std::string text;
  for (int c = 0; c < view_.gameLetters; ++c) {
    if (c > 0) text += ' ';
    text +=
        tileColorName(view_.cellBackground[static_cast<std::size_t>(cellIndex(view_, view_.activeRow, c))]);
  }
  return text;
}

}  // namespace tessarine::cli
