// The reference part of the how-to-play sheet: what each option, button and mark means.
#include <array>

#include "screens/third_view_parts.h"

namespace tessarine::help {
namespace {

using enum TileColor;

// A line that is the same for every family, or one per family with a general English form.
struct Entry {
  std::string_view symbol;
  std::optional<TileColor> colour;
  Bilingual text;
  const FamilyTexts* byFamily;
  std::string_view fallback;
};

// clang-format off
constexpr FamilyTexts kPlayChallenge = {{"Play Challenge - initiate or accept a virtual word guess game for two players.", "Reto de juego - iniciar o aceptar un juego virtual de adivinanzas de palabras para dos jugadores."},
                                        {"Play Challenge - initiate or accept a virtual number guess game for two players.", "Reto de juego - iniciar o aceptar un juego virtual de adivinanzas de números para dos jugadores."},
                                        {"Play Challenge - initiate or accept a virtual equation guess game for two players.", "Reto de juego - iniciar o aceptar un juego de adivinanzas de ecuaciones virtuales para dos jugadores."}};
constexpr FamilyTexts kMoveCorrect = {{"This button will move all the correct letters to your current guess.", "Este botón moverá todas las letras correctas a su suposición actual."},
                                      {"This button will move all the correct numbers to your current guess.", "Este botón moverá todos los números correctos a su suposición actual."},
                                      {"This button will move all the correct numbers and operators to your current guess.", "Este botón moverá todos los números y operadores correctos a su suposición actual."}};
constexpr FamilyTexts kNotValid = {{"An exclamation warning mark next to a guess indicates a guess was made that was not a valid word, making the guess not to be accepted.", "Un signo de exclamación junto a una suposición indica que se hizo una suposición que no era una palabra válida, por lo que no se aceptará."},
                                   {"An exclamation warning mark next to a guess indicates a guess was made that was not a prime number, making the guess not to be accepted.", "Un signo de exclamación junto a una suposición indica que se hizo una suposición que no era un número primo, por lo que no se aceptará."},
                                   {"An exclamation warning mark next to a guess indicates a guess was made that was not a valid equation, making the guess not to be accepted.", "Un signo de exclamación junto a una suposición indica que se hizo una suposición que no era una ecuación válida, por lo que la suposición no se aceptará."}};

const std::array<Entry, 8> kOptions = {{
    {"", {}, {"Smart Mode - makes you utilize the revealed hints in subsequent guesses.", "Modo inteligente - te hace utilizar las pistas reveladas en conjeturas posteriores."}, nullptr, ""},
    {"", {}, {"Populate 1st Guess - when starting a new game, the 1st guess will be populated with the 1st guess used in your most recently completed game. You must still hit the submit button to enter this guess.", "Rellenar la primera estimación - al comenzar un nuevo juego, la primera suposición se completará con la primera suposición utilizada en su juego completado más reciente. Todavía debe presionar el botón Enviar para ingresar esta conjetura."}, nullptr, ""},
    {"", {}, {"English Translation - all text displayed is in English instead of Spanish. When a word game is completed, the English translation of the Spanish word is displayed underneath the game score.", "English Translation - todo el texto mostrado está en inglés en lugar de español. Cuando se completa un juego de palabras, la traducción al inglés de la palabra en español se muestra debajo de la puntuación del juego."}, nullptr, ""},
    {"", {}, {"Show Star Status - After each guess, a star status symbol will be attached indicating whether a perfect guess was entered. See Game Symbols below to see what each star's status symbol represents.", "Mostrar estado de estrella - Después de cada apuesta, se adjuntará un símbolo de estado de estrella que indica si se realizó una apuesta perfecta. Consulta los símbolos del juego a continuación para ver qué representa cada símbolo de estado de estrella."}, nullptr, ""},
    {"", {}, {}, &kPlayChallenge, "Play Challenge - initiate or accept a virtual word/number/equation guess game for two players."},
    {"", {}, {"Use QWERTY Keyboard - The standard QWERTY keyboard will be used. Otherwise a four row alpha keyboard will be used where the keys will be larger than the keys on the standard keyboard.", "Utilice el teclado QWERTY - Se utilizará el teclado QWERTY estándar. De lo contrario, se utilizará un teclado alfa de cuatro filas donde las teclas serán más grandes que las del teclado estándar."}, nullptr, ""},
    {"", {}, {"Hints - The player is given a word that meets all the revealed color hints from the previous guesses.", "Consejos - El jugador recibe una palabra que cumple con todas las sugerencias de colores reveladas de las conjeturas anteriores."}, nullptr, ""},
    {"", {}, {"Show Definitions - when a game is completed, the definition of the mystery word is displayed underneath the game score.", ""}, nullptr, ""},
}};

// The buttons that the main screen does not draw have no symbol here.
const std::array<Entry, 11> kButtons = {{
    {"trash.square", {}, {"This button will clear all entries entered for the current guess.", "Este botón borrará todas las entradas ingresadas para la suposición actual."}, nullptr, ""},
    {"clear", {}, {"This button will clear the entry entered for the active cell.", "Este botón borrará la entrada ingresada para la celda activa."}, nullptr, ""},
    {"checkmark.square", {}, {}, &kMoveCorrect, "This button will move all the correct letters/numbers/operators to your current guess."},
    {"arrow.down.app", {}, {"This button will submit the currently entered guess.", "Este botón enviará la conjetura ingresada actualmente."}, nullptr, ""},
    {"square.and.arrow.up", {}, {"This button will take you to the share screen where you are able to share the results for your current game. Only the color hints will be displayed and not your actual entries.\nIf you do not want to share a color hint, just touch the given cell to highlight the cell. Any cell highlighted will show black for their color.", "Este botón lo llevará a la pantalla de compartir donde podrá compartir los resultados de su juego actual. Solo se mostrarán las sugerencias de color y no sus entradas reales.\nSi no desea compartir una sugerencia de color, simplemente toque la celda dada para resaltarla. Cualquier celda resaltada se mostrará en negro como color."}, nullptr, ""},
    {"lightbulb", {}, {"This button will give you a word from the available HINTS list that meets all your current color hints.", "Este botón le dará una palabra de la lista de HINTS disponibles que cumpla con todos sus hints de color actuales."}, nullptr, ""},
    {"calendar", {}, {"This button will give you a list of all the available game dates to allow you to access a specific date.", "Este botón te dará una lista de todas las fechas de juegos disponibles para permitirte acceder a una fecha específica."}, nullptr, ""},
    {"sunrise", {}, {"This button will move you to the current day's date.", "Este botón lo llevará a la fecha del día actual."}, nullptr, ""},
    {"figure.wave", {}, {"This button will move you to the latest unfinished or available date.", "Este botón lo llevará a la última fecha inconclusa o disponible."}, nullptr, ""},
    {"", {}, {"This button will take you to the statistics screen where you are able to view the statistics for the given game type.", "Este botón lo llevará a la pantalla de estadísticas donde podrá ver las estadísticas para el tipo de juego dado."}, nullptr, ""},
    {"", {}, {"This button will select the date that was selected from the list of available game dates.", "Este botón seleccionará la fecha que se seleccionó de la lista de fechas de juegos disponibles."}, nullptr, ""},
}};

const std::array<Entry, 11> kSymbols = {{
    {"star.fill", yellow, {"A gold star symbol next to a guess indicates no color codes from previous guesses were violated.", "Un símbolo de estrella dorada junto a una conjetura indica que no se violaron códigos de color de conjeturas anteriores."}, nullptr, ""},
    {"star.fill", yellow, {"A gold star symbol next to a final score indicates a perfect game was played.", "Un símbolo de estrella dorada junto al puntaje final indica que se jugó un juego perfecto."}, nullptr, ""},
    {"exclamationmark.2", red, {"A double exclamation mark next to a guess indicates Smart Mode, detects a color code violation, causing the guess not to be accepted.", "Un doble signo de exclamación junto a una suposición indica el modo inteligente, detecta una infracción del código de color y provoca que la suposición no sea aceptada."}, nullptr, ""},
    {"multiply", red, {"A red X symbol next to a guess indicates the guess has a color code violation.", "Un símbolo X rojo junto a una conjetura indica que la conjetura tiene una infracción del código de color."}, nullptr, ""},
    {"questionmark", red, {"A question mark next to a guess indicates 'Hints' was used to find a valid word.", "Un signo de interrogación junto a una suposición indica que se utilizaron 'Sugerencias' para encontrar una palabra válida."}, nullptr, ""},
    {"exclamationmark.triangle.fill", yellow, {}, &kNotValid, "An exclamation warning mark next to a guess indicates a guess was made that was not a valid word/prime number/equation, making the guess not to be accepted."},
    {"exclamationmark.questionmark", red, {"An exclamation & question mark next to a guess indicates 'Hints' was used to find a valid word and only one valid word was left.", "Un signo de exclamación y de interrogación junto a una suposición indica que se utilizaron 'Sugerencias' para encontrar una palabra válida y solo quedó una palabra válida."}, nullptr, ""},
    {"questionmark.circle", blue, {"A circled question mark next to a guess indicates no guess has been entered.", "Un signo de interrogación rodeado por un círculo junto a una conjetura indica que no se ha introducido ninguna conjetura."}, nullptr, ""},
    {"parkingsign.circle", {}, {"A circled P next to the first guess indicates a prime number game is being played.", "Una P rodeada por un círculo junto a la primera respuesta indica que se está jugando un juego de números primos."}, nullptr, ""},
    {"graduationcap.fill", {}, {"A graduation cap next to the first guess indicates a genius word game is being played.", ""}, nullptr, ""},
    {"graduationcap.fill", {}, {"A graduation cap next to a final score indicates a perfect game was played under par.", ""}, nullptr, ""},
}};
// clang-format on

template <std::size_t N>
SheetSection entries(const Bilingual& heading, const std::array<Entry, N>& table, const GameTypeInfo* info,
                     bool english) {
  SheetSection section{std::string(pick(heading, english)), {}};
  for (const Entry& entry : table) {
    std::optional<std::string> text = entry.byFamily != nullptr
                                          ? familyText(*entry.byFamily, info, entry.fallback, english)
                                          : std::string(pick(entry.text, english));
    if (text) section.lines.push_back({std::move(*text), entry.symbol, entry.colour});
  }
  return section;
}

}  // namespace

SheetSection gameOptions(const GameTypeInfo* info, bool english) {
  return entries({"Game Options", "Opciones de juego"}, kOptions, info, english);
}

SheetSection gameButtons(const GameTypeInfo* info, bool english) {
  return entries({"Game Buttons", "Botones de juego"}, kButtons, info, english);
}

SheetSection gameSymbols(const GameTypeInfo* info, bool english) {
  return entries({"Game Symbols", "Símbolos del juego"}, kSymbols, info, english);
}

}  // namespace tessarine::help
