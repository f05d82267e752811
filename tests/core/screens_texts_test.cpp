#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "screens/fourth_view.h"
#include "screens/third_view.h"

namespace tessarine {
namespace {

const std::filesystem::path kGoldenDir = std::filesystem::path(TESSARINE_TESTDATA_DIR) / "screens";

// The golden file is a list of sheets, each under a line "== TYPE english|spanish".
std::map<std::string, std::string> readSheets(const std::filesystem::path& file) {
  std::ifstream in(file);
  std::map<std::string, std::string> sheets;
  std::string line, key;
  while (std::getline(in, line)) {
    if (line.rfind("== ", 0) == 0) {
      key = line.substr(3);
      sheets[key];
    } else {
      sheets[key] += line + "\n";
    }
  }
  return sheets;
}

std::string render(const ThirdView& view) {
  std::string text = std::string(view.title) + "\n";
  for (const SheetSection& section : view.sections) {
    if (!section.heading.empty()) text += section.heading + "\n";
    for (const SheetLine& line : section.lines)
      text += line.text + "\n";
  }
  return text;
}

std::string render(const FourthView& view) {
  std::string text = std::string(view.title) + "\n";
  for (const std::string& rule : view.rules)
    text += rule + "\n";
  return text;
}

// Compares every sheet of a golden file; on a mismatch the whole actual file lands beside it.
template <typename Build>
void expectGolden(const std::string& name, Build build) {
  const std::filesystem::path golden = kGoldenDir / name;
  const auto sheets = readSheets(golden);
  ASSERT_FALSE(sheets.empty()) << golden;
  std::ostringstream actual;
  bool same = true;
  for (const auto& [key, expected] : sheets) {
    const std::string gameType = key.substr(0, key.find(' '));
    const std::string text = build(gameType, key.ends_with("english"));
    actual << "== " << key << "\n" << text;
    if (text != expected) {
      ADD_FAILURE() << name << ": sheet " << key << " differs";
      same = false;
    }
  }
  if (!same) std::ofstream(golden.string() + ".fail") << actual.str();
}

// One type of each case of every table, both languages, the general texts of an unknown type too.
TEST(HelpTexts, HowToPlayMatchesGolden) {
  expectGolden("help.golden",
               [](const std::string& type, bool english) { return render(thirdView(type, english, true)); });
}

TEST(HelpTexts, ChallengeRulesMatchGolden) {
  expectGolden("rules.golden",
               [](const std::string& type, bool english) { return render(fourthView(type, english)); });
}

// The marks beside the lines are those the board draws beside its rows.
TEST(HelpTexts, SymbolsCarryTheBoardsMarks) {
  const ThirdView view = thirdView("G", true, true);
  const SheetSection& symbols = view.sections.back();
  struct Mark {
    std::string_view symbol;
    TileColor colour;
  };
  const Mark marks[] = {{"star.fill", TileColor::yellow},
                        {"star.fill", TileColor::yellow},
                        {"exclamationmark.2", TileColor::red},
                        {"multiply", TileColor::red},
                        {"questionmark", TileColor::red},
                        {"exclamationmark.triangle.fill", TileColor::yellow},
                        {"exclamationmark.questionmark", TileColor::red},
                        {"questionmark.circle", TileColor::blue}};
  ASSERT_GE(symbols.lines.size(), std::size(marks));
  for (std::size_t i = 0; i < std::size(marks); ++i) {
    EXPECT_EQ(symbols.lines[i].symbol, marks[i].symbol) << i;
    EXPECT_EQ(symbols.lines[i].colour, marks[i].colour) << i;
  }
  EXPECT_EQ(symbols.lines[8].symbol, "parkingsign.circle");

  const TileColor tiles[] = {TileColor::green, TileColor::yellow, TileColor::blue,  TileColor::orange,
                             TileColor::gray,  TileColor::cyan,   TileColor::purple};
  const SheetSection& colours = view.sections[2];
  for (std::size_t i = 0; i < std::size(tiles); ++i)
    EXPECT_EQ(colours.lines[i].colour, tiles[i]) << i;
}

}  // namespace
}  // namespace tessarine
