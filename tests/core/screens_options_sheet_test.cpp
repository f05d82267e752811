#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "catalogue/catalogue.h"
#include "screens/game_groups.h"
#include "screens/seventh_view.h"

namespace tessarine {
namespace {

Options startingOptions(const std::string& gameType = "C", bool EnglishWords = true,
                        bool EnglishTranslation = true) {
  Options options;
  options.gameType = gameType;
  options.EnglishWords = EnglishWords;
  options.EnglishTranslation = EnglishTranslation;
  return options;
}

struct CloseCase {
  const char* name;
  std::function<void(SeventhView&)> steps;
  bool updateSettings;
};

TEST(OptionsSheet, ClosingReportsOnlyARealChange) {
  const CloseCase cases[] = {
      {"open and close", [](SeventhView&) {}, false},
      {"on and back off",
       [](SeventhView& v) {
         setOption(v, &Options::smartMode, true);
         setOption(v, &Options::smartMode, false);
       },
       false},
      {"type away and back",
       [](SeventhView& v) {
         selectGameType(v, "M");
         selectGameType(v, "C");
       },
       false},
      {"two changes, one undone",
       [](SeventhView& v) {
         setOption(v, &Options::wantHints, true);
         setOption(v, &Options::useQWERTY, false);
         setOption(v, &Options::useQWERTY, true);
       },
       true},
      {"set to what it was", [](SeventhView& v) { setOption(v, &Options::showDefinitions, true); }, false},
      {"type changed", [](SeventhView& v) { selectGameType(v, "G"); }, true},
      {"Español and back to English on a number game",
       [](SeventhView& v) {
         selectGameType(v, "G");
         chooseEspanol(v);
         chooseEnglish(v);
         selectGameType(v, "C");
       },
       false},
  };
  for (const CloseCase& c : cases) {
    SeventhView view = openSeventhView(startingOptions());
    c.steps(view);
    const std::optional<Options> applied = closeSeventhView(view);
    EXPECT_EQ(view.updateSettings, c.updateSettings) << c.name;
    EXPECT_EQ(applied.has_value(), c.updateSettings) << c.name;
    if (applied) {
      EXPECT_EQ(*applied, view.bindings) << c.name;
    }
  }
}

TEST(OptionsSheet, FirstValueIsKeptAcrossChanges) {
  SeventhView view = openSeventhView(startingOptions("B"));
  selectGameType(view, "G");
  selectGameType(view, "M");
  setOption(view, &Options::useQWERTY, false);
  setOption(view, &Options::useQWERTY, true);
  EXPECT_EQ(view.oldGameType, "B");
  EXPECT_EQ(view.typeOfGame, "E");
  EXPECT_TRUE(view.oldUseQWERTY);
  EXPECT_FALSE(view.smartModeChanged);
}

struct LanguageCase {
  const char* from;
  bool EnglishWords, EnglishTranslation;
  bool toEnglish;  // "English" pressed, else "Español"
  const char* gameType;
  bool typeChanged;
};

TEST(OptionsSheet, LanguageButtonsMoveTheWordGames) {
  const LanguageCase cases[] = {
      // Español: an English or genius type moves to its length where it has a list, else the longest.
      {"A", true, true, false, "X", true},
      {"B", true, true, false, "W", true},
      {"C", true, false, false, "X", true},
      {"F", true, true, false, "X", true},
      {"2", true, true, false, "W", true},
      {"3", true, true, false, "X", true},
      {"W", false, true, false, "W", false},
      {"G", true, true, false, "G", false},
      {"L", true, true, false, "L", false},
      {"M", true, true, false, "M", false},
      {"R", true, false, false, "R", false},
      // English: every Spanish length lands on the three-letter game.
      {"X", false, false, true, "A", true},
      {"W", false, true, true, "A", true},
      {"Ñ", false, true, true, "A", true},
      {"D", true, true, true, "D", false},
      {"3", true, true, true, "3", false},
      {"H", false, true, true, "H", false},
      {"U", false, false, true, "U", false},
  };
  for (const LanguageCase& c : cases) {
    SeventhView view = openSeventhView(startingOptions(c.from, c.EnglishWords, c.EnglishTranslation));
    c.toEnglish ? chooseEnglish(view) : chooseEspanol(view);
    const std::string name = std::string(c.from) + (c.toEnglish ? " English" : " Español");
    EXPECT_EQ(view.bindings.gameType, c.gameType) << name;
    EXPECT_EQ(view.gameTypeChanged, c.typeChanged) << name;
    EXPECT_EQ(view.bindings.EnglishWords, c.toEnglish) << name;
    // Both buttons leave the interface in English; only a real change is recorded.
    EXPECT_TRUE(view.bindings.EnglishTranslation) << name;
    EXPECT_EQ(view.EnglishTranslationChanged, !c.EnglishTranslation) << name;
    EXPECT_EQ(view.EnglishWordChanged, c.EnglishWords == !c.toEnglish) << name;
  }
}

TEST(OptionsSheet, WordGroupStartsOnTheFirstOfferedLength) {
  struct Case {
    bool EnglishWords;
    std::array<bool, 6> valid;
    const char* start;
  };
  const Case cases[] = {
      {true, {false, true, true, false, false, false}, "A"},
      {false, {false, true, true, false, false, false}, "W"},
      {false, {false, false, true, false, false, false}, "X"},
      {false, {false, false, false, false, false, false}, "Ñ"},
  };
  for (const Case& c : cases) {
    SeventhView view = openSeventhView(startingOptions("G", c.EnglishWords));
    view.validSpanishLWordOption = c.valid;
    const GameGroup words = gameGroups(view).front();
    chooseGroup(view, words);
    EXPECT_EQ(view.bindings.gameType, c.start);
    EXPECT_EQ(view.typeOfGame, "L");
  }
}

// The type an item selects, found by its label in the groups the sheet shows from `gameType`.
std::string itemTarget(const std::string& gameType, std::string_view label, int group) {
  const std::vector<GameGroup> groups = gameGroups(openSeventhView(startingOptions(gameType)));
  for (const GroupItem& item : groups[static_cast<std::size_t>(group)].items)
    if (item.label == label) return item.gameType;
  return "missing";
}

TEST(OptionsSheet, GroupItemsKeepTheOtherHalfOfTheChoice) {
  struct Case {
    const char* from;
    int group;
    const char* label;
    const char* target;
  };
  const Case cases[] = {
      {"G", 2, "4 Digit Number", "I"},
      {"H", 2, "5 Digit Number", "L"},
      {"I", 2, "All Numbers", "J"},
      {"C", 2, "Prime Numbers Only", "G"},
      {"N", 3, "8 Tile Game", "Q"},
      {"M", 3, "Addition and Subtraction Operators", "O"},
      {"O", 3, "Addition and Subtraction Operators", "M"},
      {"O", 3, "Multiplication and Division Operators", "O"},  // the last pair on stays on
      {"D", 0, "6 Letter Words", "D"},
      {"A", 1, "5 Letter Words", "3"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(itemTarget(c.from, c.label, c.group), c.target) << c.from << " " << c.label;
}

// Touch by touch from the first game, the sheet reaches every type that has a list, and no other.
TEST(OptionsSheet, EveryTypeWithAListCanBeReached) {
  std::set<std::string> reached;
  std::vector<SeventhView> queue = {openSeventhView(startingOptions())};
  std::set<std::pair<std::string, bool>> seen;
  while (!queue.empty()) {
    const SeventhView view = queue.back();
    queue.pop_back();
    if (!seen.insert({view.bindings.gameType, view.bindings.EnglishWords}).second) continue;
    reached.insert(view.bindings.gameType);
    for (const GameGroup& group : gameGroups(view)) {
      SeventhView next = view;
      chooseGroup(next, group);
      queue.push_back(next);
      for (const GroupItem& item : group.items) {
        SeventhView touched = view;
        chooseItem(touched, item);
        queue.push_back(touched);
      }
    }
  }
  std::set<std::string> withLists;
  for (const GameTypeInfo& info : gameCatalogue())
    if (!info.answerFile.empty()) withLists.emplace(info.gameType);
  EXPECT_EQ(withLists.size(), 25u);
  EXPECT_EQ(reached, withLists);
}

TEST(OptionsSheet, SpanishWordsOfferOnlyTheLengthsWithLists) {
  SeventhView view = openSeventhView(startingOptions("W", false, false));
  const std::vector<GameGroup> groups = gameGroups(view);
  std::vector<std::string> shown;
  for (const GroupItem& item : groups.front().items)
    shown.emplace_back(item.label);
  EXPECT_EQ(shown,
            (std::vector<std::string>{"English", "Español", "Palabras de 4 Letras", "Palabras de 5 Letras"}));
  EXPECT_EQ(seventhViewTitle(false), "Tipos de juegos y opciones");
}

TEST(OptionsSheet, OptionRowsFollowTheBindingsAndLanguage) {
  SeventhView view = openSeventhView(startingOptions("C", true, false));
  setOption(view, &Options::smartMode, true);
  const std::vector<OptionRow> rows = optionRows(view);
  ASSERT_EQ(rows.size(), 8u);
  EXPECT_EQ(rows[0].label, "Modo inteligente");
  EXPECT_EQ(rows[0].symbol, "square.fill");
  EXPECT_EQ(rows[1].symbol, "square");
  EXPECT_EQ(rows[2].label, "English Translation");  // no Spanish form
  EXPECT_EQ(rows[7].label, "Reto de juego");
}

}  // namespace
}  // namespace tessarine
