#include "catalogue/catalogue.h"

#include <algorithm>

namespace tessarine {
namespace {

using K = GameKind;
using O = OperatorSet;

// clang-format off
constexpr std::array<GameTypeInfo, 29> kCatalogue = {{
    // type, kind, family, tiles, rows, par, answer file, modulus, validity file, operators, hints,
    // translation file, game share code, statistics share code, challenge type number
    {"A", K::englishWords, "L", 3, 7, 5, "3LetterAnswers", 3654, "3LetterWords", O::none, true, "", "3L", "3L", 1},
    {"B", K::englishWords, "L", 4, 7, 5, "4LetterAnswers", 3654, "4LetterWords", O::none, true, "", "4L", "4L", 2},
    {"C", K::englishWords, "L", 5, 6, 4, "5LetterAnswers", 3654, "5LetterWords", O::none, true, "", "5L", "5L", 3},
    {"D", K::englishWords, "L", 6, 6, 4, "6LetterAnswers", 3654, "6LetterWords", O::none, true, "", "6L", "6L", 4},
    {"E", K::englishWords, "L", 7, 5, 3, "7LetterAnswers", 3654, "7LetterWords", O::none, true, "", "7L", "7L", 5},
    {"F", K::englishWords, "L", 8, 5, 3, "8LetterAnswers", 3654, "8LetterWords", O::none, true, "", "8L", "8L", 6},
    {"V", K::spanishWords, "L", 3, 7, 5, "", 0, "", O::none, true, "", "XX", "XX", 22},
    {"W", K::spanishWords, "L", 4, 7, 5, "4SLetterAnswers", 3654, "4SLetterWords", O::none, true, "4LetterTranslation", "4SL", "4LS", 23},
    {"X", K::spanishWords, "L", 5, 6, 4, "5SLetterAnswers", 3654, "5SLetterWords", O::none, true, "5LetterTranslation", "5SL", "5LS", 24},
    {"Y", K::spanishWords, "L", 6, 6, 4, "", 0, "", O::none, true, "", "XX", "XX", 0},
    {"Z", K::spanishWords, "L", 7, 5, 3, "", 0, "", O::none, true, "", "XX", "XX", 0},
    {"Ñ", K::spanishWords, "L", 8, 5, 3, "", 0, "", O::none, true, "", "XX", "XX", 27},
    {"2", K::geniusWords, "L", 4, 7, 5, "4GLetterAnswers", 5480, "4LetterWords", O::none, true, "", "4G", "4G", 25},
    {"3", K::geniusWords, "L", 5, 7, 5, "5GLetterAnswers", 7306, "5LetterWords", O::none, true, "", "5G", "5G", 26},
    {"G", K::primeNumbers, "N", 3, 7, 5, "3PrimeAnswers", 3654, "3DigitPrimes", O::none, true, "", "3P", "3P", 7},
    {"H", K::allNumbers, "N", 3, 7, 5, "3NumberAnswers", 3654, "", O::none, false, "", "3N", "3N", 8},
    {"I", K::primeNumbers, "N", 4, 6, 4, "4PrimeAnswers", 3654, "4DigitPrimes", O::none, true, "", "4P", "4P", 9},
    {"J", K::allNumbers, "N", 4, 6, 4, "4NumberAnswers", 3654, "", O::none, false, "", "4N", "4N", 10},
    {"K", K::primeNumbers, "N", 5, 6, 4, "5PrimeAnswers", 3654, "5DigitPrimes", O::none, true, "", "5P", "5P", 11},
    {"L", K::allNumbers, "N", 5, 6, 4, "5NumberAnswers", 3654, "", O::none, false, "", "5N", "5N", 12},
    {"M", K::equations, "E", 6, 6, 4, "6MathAllAnswers", 3654, "", O::all, false, "", "6E", "6E", 13},
    {"N", K::equations, "E", 6, 6, 4, "6MathASAnswers", 3654, "", O::addSubtract, false, "", "6AS", "6AS", 14},
    {"O", K::equations, "E", 6, 6, 4, "6MathMDAnswers", 3654, "", O::multiplyDivide, false, "", "6MD", "6MD", 15},
    {"S", K::equations, "E", 7, 6, 4, "7MathAllAnswers", 3654, "", O::all, false, "", "7E", "7E", 19},
    {"T", K::equations, "E", 7, 6, 4, "7MathASAnswers", 3654, "", O::addSubtract, false, "", "7AS", "7AS", 20},
    {"U", K::equations, "E", 7, 6, 4, "7MathMDAnswers", 3654, "", O::multiplyDivide, false, "", "7MD", "7MD", 21},
    {"P", K::equations, "E", 8, 6, 4, "8MathAllAnswers", 3654, "", O::all, false, "", "8E", "8E", 16},
    {"Q", K::equations, "E", 8, 6, 4, "8MathASAnswers", 3654, "", O::addSubtract, false, "", "8AS", "8AS", 17},
    {"R", K::equations, "E", 8, 6, 4, "8MathMDAnswers", 3654, "", O::multiplyDivide, false, "", "8MD", "8MD", 18},
}};
// clang-format on

constexpr std::array<std::string_view, 26> kEnglishKeys = {"Q", "W", "E", "R", "T", "Y", "U", "I", "O",
                                                           "P", "A", "S", "D", "F", "G", "H", "J", "K",
                                                           "L", "Z", "X", "C", "V", "B", "N", "M"};
constexpr std::array<std::string_view, 27> kSpanishKeys = {"Q", "W", "E", "R", "T", "Y", "U", "I", "O",
                                                           "P", "A", "S", "D", "F", "G", "H", "J", "K",
                                                           "L", "Ñ", "Z", "X", "C", "V", "B", "N", "M"};
constexpr std::array<std::string_view, 10> kNumberKeys = {"7", "8", "9", "4", "5", "6", "1", "2", "3", "0"};
constexpr std::array<std::string_view, 14> kEquationKeys = {"7", "8", "9", "+", "4", "5", "6",
                                                            "-", "1", "2", "3", "X", "0", "/"};

using ScoreNames = std::array<std::string_view, 8>;
constexpr ScoreNames kSevenRowsEnglish = {"Hole-in-one", "Double Eagle", "Eagle",        "Birdie",
                                          "Par",         "Bogey",        "Double Bogey", "Picking up"};
constexpr ScoreNames kSevenRowsSpanish = {"Hoyo-en-uno", "Albatros", "Águila",     "Pajarito",
                                          "Par",         "Bogey",    "Doblebogey", "Recogiendo"};
constexpr ScoreNames kSixRowsEnglish = {"Hole-in-one", "Eagle",        "Birdie",     "Par",
                                        "Bogey",       "Double Bogey", "Picking up", " "};
constexpr ScoreNames kSixRowsSpanish = {"Hoyo-en-uno", "Águila",     "Pajarito",   "Par",
                                        "Bogey",       "Doblebogey", "Recogiendo", " "};
constexpr ScoreNames kFiveRowsEnglish = {"Hole-in-one",  "Birdie",     "Par", "Bogey",
                                         "Double Bogey", "Picking up", " ",   " "};
constexpr ScoreNames kFiveRowsSpanish = {"Hoyo-en-uno", "Pajarito",   "Par", "Bogey",
                                         "Doblebogey",  "Recogiendo", " ",   " "};

template <std::size_t N>
KeypadLayout layoutOf(const std::array<std::string_view, N>& keys) {
  KeypadLayout layout{};
  layout.letters.fill(" ");
  std::copy(keys.begin(), keys.end(), layout.letters.begin());
  layout.number = static_cast<int>(N);
  return layout;
}

}  // namespace

std::span<const GameTypeInfo> gameCatalogue() {
  return kCatalogue;
}

const GameTypeInfo* findGameType(std::string_view gameType) {
  for (const auto& info : kCatalogue) {
    if (info.gameType == gameType) return &info;
  }
  return nullptr;
}

bool isEquationType(std::string_view gameType) {
  const auto* info = findGameType(gameType);
  return info != nullptr && info->kind == GameKind::equations;
}

bool hasHints(std::string_view gameType) {
  const auto* info = findGameType(gameType);
  return info != nullptr && info->hints;
}

KeypadLayout keypadLayout(const GameTypeInfo* info) {
  if (info == nullptr) {
    KeypadLayout layout{};
    layout.letters.fill(" ");
    std::fill_n(layout.letters.begin(), 26, "X");
    layout.number = 26;
    return layout;
  }
  switch (info->kind) {
    case GameKind::englishWords:
    case GameKind::geniusWords:
      return layoutOf(kEnglishKeys);
    case GameKind::spanishWords:
      return layoutOf(kSpanishKeys);
    case GameKind::primeNumbers:
    case GameKind::allNumbers:
      return layoutOf(kNumberKeys);
    case GameKind::equations:
      break;
  }
  return layoutOf(kEquationKeys);
}

std::string_view scoreName(int row, std::string_view gameType, bool englishTranslation) {
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr) return kNoScoreName;
  const int rows = info->rows;
  const ScoreNames& names = rows == 7   ? (englishTranslation ? kSevenRowsEnglish : kSevenRowsSpanish)
                            : rows == 5 ? (englishTranslation ? kFiveRowsEnglish : kFiveRowsSpanish)
                                        : (englishTranslation ? kSixRowsEnglish : kSixRowsSpanish);
  if (row < 0 || row >= static_cast<int>(names.size())) return " ";
  return names[row];
}

}  // namespace tessarine
