#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "screens/colour_marks.h"
#include "screens/third_view.h"

namespace tessarine {
namespace {

std::string spelled(const ExampleRow& row) {
  std::string text;
  for (const ExampleTile& tile : row)
    text += tile.symbol;
  return text;
}

// The symbol or entry an example text names: "The letter C ...", "La palabra QAZ ...", "two 3's".
std::string named(const std::string& text) {
  static const std::regex noun(
      "(letter|letra|number|número|operator|operador|word|palabra|equation|ecuación) ([A-Z0-9+X=/-]+) ");
  static const std::regex copies("(2|two|dos) ([A-Z0-9])");
  std::smatch match;
  if (std::regex_search(text, match, noun) || std::regex_search(text, match, copies)) return match[2].str();
  return "";
}

// One type of each family; the word examples name other letters in the two languages.
struct SheetCase {
  const char* gameType;
  bool english;
};
constexpr SheetCase kSheets[] = {{"C", true},  {"C", false}, {"X", false}, {"K", true},
                                 {"H", false}, {"M", true},  {"R", false}};

// Each example row shows what its text says: the coloured tiles hold the symbol the text names, a
// whole-row colour spells the entry it names, and the next guess of a Smart Mode error has red.
TEST(HowToPlayExamples, RowsShowWhatTheirTextsName) {
  for (const SheetCase& sheet : kSheets) {
    const ThirdView view = thirdView(sheet.gameType, sheet.english, true);
    for (std::size_t s : {std::size_t{2}, std::size_t{4}}) {
      for (const SheetLine& line : view.sections[s].lines) {
        const std::string where = std::string(sheet.gameType) + ": " + line.text;
        ASSERT_FALSE(line.tiles.empty()) << where;
        const std::string name = named(line.text);
        const ExampleRow& first = line.tiles.front();
        if (line.colour == TileColor::cyan || line.colour == TileColor::purple) {
          EXPECT_EQ(spelled(first), name) << where;
          continue;
        }
        int coloured = 0;
        for (const ExampleTile& tile : first) {
          if (line.colour ? tile.colour == *line.colour : tile.colour != TileColor::white) {
            ++coloured;
            EXPECT_EQ(tile.symbol, name) << where;
          }
        }
        EXPECT_GT(coloured, 0) << where;
        if (s == 4) {
          ASSERT_EQ(line.tiles.size(), 2u) << where;
          bool red = false;
          for (const ExampleTile& tile : line.tiles[1])
            red = red || tile.colour == TileColor::red;
          EXPECT_TRUE(red) << where;
          EXPECT_EQ(line.tiles[1].size(), first.size()) << where;
        }
      }
    }
  }
}

TEST(HowToPlayExamples, TheGeneralTextsHaveNoRows) {
  for (const SheetSection& section : thirdView("Ó", true, true).sections) {
    for (const SheetLine& line : section.lines)
      EXPECT_TRUE(line.tiles.empty()) << line.text;
  }
}

TEST(ColourBlindMarks, EveryScoringColourHasItsOwnMark) {
  std::set<std::string_view> marks;
  for (TileColor colour :
       {TileColor::green, TileColor::blue, TileColor::yellow, TileColor::orange, TileColor::gray}) {
    EXPECT_FALSE(colourBlindMark(colour).empty());
    marks.insert(colourBlindMark(colour));
  }
  EXPECT_EQ(marks.size(), 5u);
  for (TileColor colour : {TileColor::white, TileColor::red, TileColor::cyan, TileColor::purple})
    EXPECT_TRUE(colourBlindMark(colour).empty());
}

}  // namespace
}  // namespace tessarine
