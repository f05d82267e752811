// The guess engine from the command line: colours, validity, Smart Mode and hints of a board.
#include <iostream>

#include "cli/cmd_engine_board.h"
#include "engine/hints.h"
#include "engine/keypad_colors.h"
#include "engine/smart_mode.h"
#include "engine/validation.h"

namespace tessarine::cli {
namespace {

const std::vector<std::string>& needArgs(const Args& args, std::size_t least, const char* what) {
  if (args.positional().size() < least) throw UsageError{what};
  return args.positional();
}

int score(const Args& args) {
  const auto& words = needArgs(args, 3, "score needs TYPE ANSWER GUESS");
  if (words.size() != 3) throw UsageError{"score takes exactly TYPE ANSWER GUESS"};
  EngineBoard board(args, words[0], words[1]);
  board.playRow(0, words[2]);
  std::cout << board.rowColors() << "\n";
  return 0;
}

int valid(const Args& args) {
  const auto& words = needArgs(args, 2, "valid needs TYPE GUESS");
  if (words.size() != 2) throw UsageError{"valid takes exactly TYPE GUESS"};
  EngineBoard board(args, words[0], "");
  std::cout << (isValidGuess(board.gameType(), board.lists(), words[1]) ? "valid" : "invalid") << "\n";
  return 0;
}

int smart(const Args& args) {
  const auto& words = needArgs(args, 4, "smart needs TYPE ANSWER and at least two GUESSes");
  EngineBoard board(args, words[0], words[1]);
  const int entered = static_cast<int>(words.size()) - 3;
  for (int row = 0; row < entered; ++row)
    board.playRow(row, words[static_cast<std::size_t>(row) + 2]);
  board.enterRow(entered, words.back());
  Board& view = board.board();
  const std::pair<const char*, bool (*)(Board&)> checks[] = {{"checkGreenTiles", checkGreenTiles},
                                                             {"checkBlueTiles", checkBlueTiles},
                                                             {"checkGrayTiles", checkGrayTiles},
                                                             {"checkYellowTiles", checkYellowTiles}};
  const char* failed = nullptr;
  for (const auto& [name, check] : checks) {
    if (!check(view)) {
      failed = name;
      break;
    }
  }
  std::cout << (failed ? std::string("fail ") + failed : std::string("pass")) << "\n"
            << board.rowColors() << "\n";
  return 0;
}

int hints(const Args& args) {
  const auto& words = needArgs(args, 3, "hints needs TYPE ANSWER and at least one GUESS");
  EngineBoard board(args, words[0], words[1]);
  for (std::size_t i = 2; i < words.size(); ++i)
    board.playRow(static_cast<int>(i) - 2, words[i]);
  updateKnowledge(board.board(), board.keypad(), board.knowledge());
  computeHints(board.hints(), board.knowledge(), board.board(), board.lists(), board.gameType(), 0);
  std::cout << board.hints().numberOfHints << "\n";
  for (const std::string& hint : board.hints().allHints)
    std::cout << hint << "\n";
  return 0;
}

const Registrar scoreCommand({"score", "score TYPE ANSWER GUESS [--resources DIR]", score});
const Registrar validCommand({"valid", "valid TYPE GUESS [--resources DIR]", valid});
const Registrar smartCommand({"smart", "smart TYPE ANSWER GUESS... ENTERED [--resources DIR]", smart});
const Registrar hintsCommand({"hints", "hints TYPE ANSWER GUESS... [--resources DIR]", hints});

}  // namespace
}  // namespace tessarine::cli
