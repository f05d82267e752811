#include "cli/cmd_engine_board.h"

#include "catalogue/catalogue.h"
#include "engine/game_type.h"
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
  gameType_ = type;
  applyGameType(board_, keypad_, info);
  // A chosen answer stands for itself; it is no schedule the lists must cover.
  board_.answer = Answer(info->answerFile.empty() ? lists_->answer(type, 0) : answer);
  if (!answer.empty()) requireRowLength(answer);
}

void EngineBoard::requireRowLength(const std::string& guess) const {
  if (static_cast<int>(symbolCount(guess)) != board_.gameLetters) {
    throw UsageError{"'" + guess + "' must have " + std::to_string(board_.gameLetters) + " symbols"};
  }
}

void EngineBoard::enterRow(int row, const std::string& guess) {
  if (row * board_.gameLetters + board_.gameLetters > board_.maximumCells || row >= board_.gameRows) {
    throw UsageError{"more guesses than the board has rows"};
  }
  requireRowLength(guess);
  board_.activeRow = row;
  const auto symbols = splitSymbols(guess);
  for (int c = 0; c < board_.gameLetters; ++c) {
    board_.cellLetter[static_cast<std::size_t>(cellIndex(board_, row, c))] =
        symbols[static_cast<std::size_t>(c)];
  }
}

void EngineBoard::playRow(int row, const std::string& guess) {
  enterRow(row, guess);
  if (isWin(board_, guess)) {
    fillRow(board_, TileColor::green);
  } else {
    scoreGuess(board_, guess);
  }
}

std::string EngineBoard::rowColors() const {
  std::string text;
  for (int c = 0; c < board_.gameLetters; ++c) {
    if (c > 0) text += ' ';
    text += tileColorName(
        board_.cellBackground[static_cast<std::size_t>(cellIndex(board_, board_.activeRow, c))]);
  }
  return text;
}

}  // namespace tessarine::cli
