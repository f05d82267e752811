#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "session/content_view.h"
#include "session/game_setup.h"
#include "session/game_share.h"

namespace tessarine {
namespace {

// One board row as it ends a game: a letter a tile (g green, y yellow, x gray, o orange, b blue,
// w white, r red, h a gray tile the player highlighted) and the mark flag of its row.
struct ShareRow {
  std::string tiles;
  char mark = '*';  // * star, ! Smart Mode error, ? hints, s single hint, v invalid, - nothing
};

struct GameShareCase {
  const char* name;
  const char* gameType;
  bool english;
  int activeRow;
  std::vector<ShareRow> rows;
  std::string expected;
};

TileColor colorOf(char tile) {
  constexpr std::pair<char, TileColor> kColors[] = {{'g', TileColor::green},  {'y', TileColor::yellow},
                                                    {'o', TileColor::orange}, {'b', TileColor::blue},
                                                    {'w', TileColor::white},  {'r', TileColor::red}};
  for (const auto& [letter, color] : kColors)
    if (letter == tile) return color;
  return TileColor::gray;
}

ContentView finishedBoard(const GameShareCase& c) {
  ContentView view;
  view.gameType = c.gameType;
  applyCatalogue(view);
  view.EnglishTranslation = c.english;
  view.showKeypad = false;
  view.activeRow = c.activeRow;
  for (int row = 0; row < static_cast<int>(c.rows.size()); ++row) {
    const ShareRow& r = c.rows[row];
    for (int column = 0; column < view.gameLetters; ++column) {
      const int cell = cellIndex(view, row, column);
      view.cellBackground[cell] = colorOf(r.tiles[column]);
      view.cellBorderWidth[cell] = r.tiles[column] == 'h' ? 4.0 : 1.0;
    }
    if (row == 0) continue;  // the first row has no marks of its own
    const int mark = row - 1;
    view.smartModeCorrect[mark] = r.mark == '*';
    view.smartModeError[mark] = r.mark == '!';
    view.usedHints[mark] = r.mark == '?' || r.mark == 's';
    view.singleHint[mark] = r.mark == 's';
    view.validGuessError[mark] = r.mark == 'v';
  }
  return view;
}

class GameShareTest : public ::testing::TestWithParam<GameShareCase> {};

TEST_P(GameShareTest, TextOfTheFinishedBoard) {
  const FixedClock clock({2024, 1, 10, 12, 0, 0});
  EXPECT_EQ(gameShareText(finishedBoard(GetParam()), clock), GetParam().expected);
}

// The emoji are four bytes each, which the formatter counts as columns.
// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Cases, GameShareTest,
    ::testing::Values(
        GameShareCase{"first_row_win", "C", true, 0, {{"ggggg"}},
                      "Tessarine 5L\nJanuary 10, 2024\n\n🟩🟩🟩🟩🟩⭐️\n\nHole-in-one ⭐️"},
        GameShareCase{"first_row_win_genius", "3", true, 0, {{"ggggg"}},
                      "Tessarine 5G\nJanuary 10, 2024\n\n🟩🟩🟩🟩🟩⭐️\n\nHole-in-one 🎓"},
        // n is 4: the cap is for the first four rows, so the star.
        GameShareCase{"genius_fifth_row", "2", true, 4,
                      {{"xxxx"}, {"yxxx"}, {"gyxx"}, {"ggyy"}, {"gggg"}},
                      "Tessarine 4G\nJanuary 10, 2024\n\n⬜⬜⬜⬜⭐️\n🟨⬜⬜⬜⭐️\n🟩🟨⬜⬜⭐️\n🟩🟩🟨🟨⭐️\n"
                      "🟩🟩🟩🟩⭐️\n\nPar ⭐️"},
        // Under par and perfect, but a hidden tile no longer tells the whole game.
        GameShareCase{"genius_hidden_tile", "2", true, 1, {{"hxxx"}, {"gggg"}},
                      "Tessarine 4G\nJanuary 10, 2024\n\n⬛⬜⬜⬜⭐️\n🟩🟩🟩🟩⭐️\n\nDouble Eagle ⭐️"},
        // A loss keeps the star: all six rows are written, the last under "Picking up".
        GameShareCase{"loss_with_all_stars", "C", true, 6,
                      {{"xxxxx"}, {"yxxxx"}, {"oxxxx"}, {"bxxxx"}, {"gxxxx"}, {"ggxxx"}},
                      "Tessarine 5L\nJanuary 10, 2024\n\n⬜⬜⬜⬜⬜⭐️\n🟨⬜⬜⬜⬜⭐️\n🟧⬜⬜⬜⬜⭐️\n"
                      "🟦⬜⬜⬜⬜⭐️\n🟩⬜⬜⬜⬜⭐️\n🟩🟩⬜⬜⬜⭐️\n\nPicking up ⭐️"},
        GameShareCase{"every_row_mark", "C", true, 5,
                      {{"xxxxx"}, {"xxxxx", 's'}, {"xxxxx", '?'}, {"xxxxx", '!'}, {"rrrrr", 'v'},
                       {"ggggg", '-'}},
                      "Tessarine 5L\nJanuary 10, 2024\n\n⬜⬜⬜⬜⬜⭐️\n⬜⬜⬜⬜⬜⁉️\n⬜⬜⬜⬜⬜❓\n"
                      "⬜⬜⬜⬜⬜‼️\n⬛⬛⬛⬛⬛⚠️\n🟩🟩🟩🟩🟩❌\n\nDouble Bogey"},
        // The fixed equals tile stays white on a finished board and shares as the equals sign.
        GameShareCase{"equation_row", "M", true, 0, {{"ggggwg"}},
                      "Tessarine 6E\nJanuary 10, 2024\n\n🟩🟩🟩🟩🟰🟩⭐️\n\nHole-in-one ⭐️"},
        GameShareCase{"type_w_code", "W", false, 1, {{"yxxx"}, {"gggg", '-'}},
                      "Tessarina 4SL\n10 enero, 2024\n\n🟨⬜⬜⬜⭐️\n🟩🟩🟩🟩❌\n\nAlbatros"},
        // No code of its own: "XX" runs straight into the date.
        GameShareCase{"type_y_no_line_break", "Y", false, 0, {{"gggggg"}},
                      "Tessarina XX10 enero, 2024\n\n🟩🟩🟩🟩🟩🟩⭐️\n\nHoyo-en-uno ⭐️"}),
    [](const auto& info) { return std::string(info.param.name); });
// clang-format on

}  // namespace
}  // namespace tessarine
