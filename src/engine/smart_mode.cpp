#include "engine/smart_mode.h"

#include <string>

#include "engine/board.h"
#include "engine/row_marks.h"

namespace tessarine {
namespace {

// Read and mark cells of the board by (row, column); cells outside the fixed board read as empty.
class Cells {
 public:
  explicit Cells(Board& board, SmartModeFailure* why = nullptr) : board_(board), why_(why) {}
  // Records the first failure's class and symbol, for the message under the board.
  bool fail(SmartModeClass kind, const std::string& symbol) {
    if (why_ != nullptr) *why_ = {kind, symbol};
    return false;
  }
  int columns() const { return board_.gameLetters; }
  int active() const { return board_.activeRow; }

  const std::string& letter(int row, int column) const {
    static const std::string empty = kEmptyCell;
    const int cell = cellIndex(board_, row, column);
    return cell < 0 ? empty : board_.cellLetter[static_cast<std::size_t>(cell)];
  }
  TileColor color(int row, int column) const {
    const int cell = cellIndex(board_, row, column);
    return cell < 0 ? TileColor::white : board_.cellBackground[static_cast<std::size_t>(cell)];
  }
  void paint(int column, TileColor color) {
    const int cell = cellIndex(board_, board_.activeRow, column);
    if (cell >= 0) board_.cellBackground[static_cast<std::size_t>(cell)] = color;
  }
  void mark(int column) { paint(column, TileColor::red); }

  int count(int row, const std::string& symbol) const {
    int n = 0;
    for (int k = 0; k < columns(); ++k)
      n += letter(row, k) == symbol ? 1 : 0;
    return n;
  }
  bool hasTile(int row, const std::string& symbol, TileColor wanted) const {
    for (int k = 0; k < columns(); ++k) {
      if (color(row, k) == wanted && letter(row, k) == symbol) return true;
    }
    return false;
  }
  // Marks the active row's copies of `symbol`, sparing the columns where `row` has a green tile.
  void markCopies(const std::string& symbol, int row = -1) {
    for (int k = 0; k < columns(); ++k) {
      if (letter(active(), k) != symbol) continue;
      if (row >= 0 && color(row, k) == TileColor::green) continue;
      mark(k);
    }
  }
  // Marks the active row wherever `row` does not hold `symbol`.
  void markOutside(int row, const std::string& symbol) {
    for (int k = 0; k < columns(); ++k) {
      if (letter(row, k) != symbol) mark(k);
    }
  }

