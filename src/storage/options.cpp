#include "storage/options.h"

#include <array>

namespace tessarine {
namespace {

// clang-format off
constexpr std::array<OptionInfo, 8> kOptions = {{
    {"smartMode", &Options::smartMode, 1, "Smart Mode", "Modo inteligente"},
    {"prepopulate", &Options::prepopulate, 2, "Populate Recent 1st Guess", "Rellenar la primera estimación reciente"},
    {"EnglishTranslation", &Options::EnglishTranslation, 3, "English Translation", "English Translation"},
    {"showDefinitions", &Options::showDefinitions, 4, "Show Definitions", "Show Definitions"},
    {"EnglishWords", &Options::EnglishWords, 5, "", ""},
    {"wantHints", &Options::wantHints, 6, "Hints", "Consejos"},
    {"showStarStatus", &Options::showStarStatus, 7, "Show Star Status", "Mostrar estado de estrella"},
    {"useQWERTY", &Options::useQWERTY, 8, "Use QWERTY Keyboard", "Utilice el teclado QWERTY"},
}};
// clang-format on

}  // namespace

std::span<const OptionInfo> optionTable() {
  return kOptions;
}

const OptionInfo* findOption(std::string_view name) {
  for (const auto& option : kOptions) {
    if (option.name == name) return &option;
  }
  return nullptr;
}

}  // namespace tessarine
