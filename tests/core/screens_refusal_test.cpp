#include <gtest/gtest.h>

#include "screens/refusal_message.h"

namespace tessarine {
namespace {

struct FillCase {
  const char* sentence;
  const char* value;
  const char* expected;
};

class FillExample : public ::testing::TestWithParam<FillCase> {};

TEST_P(FillExample, ReplacesTheExampleWhereItStandsAlone) {
  EXPECT_EQ(fillExample(GetParam().sentence, GetParam().value), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Sentences, FillExample,
    ::testing::Values(
        // The entry ends at the full stop; the equation keeps its "=".
        FillCase{"The equation 7X6=41 is not a valid equation.", "9X8=71",
                 "The equation 9X8=71 is not a valid equation."},
        // Before "'s", after a comma and at each repeat; "the" and "mystery" hold no stray "E".
        FillCase{"The letter E is in the wrong spot and the mystery word has less than two E's, but on the "
                 "next guess, E was "
                 "still used twice.",
                 "Ñ",
                 "The letter Ñ is in the wrong spot and the mystery word has less than two Ñ's, but on the "
                 "next guess, Ñ was "
                 "still used twice."},
        // A capital word that only starts like the example stays ("A todas" is not the letter T).
        FillCase{"La letra T está en la palabra misteriosa pero en el lugar equivocado, pero en la siguiente "
                 "suposición la T "
                 "no se usó en ninguna posición. A todas las celdas donde se podría haber colocado la T se "
                 "les da el color "
                 "rojo.",
                 "A",
                 "La letra A está en la palabra misteriosa pero en el lugar equivocado, pero en la siguiente "
                 "suposición la A "
                 "no se usó en ninguna posición. A todas las celdas donde se podría haber colocado la A se "
                 "les da el color "
                 "rojo."},
        FillCase{"The number 435 is not a prime number.", "4350", "The number 4350 is not a prime number."}));

TEST(RefusalMessage, NoneWhenTheRowWasNotRefused) {
  ContentView view;
  view.gameType = "C";
  EXPECT_EQ(refusalMessage(view), "");
  view.refusal = {RefusalKind::smartMode, "GHOST", {SmartModeClass::grayUsedAgain, "S"}};
  EXPECT_EQ(refusalMessage(view),
            "The letter S is not in the mystery word in any spot, but on the next guess S was used again.");
  view.EnglishTranslation = false;
  EXPECT_EQ(refusalMessage(view),
            "La letra S no está en la palabra misteriosa en ningún lugar, pero en la siguiente suposición S "
            "se usó nuevamente.");
}

}  // namespace
}  // namespace tessarine
