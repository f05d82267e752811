// A small board for the engine tests: lists held in memory, the answer as day 0 of its type.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "engine/scoring.h"
#include "session/content_view.h"
#include "session/game_setup.h"

namespace tessarine::testing {

class MemorySource : public ListSource {
 public:
  std::map<std::string, std::string> files;
  std::optional<std::string> read(const std::string& name) const override {
    const auto found = files.find(name);
    if (found == files.end()) return std::nullopt;
    return found->second;
  }
};

inline std::string joinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const auto& line : lines)
    text += line + "\n";
  return text;
}

struct EngineBoard {
  MemorySource source;
  Lists lists{source};
  ContentView view;

  EngineBoard(const std::string& type, const std::string& answer,
              const std::vector<std::string>& validity = {}) {
    const GameTypeInfo* info = findGameType(type);
    // Every day of the schedule has the same answer: an answer file must cover its modulus.
    std::string answers;
    for (int day = 0; day < info->modulus; ++day)
      answers += answer + "\n";
    if (!info->answerFile.empty()) source.files[std::string(info->answerFile)] = answers;
    if (!info->validityFile.empty()) source.files[std::string(info->validityFile)] = joinLines(validity);
    view.gameType = type;
    applyCatalogue(view);
    view.answer = Answer(lists.answer(type, 0));
  }

  // The knowledge passes, with the green button as the session sets it.
  void updateKnowledge() { view.disableGreenButton = !tessarine::updateKnowledge(view, view, view); }
  void computeHints() {
    tessarine::computeHints(view, view, view, lists, view.gameType, view.latestDateIndex + view.activeDate);
  }

  void enter(int row, const std::string& guess) {
    view.activeRow = row;
    const auto symbols = splitSymbols(guess);
    for (std::size_t c = 0; c < symbols.size(); ++c) {
      view.cellLetter[static_cast<std::size_t>(row * view.gameLetters) + c] = symbols[c];
    }
  }
  // Entered and coloured as the replay does.
  void play(const std::vector<std::string>& guesses) {
    for (std::size_t row = 0; row < guesses.size(); ++row) {
      enter(static_cast<int>(row), guesses[row]);
      if (isWin(view, guesses[row])) {
        fillRow(view, TileColor::green);
      } else {
        scoreGuess(view, guesses[row]);
      }
    }
  }
  std::string rowColors(int row) const {
    std::string text;
    for (int c = 0; c < view.gameLetters; ++c) {
      if (c > 0) text += ' ';
      text += tileColorName(view.cellBackground[static_cast<std::size_t>(row * view.gameLetters + c)]);
    }
    return text;
  }
};

}  // namespace tessarine::testing
