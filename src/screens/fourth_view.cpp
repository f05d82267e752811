#include "screens/fourth_view.h"

#include <array>

#include "catalogue/catalogue.h"

namespace tessarine {
namespace {

// clang-format off
constexpr Bilingual kEnglishWordMatch = {"A virtual word guess game for two players: the player that guess the word in the fewest attempts wins.", ""};
constexpr Bilingual kSpanishWordMatch = {"A virtual word guess game for two players: the player that guess the word in the fewest attempts wins.", "Un juego virtual de adivinanzas de palabras para dos jugadores: el jugador que adivine la palabra en el menor número de intentos gana."};
constexpr Bilingual kNumberMatch = {"A virtual number guess game for two players: the player to guess the number in the fewest attempts wins.", "Un juego virtual de adivinanzas de números para dos jugadores: el jugador que adivine el número en el menor número de intentos gana."};
constexpr Bilingual kEquationMatch = {"A virtual equation guess game for two players: the player to guess the equation in the fewest attempts wins.", "Un juego virtual de adivinanzas de ecuaciones para dos jugadores: el jugador que adivine la ecuación en el menor número de intentos gana."};
constexpr Bilingual kOtherMatch = {"A virtual word guess game for two players: the player to guess the word in the fewest attempts wins.", ""};

// The rules after the first; they speak of eight guesses whatever the day game's rows.
constexpr std::array<Bilingual, 9> kRules = {{
    {"The player that initiates the challenge enters the first guess. This entry will not give any color hints but instead will create a 6-digit key to link both players to the same mystery answer.", "El jugador que inicia el desafío entra en el primer intento. Esta entrada no dará ninguna pista de color, sino que creará una clave de 6 dígitos para vincular a ambos jugadores con la misma respuesta misteriosa."},
    {"The player that accepts the challenge will enter the 6-digit key along with the first player's guess. This entry will produce color hints and begin the game.", "El jugador que acepte el desafío ingresará la clave de 6 dígitos junto con la suposición del primer jugador. Esta entrada producirá sugerencias de color y comenzará el juego."},
    {"Players alternate guesses until an answer is found or eight guesses have been made.", "Los jugadores alternan las conjeturas hasta que se encuentra una respuesta o se han hecho ocho conjeturas."},
    {"Once a player has found the answer, the other player gets one final guess using all the color hints already known. If the other player also guesses the correct answer, the game is a draw.", "Una vez que un jugador ha encontrado la respuesta, el otro jugador tiene una última suposición utilizando todos los consejos de color ya conocidos. Si el otro jugador también adivina la respuesta correcta, el juego es un empate."},
    {"After the eighth guess is made, the other player gets to make a guess without being given the original eighth guess. If neither player gets the correct answer, the game ends in a draw.", "Después de hacer la octava suposición, el otro jugador puede adivinar sin recibir la octava suposición original. Si ningún jugador obtiene la respuesta correcta, el juego termina en empate."},
    {"At any time, if the entered guess is not a valid answer, the player gets a strike. Three strikes result in a strikeout and the player loses their turn.", "En cualquier momento, si la conjetura ingresada no es una respuesta válida, el jugador recibe una huelga. Tres strikes dan como resultado un strikeout y el jugador pierde su turno."},
    {"At any time, if an entered guess violates Smart Mode, the player gets a ball. Four balls result in a walk and the player loses their turn.", "En cualquier momento, si una suposición ingresada viola el modo inteligente, el jugador obtiene una pelota. Cuatro bolas dan como resultado un paseo y el jugador pierde su turno."},
    {"If a player finds the answer after the other player has struck out, the player wins without having to give the other player a final guess. A player that walks will still get a final guess, if the other player finds the answer on their next guess.", "Si un jugador encuentra la respuesta después de que el otro jugador se haya tachado, el jugador gana sin tener que darle una respuesta final al otro jugador. Un jugador que camina aún obtendrá una última suposición, si el otro jugador encuentra la respuesta en su próxima suposición."},
    {"If both players walk/strikeout on the same guess, the game ends in a draw. If a player walk/strikeout in two consecutive turns, the player loses, giving the win to the other player.", "Si ambos jugadores caminan/se ponchan en la misma suposición, el juego termina en empate. Si un jugador camina/se poncha en dos turnos consecutivos, el jugador pierde y le da la victoria al otro jugador."},
}};
// clang-format on

const Bilingual& firstRule(std::string_view gameType) {
  const GameTypeInfo* info = findGameType(gameType);
  if (info == nullptr) return kOtherMatch;
  switch (info->kind) {
    case GameKind::englishWords:
    case GameKind::geniusWords:
      return kEnglishWordMatch;
    case GameKind::spanishWords:
      return kSpanishWordMatch;
    case GameKind::primeNumbers:
    case GameKind::allNumbers:
      return kNumberMatch;
    case GameKind::equations:
      break;
  }
  return kEquationMatch;
}

}  // namespace

FourthView fourthView(std::string_view gameType, bool EnglishTranslation) {
  FourthView view;
  view.rules.emplace_back(pick(firstRule(gameType), EnglishTranslation));
  for (const Bilingual& rule : kRules)
    view.rules.emplace_back(pick(rule, EnglishTranslation));
  return view;
}

}  // namespace tessarine
