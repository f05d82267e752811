#include "screens/third_view.h"

#include <algorithm>
#include <array>

#include "screens/third_view_parts.h"

namespace tessarine {
namespace help {
namespace {

// How many tries, by the number of rows (7, 6, 5).
constexpr std::array<Bilingual, 3> kEnglishWordTries = {{{"Guess the mystery word in seven tries.", ""},
                                                         {"Guess the mystery word in six tries.", ""},
                                                         {"Guess the mystery word in five tries.", ""}}};
constexpr std::array<Bilingual, 3> kSpanishWordTries = {
    {{"Guess the word in seven tries.", "Adivina la palabra en siete intentos."},
     {"Guess the word in six tries.", "Adivina la palabra en seis intentos."},
     {"Guess the word in five tries.", "Adivina la palabra en cinco intentos."}}};
constexpr std::array<Bilingual, 2> kNumberTries = {
    {{"Guess the number in seven tries.", "Adivina el número en siete intentos."},
     {"Guess the number in six tries.", "Adivina el número en seis intentos."}}};
constexpr Bilingual kEquationTries = {"Guess the equation in six tries.",
                                      "Adivina la ecuación en seis intentos."};
constexpr std::string_view kTriesFallback = "Guess the word/number in X tries.";

// What a guess must be: words by length (3 to 8), numbers by length, prime then all.
// clang-format off
constexpr std::array<Bilingual, 6> kWordGuess = {{
    {"Each guess must be a valid three-letter word. Hit the submit button when you are ready to enter a guess.", ""},
    {"Each guess must be a valid four-letter word. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser una palabra válida de cuatro letras. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
    {"Each guess must be a valid five-letter word. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser una palabra válida de cinco letras. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
    {"Each guess must be a valid six-letter word. Hit the submit button when you are ready to enter a guess.", ""},
    {"Each guess must be a valid seven-letter word. Hit the submit button when you are ready to enter a guess.", ""},
    {"Each guess must be a valid eight-letter word. Hit the submit button when you are ready to enter a guess.", ""},
}};
constexpr std::array<Bilingual, 6> kNumberGuess = {{
    {"Each guess must be a valid three-digit prime number. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser un número primo válido de tres dígitos. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
    {"Each guess must be a three-digit number. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser un número de tres dígitos. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
    {"Each guess must be a valid four-digit prime number. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser un número primo válido de cuatro dígitos. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
    {"Each guess must be a four-digit number. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser un número de cuatro dígitos. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
    {"Each guess must be a valid five-digit prime number. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser un número primo válido de cinco dígitos. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
    {"Each guess must be a five-digit number. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser un número de cinco dígitos. Presiona el botón enviar cuando estés listo para ingresar una conjetura."},
}};
constexpr Bilingual kEquationGuess = {"Each guess must be a valid equation. Hit the submit button when you are ready to enter a guess.", "Cada conjetura debe ser una ecuación válida. Presiona el botón enviar cuando estés listo para ingresar una conjetura."};
constexpr std::string_view kGuessFallback = "Each guess must be a valid X-letter/digit word/number. Hit the submit button when you are ready to enter a guess.";

constexpr FamilyTexts kColourChange = {{"After each guess, the color of the tiles will change to show you information about the letters you used.", "Después de cada intento, el color de las fichas cambiará para mostrarte información sobre las letras que usaste."},
                                       {"After each guess, the color of the tiles will change to show you information about the numbers you used.", "Después de cada intento, el color de las fichas cambiará para mostrarle información sobre los números que usó."},
                                       {"After each guess, the color of the tiles will change to show you information about the numbers and operators you used.", "Después de cada intento, el color de las fichas cambiará para mostrarle información sobre los números y operadores que utilizó."}};
constexpr std::string_view kColourChangeFallback = "After each guess, the color of the tiles will change to show you information about the letters and numbers and operators you used.";

// Par 5, 4 and 3.
constexpr std::array<Bilingual, 3> kPar = {{{"Par for the game is 5 guesses.", "Par para el juego es de 5 conjeturas."}, {"Par for the game is 4 guesses.", "Par para el juego es de 4 conjeturas."}, {"Par for the game is 3 guesses.", "Par para el juego es de 3 conjeturas."}}};
constexpr std::string_view kParFallback = "Par for the game is X guesses.";
// clang-format on

std::string_view triesLine(const GameTypeInfo* info, bool english) {
  if (info == nullptr) return kTriesFallback;
  const auto byRows = [&](const auto& texts) {
    const auto index = static_cast<std::size_t>(std::clamp(7 - info->rows, 0, 2));
    return pick(texts[std::min(index, texts.size() - 1)], english);
  };
  switch (info->kind) {
    case GameKind::englishWords:
    case GameKind::geniusWords:
      return byRows(kEnglishWordTries);
    case GameKind::spanishWords:
      return byRows(kSpanishWordTries);
    case GameKind::primeNumbers:
    case GameKind::allNumbers:
      return byRows(kNumberTries);
    case GameKind::equations:
      break;
  }
  return pick(kEquationTries, english);
}

std::string_view guessLine(const GameTypeInfo* info, bool english) {
  if (info == nullptr) return kGuessFallback;
  const auto length = static_cast<std::size_t>(info->tiles - 3);
  switch (info->kind) {
    case GameKind::englishWords:
    case GameKind::geniusWords:
      return kWordGuess[length].english;  // the English word games speak English in both languages
    case GameKind::spanishWords:
      return pick(kWordGuess[length], english);
    case GameKind::primeNumbers:
      return pick(kNumberGuess[length * 2], english);
    case GameKind::allNumbers:
      return pick(kNumberGuess[length * 2 + 1], english);
    case GameKind::equations:
      break;
  }
  return pick(kEquationGuess, english);
}

std::string_view parLine(const GameTypeInfo* info, bool english) {
  if (info == nullptr || info->par < 3 || info->par > 5) return kParFallback;
  return pick(kPar[static_cast<std::size_t>(5 - info->par)], english);
}

}  // namespace

SheetSection nameEntry(bool english) {
  return {"",
          {{english ? "Tessarine: " : "Tessarina: ", {}, {}},
           {std::string(pick({"[tess-uh-reen]", "[teh-sah-ree-nah]"}, english)), {}, {}},
           {std::string(pick({"The craft of setting small tiles into one pattern",
                              "El arte de colocar fichas pequeñas en un solo diseño"},
                             english)),
            {},
            {}}}};
}

SheetSection howToPlay(const GameTypeInfo* info, bool english) {
  return {"",
          {{std::string(triesLine(info, english)), {}, {}},
           {std::string(guessLine(info, english)), {}, {}},
           {*familyText(kColourChange, info, kColourChangeFallback, english), {}, {}},
           {std::string(parLine(info, english)), {}, {}}}};
}

}  // namespace help

std::string_view thirdViewTitle(bool EnglishTranslation) {
  return EnglishTranslation ? "HOW TO PLAY" : "CÓMO JUGAR";
}

ThirdView thirdView(std::string_view gameType, bool EnglishTranslation, bool /*EnglishWords*/) {
  const GameTypeInfo* info = findGameType(gameType);
  const bool english = EnglishTranslation;
  return {thirdViewTitle(english),
          {help::nameEntry(english), help::howToPlay(info, english), help::colourHintExamples(info, english),
           help::gameOptions(info, english), help::smartModeErrorExamples(info, english),
           help::gameButtons(info, english), help::gameSymbols(info, english)}};
}

}  // namespace tessarine
