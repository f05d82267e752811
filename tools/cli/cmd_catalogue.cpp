#include <iostream>

#include "catalogue/catalogue.h"
#include "cli/command.h"

namespace tessarine::cli {
namespace {

std::string_view orDash(std::string_view text) {
  return text.empty() ? "-" : text;
}

int catalogue(const Args& args) {
  if (!args.positional().empty()) throw UsageError{"catalogue takes no argument"};
  for (const auto& info : gameCatalogue()) {
    std::cout << info.gameType << ' ' << info.typeOfGame << ' ' << info.tiles << ' ' << info.rows << ' '
              << info.par << ' ' << orDash(info.answerFile) << ' '
              << (info.modulus > 0 ? std::to_string(info.modulus) : "-") << ' ' << orDash(info.validityFile)
              << "\n";
  }
  return 0;
}

const Registrar command({"catalogue", "catalogue", catalogue});

}  // namespace
}  // namespace tessarine::cli
