#include "catalogue/catalogue.h"

#include <algorithm>

#include "session/content_view.h"

namespace tessarine {
namespace {

using K = GameKind;

// clang-format off
constexpr std::array<GameTypeInfo, 29> kCatalogue = {{
    {"A", K::englishWords, "L", 3, 7, 5, "3LetterAnswers", 3654, "3LetterWords"},
    {"B", K::englishWords, "L", 4, 7, 5, "4LetterAnswers", 3654, "4LetterWords"},
    {"C", K::englishWords, "L", 5, 6, 4, "5LetterAnswers", 3654, "5LetterWords"},
    {"D", K::englishWords, "L", 6, 6, 4, "6LetterAnswers", 3654, "6LetterWords"},
    {"E", K::englishWords, "L", 7, 5, 3, "7LetterAnswers", 3654, "7LetterWords"},
    {"F", K::englishWords, "L", 8, 5, 3, "8LetterAnswers", 3654, "8LetterWords"},
    {"V", K::spanishWords, "L", 3, 7, 5, "", 0, ""},
    {"W", K::spanishWords, "L", 4, 7, 5, "4SLetterAnswers", 3654, "4SLetterWords"},
    {"X", K::spanishWords, "L", 5, 6, 4, "5SLetterAnswers", 3654, "5SLetterWords"},
    {"Y", K::spanishWords, "L", 6, 6, 4, "", 0, ""},
    {"Z", K::spanishWords, "L", 7, 5, 3, "", 0, ""},
    {"Ñ", K::spanishWords, "L", 8, 5, 3, "", 0, ""},
    {"2", K::geniusWords, "L", 4, 7, 5, "4GLetterAnswers", 5480, "4LetterWords"},
    {"3", K::geniusWords, "L", 5, 7, 5, "5GLetterAnswers", 7306, "5LetterWords"},
    {"G", K::primeNumbers, "N", 3, 7, 5, "3PrimeAnswers", 3654, "3DigitPrimes"},
    {"H", K::allNumbers, "N", 3, 7, 5, "3NumberAnswers", 3654, ""},
    {"I", K::primeNumbers, "N", 4, 6, 4, "4PrimeAnswers", 3654, "4DigitPrimes"},
    {"J", K::allNumbers, "N", 4, 6, 4, "4NumberAnswers", 3654, ""},
    {"K", K::primeNumbers, "N", 5, 6, 4, "5PrimeAnswers", 3654, "5DigitPrimes"},
    {"L", K::allNumbers, "N", 5, 6, 4, "5NumberAnswers", 3654, ""},
    {"M", K::equations, "E", 6, 6, 4, "6MathAllAnswers", 3654, ""},
    {"N", K::equations, "E", 6, 6, 4, "6MathASAnswers", 3654, ""},
    {"O", K::equations, "E", 6, 6, 4, "6MathMDAnswers", 3654, ""},
    {"S", K::equations, "E", 7, 6, 4, "7MathAllAnswers", 3654, ""},
    {"T", K::equations, "E", 7, 6, 4, "7MathASAnswers", 3654, ""},
    {"U", K::equations, "E", 7, 6, 4, "7MathMDAnswers", 3654, ""},
    {"P", K::equations, "E", 8, 6, 4, "8MathAllAnswers", 3654, ""},
    {"Q", K::equations, "E", 8, 6, 4, "8MathASAnswers", 3654, ""},
    {"R", K::equations, "E", 8, 6, 4, "8MathMDAnswers", 3654, ""},
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
void setKeys(ContentView& view, const std::array<std::string_view, N>& keys) {
  view.keypadLetters.fill(" ");
  std::copy(keys.begin(), keys.end(), view.keypadLetters.begin());
  view.keypadNumber = static_cast<int>(N);
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

bool hasHints(const ContentView& view) {
  return view.typeOfGame == "L" || view.gameType == "G" || view.gameType == "I" || view.gameType == "K";
}

void applyCatalogue(ContentView& view) {
  const GameTypeInfo* info = findGameType(view.gameType);
  view.disablePlusKey = view.disableMinusKey = view.disableMultiplyKey = view.disableDivideKey = false;
  if (info == nullptr) {
    view.keypadLetters.fill(" ");
    std::fill_n(view.keypadLetters.begin(), 26, std::string("X"));
    view.keypadNumber = 26;
    view.gameLetters = 5;
    view.gameRows = 6;
    view.pickingUp = "7";
    return;
  }
  switch (info->kind) {
    case GameKind::englishWords:
    case GameKind::geniusWords:
      setKeys(view, kEnglishKeys);
      break;
    case GameKind::spanishWords:
      setKeys(view, kSpanishKeys);
      break;
    case GameKind::primeNumbers:
    case GameKind::allNumbers:
      setKeys(view, kNumberKeys);
      break;
    case GameKind::equations:
      setKeys(view, kEquationKeys);
      break;
  }
  view.typeOfGame = std::string(info->typeOfGame);
  view.gameLetters = info->tiles;
  view.gameRows = info->rows;
  view.pickingUp = std::to_string(info->rows + 1);
  const std::string_view t = view.gameType;
  if (t == "N" || t == "Q" || t == "T") view.disableMultiplyKey = view.disableDivideKey = true;
  if (t == "O" || t == "R" || t == "U") view.disablePlusKey = view.disableMinusKey = true;
}

std::string_view scoreName(int row, std::string_view gameType, bool englishTranslation) {
  const GameTypeInfo* info = findGameType(gameType);
  const int rows = info != nullptr ? info->rows : 6;
  const ScoreNames& names = rows == 7   ? (englishTranslation ? kSevenRowsEnglish : kSevenRowsSpanish)
                            : rows == 5 ? (englishTranslation ? kFiveRowsEnglish : kFiveRowsSpanish)
                                        : (englishTranslation ? kSixRowsEnglish : kSixRowsSpanish);
  if (row < 0 || row >= static_cast<int>(names.size())) return " ";
  return names[row];
}

}  // namespace tessarine
