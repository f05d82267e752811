// Arithmetic checks for the equation games: a guess such as "6X7=42" is
// accepted only when the left side, evaluated in signed 64-bit with exact
// division, equals the right side.
#pragma once

#include <string_view>

namespace tessarine {

// One operator: "a op b=c".
bool isValidOneOperatorEquation(std::string_view equation);

// Two operators: "a op b op c=d", with the game's own precedence table.
bool isValidTwoOperatorEquation(std::string_view equation);

}  // namespace tessarine