 private:
  Board& board_;
  SmartModeFailure* why_;
};

bool greenKept(Cells& board) {
  for (int k = 0; k < board.columns(); ++k)
    board.paint(k, TileColor::white);
  for (int r = 0; r < board.active(); ++r) {
    for (int c = 0; c < board.columns(); ++c) {
      if (board.color(r, c) != TileColor::green) continue;
      const std::string& symbol = board.letter(r, c);
      if (board.letter(board.active(), c) != symbol) {
        board.mark(c);
        return board.fail(SmartModeClass::greenNotKept, symbol);
      }
      const int prev = board.count(r, symbol), cur = board.count(board.active(), symbol);
      if (board.hasTile(r, symbol, TileColor::yellow) && cur < prev) {
        board.markOutside(r, symbol);  // the count is exact and a copy was dropped
        return board.fail(SmartModeClass::yellowDropped, symbol);
      }
      if (cur > prev || (board.hasTile(r, symbol, TileColor::orange) && cur == prev)) {
        board.markCopies(symbol, r);
        return board.fail(SmartModeClass::orangeNotReduced, symbol);
      }
    }
  }
  return true;
}

bool blueIncreased(Cells& board) {
  for (int r = 0; r < board.active(); ++r) {
    for (int c = 0; c < board.columns(); ++c) {
      if (board.color(r, c) != TileColor::blue) continue;
      const std::string& symbol = board.letter(r, c);
      // Blue asks for more copies than the guess that earned it.
      if (board.letter(board.active(), c) != symbol ||
          board.count(r, symbol) >= board.count(board.active(), symbol)) {
        board.mark(c);
        return board.fail(SmartModeClass::blueNotIncreased, symbol);
      }
    }
  }
  return true;
}

bool grayLeftOut(Cells& board) {
  bool result = true;
  for (int r = 0; r < board.active(); ++r) {
    for (int c = 0; c < board.columns(); ++c) {
      if (board.color(r, c) != TileColor::gray) continue;
      for (int k = 0; k < board.columns(); ++k) {
        if (board.letter(board.active(), k) == board.letter(r, c)) {
          board.mark(k);
          if (result) board.fail(SmartModeClass::grayUsedAgain, board.letter(r, c));
          result = false;
        }
      }
    }
  }
  return result;
}

// All earlier rows: a yellow or orange symbol must come back, and not in the spot shown wrong.
bool yellowKeptEverywhere(Cells& board) {
  for (int r = 0; r < board.active(); ++r) {
    for (int c = 0; c < board.columns(); ++c) {
      const TileColor tile = board.color(r, c);
      if (tile != TileColor::yellow && tile != TileColor::orange) continue;
      const std::string& symbol = board.letter(r, c);
      bool result = true, found = false;
      for (int k = 0; k < board.columns(); ++k) {
        board.paint(k, TileColor::white);
        if (board.letter(board.active(), k) != symbol) continue;
        found = true;
        if (k == c) {
          board.mark(k);
          result = false;
        }
      }
      if (!found) {
        board.markOutside(r, symbol);  // every spot where the symbol could have gone
        return board.fail(SmartModeClass::yellowDropped, symbol);
      }
      if (!result) return board.fail(SmartModeClass::yellowSameSpot, symbol);
    }
  }
  return true;
}

// The row just above only: orange asks for fewer copies, yellow for at least as many.
bool countsKeptFromRowAbove(Cells& board) {
  const int above = board.active() - 1;
  for (int c = 0; c < board.columns(); ++c) {
    const TileColor tile = board.color(above, c);
    if (tile != TileColor::yellow && tile != TileColor::orange) continue;
    const std::string& symbol = board.letter(above, c);
    const int prev = board.count(above, symbol), cur = board.count(board.active(), symbol);
    const bool kept = tile == TileColor::orange ? cur < prev : cur >= prev;
    if (!kept) {
      board.markCopies(symbol);
      return board.fail(
          tile == TileColor::orange ? SmartModeClass::orangeNotReduced : SmartModeClass::yellowDropped,
          symbol);
    }
  }
  return true;
}

bool yellowKept(Cells& board) {
  if (!yellowKeptEverywhere(board)) return false;
  if (board.active() < 1) return true;
  return countsKeptFromRowAbove(board);
}

}  // namespace

namespace {

// One check on its own, as the CLI and the tests call it.
bool checkOnly(Board& target, bool (*check)(Cells&)) {
  Cells board(target);
  return check(board);
}

}  // namespace

bool checkGreenTiles(Board& target) {
  return checkOnly(target, greenKept);
}
bool checkBlueTiles(Board& target) {
  return checkOnly(target, blueIncreased);
}
bool checkGrayTiles(Board& target) {
  return checkOnly(target, grayLeftOut);
}
bool checkYellowTiles(Board& target) {
  return checkOnly(target, yellowKept);
}

bool passesSmartMode(Board& target, SmartModeFailure* why) {
  Cells board(target, why);
  return greenKept(board) && blueIncreased(board) && grayLeftOut(board) && yellowKept(board);
}

bool isPerfectGame(const RowMarkSet& marks, int activeRow, int gameRows) {
  int rows = activeRow == gameRows ? activeRow - 1 : activeRow;
  rows = rows < kMarkedRows ? rows : kMarkedRows;
  for (int i = 0; i < rows; ++i) {
    const auto n = static_cast<std::size_t>(i);
    if (marks.smartModeError[n] || !marks.smartModeCorrect[n] || marks.validGuessError[n] ||
        marks.usedHints[n] || marks.singleHint[n]) {
      return false;
    }
  }
  return true;
}

}  // namespace tessarine
