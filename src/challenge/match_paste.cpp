// Filling the key or a received guess from a pasted text. The player still confirms with submit,
// so a paste never plays a move by itself.
#include "catalogue/catalogue.h"
#include "catalogue/lists.h"
#include "challenge/match.h"
#include "challenge/paste_message.h"

namespace tessarine {

bool Match::typeKey(const std::string& digits) {
  if (m_.activeRow() != -1 || !isKeyDigits(digits)) return false;
  clearKey();
  for (const char digit : digits)
    enterKeyDigit(digit - '0');
  return true;
}

bool Match::canTypeReceivedGuess() const {
  const bool signal =
      m_.selectedFoundAnswer || m_.selectedWalked || m_.selectedStuckOut || m_.selectedMissedFinalGuess;
  return m_.activeRow() >= 0 && m_.opponentGuess && m_.showKeypad && !m_.waitingForGuess && !signal &&
         !m_.gameOver;
}

// From the row's first cell, over whatever was carried forward; an equation keeps its "=".
bool Match::typeWord(const std::string& word) {
  const Board& b = m_.board;
  const auto symbols = splitSymbols(word);
  if (b.activeRow < 0 || !m_.showKeypad || static_cast<int>(symbols.size()) != b.gameLetters) return false;
  for (int column = 0; column < b.gameLetters; ++column) {
    const std::string& symbol = symbols[static_cast<std::size_t>(column)];
    if (isEquationType(m_.gameType) && column == b.answer.equalsColumn && symbol == "=") continue;
    touchCell(column);
    enterSymbol(symbol);
  }
  return true;
}

std::string Match::paste(std::string_view text) {
  const PastedMessage pasted = readPastedMessage(text, english_);
  if (!pasted.message.empty()) return pasted.message;
  if (m_.activeRow() == -1) {
    if (typeKey(pasted.keyDigits)) return {};
    return english_ ? "No challenge key found in the pasted text"
                    : "No se encontró la clave del desafío en el texto pegado";
  }
  if (!canTypeReceivedGuess())
    return english_ ? "Choose what your opponent did before pasting their guess"
                    : "Elige lo que hizo tu oponente antes de pegar su conjetura";
  if (pasted.guess.empty() || !typeWord(pasted.guess))
    return english_ ? "No guess that fits this row in the pasted text"
                    : "No hay en el texto pegado una conjetura que quepa en esta fila";
  return {};
}

}  // namespace tessarine
