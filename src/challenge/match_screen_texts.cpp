#include "challenge/match_screen_texts.h"

#include "challenge/challenge_key.h"

namespace tessarine {

MatchScreenTexts matchScreenTexts(const std::string& gameType, bool english) {
  const std::string tag = challengeGameTag(gameType);
  if (english) {
    return {"Tessarine Challenge",
            "Balls",
            "Strikes",
            "Accept Challenge",
            "Paste message",
            "Save Challenge?",
            "Enter name for challenge",
            "Save",
            "Cancel",
            "Delete",
            "Delete Challenge?",
            "Select Challenge:",
            "Select Challenge",
            "Continue " + tag + " Challenge"};
  }
  return {"Tessarina Desafío",
          "Pelotas",
          "Huelgas",
          "Aceptar desafío",
          "Pegar mensaje",
          "¿Guardar desafío?",
          "Ingrese el nombre para el desafío",
          "Guardar",
          "Cancelar",
          "Borrar",
          "Borrar Desafío?",
          "Select Challenge:",
          "Seleccionar desafío",
          "Continuar " + tag + " Desafío"};
}

}  // namespace tessarine
