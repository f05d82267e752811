#include <gtest/gtest.h>

#include "engine/equation.h"
#include "engine/validation.h"
#include "engine_fixture.h"

namespace tessarine::testing {
namespace {

struct EquationCase {
  const char* equation;
  bool twoOperators;
  bool valid;
};

class Equation : public ::testing::TestWithParam<EquationCase> {};

TEST_P(Equation, EvaluatesExactlyInSigned64Bit) {
  const EquationCase& c = GetParam();
  const bool result =
      c.twoOperators ? isValidTwoOperatorEquation(c.equation) : isValidOneOperatorEquation(c.equation);
  EXPECT_EQ(result, c.valid) << c.equation;
}

INSTANTIATE_TEST_SUITE_P(
    OneOperator, Equation,
    ::testing::Values(EquationCase{"6X7=42", false, true}, EquationCase{"7X6=41", false, false},
                      EquationCase{"18/0=0", false, false},  // no zero divisor
                      EquationCase{"17/5=3", false, false},  // the remainder counts
                      EquationCase{"18/6=3", false, true}, EquationCase{"03+4=7", false, true},
                      EquationCase{"-5+3=-2", false, true}, EquationCase{"5+-3=2", false, true},
                      EquationCase{"12=12", false, false},    // no operator
                      EquationCase{"5+3X1=8", false, false},  // "3X1" is no number: 5+0
                      EquationCase{"5+3X1=5", false, true},
                      EquationCase{"8-+3=5", false, true}));  // "+3" is a number

INSTANTIATE_TEST_SUITE_P(
    Precedence, Equation,
    ::testing::Values(EquationCase{"1+2X3=7", true, true}, EquationCase{"1+2X3=9", true, false},
                      EquationCase{"3/2X4=6", true, true},  // (a x c)/b: only the product must divide
                      EquationCase{"8/2/2=2", true, true}, EquationCase{"9/2/1=4", true, false},
                      EquationCase{"9-2-3=4", true, true},  // equal rank from the left
                      EquationCase{"8-6/2=5", true, true}, EquationCase{"7-6/4=6", true, false},
                      EquationCase{"2X3-1=5", true, true}, EquationCase{"6/3+1=3", true, true},
                      EquationCase{"12X3/9=4", true, true}, EquationCase{"5+-3=2", true, true},
                      EquationCase{"4X-2=-8", true, true},  // "-" after "X" with B empty is a sign
                      EquationCase{"4/-2=-2", true, true},
                      EquationCase{"4-X2=4", true, true},    // an empty B is 0: 4-(0x2)
                      EquationCase{"1+2+=3", true, true}));  // op2 with an empty C adds 0

INSTANTIATE_TEST_SUITE_P(
    Overflow, Equation,
    ::testing::Values(EquationCase{"9223372036854775807+1=0", false, false},
                      EquationCase{"4611686018427387904X2=-9223372036854775808", false, false},
                      EquationCase{"-9223372036854775808/-1=1", false, false},
                      EquationCase{"99999999999999999999+1=1", false, true},  // too long: not a number, 0
                      EquationCase{"3037000500X3037000500X1=0", true, false}));

struct ValidityCase {
  const char* type;
  const char* guess;
  bool valid;
};

class Validity : public ::testing::TestWithParam<ValidityCase> {};

TEST_P(Validity, UsesTheListOfTheGameType) {
  const ValidityCase& c = GetParam();
  EngineBoard board(c.type, "");
  board.source.files["5LetterWords"] = "CRANE a large wading bird\nSPOON\n";
  board.source.files["4SLetterWords"] = "AÑOS\nNIÑO\n";
  board.source.files["3DigitPrimes"] = "101\n 211 \n";
  EXPECT_EQ(isValidGuess(board.view.gameType, board.lists, c.guess), c.valid) << c.type << " " << c.guess;
}

INSTANTIATE_TEST_SUITE_P(
    Lists, Validity,
    ::testing::Values(ValidityCase{"C", "CRANE", true},  // only the line's first five characters count
                      ValidityCase{"C", "SPOON", true}, ValidityCase{"C", "CRANX", false},
                      ValidityCase{"3", "SPOON", true},  // genius words share the plain list
                      ValidityCase{"W", "NIÑO", true}, ValidityCase{"W", "NINO", false},
                      ValidityCase{"G", "211", true},  // trimmed whole line
                      ValidityCase{"G", "435", false}, ValidityCase{"H", "000", true},
                      ValidityCase{"M", "6X7=42", true}, ValidityCase{"M", "7X6=41", false},
                      ValidityCase{"S", "3/2X4=6", true}, ValidityCase{"V", "ZZZ", true},
                      ValidityCase{"C", "", true}));

TEST(Repeat, OnlyEarlierRowsCount) {
  EngineBoard board("C", "CRANE");
  board.play({"CARGO", "SPOON", "TRADE"});
  board.enter(3, "SPOOK");
  const struct {
    const char* guess;
    bool used;
  } cases[] = {{"SPOON", true}, {"CARGO", true}, {"SPOOK", false}, {"SPOOM", false}};
  for (const auto& c : cases)
    EXPECT_EQ(wasUsedBefore(board.view, c.guess), c.used) << c.guess;
  board.view.activeRow = 0;
  EXPECT_FALSE(wasUsedBefore(board.view, "CARGO"));
}

}  // namespace
}  // namespace tessarine::testing
