// What the coloured rows have taught about the answer: derived after every accepted row from the
// board alone, never stored. The hint filter is compiled from these sets.
#pragma once

#include <string>
#include <vector>

namespace tessarine {

struct Knowledge {
  std::vector<std::string> grayLetters;
  std::vector<int> grayLetterRanking;
  std::vector<std::string> greenLetters;
  std::vector<int> greenLetterPosition;
  std::vector<std::string> hintLettersUnique;
  std::vector<int> hintLettersExact, hintLettersLower, hintLettersUpper;
  std::vector<int> hintOpenPosition, yellowClosePosition;
  std::vector<std::vector<int>> hintOpenGroups;
  std::vector<std::string> yellowLetters;
  std::vector<std::vector<int>> yellowCloseGroups;
  int numberOfGreen = 0, numberOfBlue = 0, numberOfYellow = 0, numberOfOrange = 0;
  int numberOfExact = 0, numberOfLower = 0, numberOfUpper = 0;
};

}  // namespace tessarine
