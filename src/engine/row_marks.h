// The marks beside each played row, index = board row - 1: whether it kept the colour code, was
// refused, or took a hint.
#pragma once

#include <array>

namespace tessarine {

inline constexpr int kMarkedRows = 6;
using RowMarks = std::array<bool, kMarkedRows>;

struct RowMarkSet {
  RowMarks smartModeCorrect{};
  RowMarks smartModeError{};
  RowMarks validGuessError{};
  RowMarks usedHints{};
  RowMarks singleHint{};

  void clearMarks() { *this = RowMarkSet{}; }
};

}  // namespace tessarine
