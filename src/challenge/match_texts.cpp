#include "challenge/match_texts.h"

#include <array>

#include "catalogue/catalogue.h"
#include "catalogue/lists.h"

namespace tessarine {
namespace {

std::string pick(bool english, const char* en, const char* es) {
  return english ? en : es;
}

// Rows 2 to 7 as the texts count them; nothing outside.
std::string ordinal(int row, bool english) {
  static constexpr std::array<const char*, 6> kEnglish = {"2nd", "3rd", "4th", "5th", "6th", "7th"};
  static constexpr std::array<const char*, 6> kSpanish = {"2do", "3ro", "4to", "5to", "6to", "7mo"};
  if (row < 2 || row > 7) return {};
  return (english ? kEnglish : kSpanish)[static_cast<std::size_t>(row - 2)];
}

std::string opponentName(const MatchState& m, bool english) {
  const char* number = m.numPlayer == 2 ? " 1" : " 2";
  return (english ? std::string("Player") : std::string("Jugador")) + number;
}

std::string ownName(const MatchState& m, bool english) {
  const char* number = m.numPlayer == 2 ? " 2" : " 1";
  return (english ? std::string("Player") : std::string("Jugador")) + number;
}

bool isSpanishWordType(const std::string& gameType) {
  const GameTypeInfo* info = findGameType(gameType);
  return info != nullptr && info->kind == GameKind::spanishWords;
}

std::string tileEmoji(const Board& b, int cell) {
  const TileColor color = b.cellBackground[static_cast<std::size_t>(cell)];
  const std::string_view scoring = scoringEmoji(color);
  if (!scoring.empty()) return std::string(scoring);
  if (color == TileColor::red) return "🟥";
  if (b.cellLetter[static_cast<std::size_t>(cell)] == "=") return "🟰";
  return color == TileColor::white ? "🔲" : "🟪";
}

std::string opponentLine(const MatchState& m, bool english) {
  std::string line = opponentName(m, english);
  if (m.opponentWalked) return line + pick(english, " walked\n", " caminó\n");
  if (m.opponentMissedFinalGuess)
    return line + pick(english, " missed their final guess\n", " perdió su conjetura final\n");
  if (m.opponentStruckOut) return line + pick(english, " struck out\n", " ponchado\n");
  return line + pick(english, " final guess was ", " la conjetura final fue ") + m.opponentLastGuess + "\n";
}

std::string ownLine(const MatchState& m, bool english) {
  const std::string& guess = m.playerLastGuess;
  if (symbolCount(guess) < 3)
    return m.youWalked
               ? pick(english, "My final guess was an intentional walk\n",
                      "Mi suposición final fue una base por bolas intencional\n")
               : pick(english, "My final guess was a strikeout\n", "Mi conjetura final fue un ponche\n");
  if (m.youWalked)
    return pick(english, "My final guess was ", "Mi suposición final fue ") + guess +
           pick(english, " for a walk\n", " a pasear\n");
  return pick(english, "My final guess was ", "Mi suposición final fue ") + guess + "\n";
}

std::string answerTranslation(const MatchState& m, const Lists& lists, bool english) {
  if (!english || !isSpanishWordType(m.gameType)) return {};
  return "\n" + lists.translation(m.gameType, m.board.answer.text);
}

}  // namespace

std::string matchShareText(const MatchState& m, bool english) {
  const std::string& key = m.challengeKey;
  const int row = m.activeRow();
  // The guess just made stands in the row above the active one.
  const std::string word = row >= 1 ? rowWord(m.board, row - 1) : m.activeWord;
  if (m.youWonGame) return pick(english, "Found answer.\n", "Respuesta encontrada.\n") + key;
  if (m.youMissedFinalGuess)
    return pick(english, "I missed my final guess.\n", "Perdí mi conjetura final.\n") + key;
  if (m.youWalked) return pick(english, "I walked.\n", "Caminé.\n") + key;
  if (m.youStruckOut) return pick(english, "I struck out.\n", "Me ponché.\n") + key;
  if (m.opponentGuess && m.smartModeError && row == 1)
    return english ? "Did you enter " + word + " for my first guess?\nAnd use challenge Key " + key
                   : "Entraste " + word + " para mi primera conjetura?\nY usa la clave de desafío " + key;
  if (m.opponentGuess && m.smartModeError)
    return english ? "Your guess " + word +
                         " is not valid for my current color hints.\nAre you using challenge Key " + key
                   : "Tu invitado " + word +
                         " no es válido para mis sugerencias de color actuales.\n¿Estás usando la clave de "
                         "desafío? " +
                         key;
  const std::string tag = challengeGameTag(m.gameType);
  if (row == 1)
    return english ? "Tessarine " + tag + " challenge\n1st guess is " + word +
                         "\nEnter 🔑 in your Tessarine to accept challenge.\nKey is " + key
                   : "Tessarina " + tag + " desafío\n1st Supongo que es " + word +
                         "\nIngresar 🔑 en tus Tessarina para aceptar el desafío.\nLa clave es " + key;
  if (row >= 2 && row <= 7)
    return ordinal(row, english) + pick(english, " guess is ", " Supongo que es ") + word + "\n" + key;
  return pick(english, "8th guess is ", "8 Supongo que es ") + word + "\n" + key;
}

std::string matchFinalText(const MatchState& m, const Lists& lists, bool english) {
  std::string text = pick(english, "Tessarine ", "Tessarina ") + challengeGameTag(m.gameType) +
                     pick(english, " challenge\n", " desafío\n");
  text += m.challengeKey + "\n" + ownName(m, english) + "\n\n";
  const Board& b = m.board;
  for (int row = 0; row <= m.activeRow(); ++row) {
    for (int column = 0; column < b.gameLetters; ++column)
      text += tileEmoji(b, row * b.gameLetters + column);
    text += "\n";
  }
  if (m.youWonGame && m.opponentWonGame) {
    text += pick(english, "\nDRAW\n", "\nEMPATAR\n");
  } else if (m.youWonGame) {
    text += pick(english, "\nWIN\n", "\nGANAR\n") + opponentLine(m, english);
    if (m.playerLastGuess != m.board.answer.text) text += ownLine(m, english);
  } else if (m.opponentWonGame) {
    text += pick(english, "\nLOST\n", "\nPERDIR\n") + ownLine(m, english);
  } else {
    text += pick(english, "\nDRAW\nNeither player found the answer\n",
                 "\nEMPATAR\nNingún jugador encontró la respuesta\n") +
            ownLine(m, english);
  }
  return text + "Answer was " + m.board.answer.text + answerTranslation(m, lists, english);
}

std::string sendButtonLabel(const MatchState& m, bool english) {
  const int row = m.activeRow();
  if (m.gameOver) return pick(english, "Share final results", "Comparte los resultados finales");
  if ((m.youWonGame && !m.opponentWonGame) || m.youMissedFinalGuess)
    return pick(english, "Request Final Guess", "Solicitar estimación final");
  if (m.youWalked) return pick(english, "You Walked", "Tu caminaste");
  if (m.youStruckOut) return pick(english, "You Struck Out", "te ponchaste");
  if (row == 1) return pick(english, "Start Challenge", "Iniciar desafío");
  if (row == m.lastRow()) return pick(english, "Send Final Guess", "Enviar suposición final");
  if (row >= 2 && row <= 7)
    return english ? "Send " + ordinal(row, true) + " Guess"
                   : "Enviar " + ordinal(row, false) + " suposición";
  return "Send XX Guess";
}

std::string choiceLabel(const MatchState& m, MatchChoice choice, bool english) {
  const int row = m.activeRow();
  switch (choice) {
    case MatchChoice::guessReceived:
      if (row == 0 || row == m.lastRow())
        return pick(english, "Final Guess Received", "Suposición final recibida");
      if (row >= 1 && row <= 6)
        return english ? ordinal(row + 1, true) + " Guess Received"
                       : ordinal(row + 1, false) + " Guess recibido";
      if (row == 7) return pick(english, "8th Guess Received", "8 Guess recibido");
      return "XX Guess Received";
    case MatchChoice::foundAnswer:
      return pick(english, "Opponent Found Answer", "Oponente encontró respuesta");
    case MatchChoice::missedAnswer:
      return pick(english, "Opponent Missed Answer", "Respuesta perdida del oponente");
    case MatchChoice::walked:
      return pick(english, "Opponent Walked", "Oponente caminó");
    case MatchChoice::struckOut:
      return pick(english, "Opponent Struck Out", "Oponente tachado");
  }
  return {};
}

std::string matchStatusLine(const MatchState& m, bool english) {
  const bool lostTurn = m.youWalked || m.youStruckOut;
  const int row = m.activeRow();
  if (m.repeatedGuess) return pick(english, "Guess Was Used Previously", "Supongo que se usó anteriormente");
  if (m.repeatedEntry) return pick(english, "Repeated Entry", "Entrada repetida");
  if (m.invalidGuess && !lostTurn)
    return pick(english, "Invalid Guess Entry", "Entrada de conjetura no válida");
  if (m.smartModeError && !lostTurn) return pick(english, "Smart Mode Error", "Error de modo inteligente");
  if (m.opponentWonGame && !m.gameOver && m.opponentGuess)
    return pick(english, "Enter The Final Guess", "Introduzca la conjetura final");
  if (m.opponentWonGame && !m.gameOver)
    return pick(english, "Enter Your Final Guess", "Ingrese su conjetura final");
  if (m.invalidKeyEntry) return invalidKeyText(english);
  if (m.selectedFoundAnswer) return pick(english, "Opponent Found Answer", "Oponente encontró respuesta");
  if (m.selectedMissedFinalGuess)
    return pick(english, "Opponent Missed Answer", "Respuesta perdida del oponente");
  if (m.selectedWalked) return pick(english, "Opponent Walked", "Oponente caminó");
  if (m.selectedStuckOut) return pick(english, "Opponent Struck Out", "Oponente tachado");
  if (m.selectedIntentionalWalk) return pick(english, "Intentional Walk", "Paseo intencional");
  if (row == -1) return pick(english, "Challenge Key", "Clave de desafío");
  if (row == 0) return pick(english, "Enter 1st Guess", "Ingrese 1ra suposición");
  if (row == m.lastRow() && m.opponentGuess)
    return pick(english, "Enter The Final Guess", "Introduzca la conjetura final");
  if (row == m.lastRow()) return pick(english, "Enter Your Final Guess", "Ingrese su conjetura final");
  if (row >= 1 && row <= 6)
    return english ? "Enter " + ordinal(row + 1, true) + " Guess"
                   : "Ingrese " + ordinal(row + 1, false) + " suposición";
  if (row == 7) return pick(english, "Enter 8th Guess", "Ingrese 8 suposición");
  return "Enter XX Guess";
}

std::string matchStatusSecondLine(const MatchState& m, bool english) {
  if ((m.selectedGuessReceived && !m.gameOver) || (m.activeRow() == 0 && m.numPlayer == 2))
    return pick(english, "From Opponent", "Del oponente");
  return {};
}

std::string matchTitleLine(const MatchState& m, bool english) {
  if (m.activeRow() == -1) return pick(english, "Enter Challenge Key", "Introduce la clave del desafío");
  if (m.activeRow() == 0 && m.numPlayer == 2)
    return pick(english, "Valid ", "Válid ") + challengeGameTag(m.gameType) +
           pick(english, " Key Entered", " Clave ingresada");
  return m.challengeKey;
}

std::string matchBanner(const MatchState& m, bool english) {
  if (!m.gameOver) return {};
  switch (matchResult(m)) {
    case MatchResult::win:
      return pick(english, "WIN", "GANAR");
    case MatchResult::loss:
      return pick(english, "LOST", "PERDIR");
    case MatchResult::draw:
      break;
  }
  return pick(english, "DRAW", "EMPATAR");
}

std::string matchBannerAnswer(const MatchState& m, const Lists& lists, bool english) {
  if (!m.gameOver || m.youWonGame) return {};
  return pick(english, "Answer is ", "La respuesta es ") + m.board.answer.text +
         (isSpanishWordType(m.gameType) ? "\n" + lists.translation(m.gameType, m.board.answer.text) : "");
}

std::string invalidKeyText(bool english) {
  return pick(english, "Invalid Key Entry", "Entrada de clave no válida");
}

}  // namespace tessarine
