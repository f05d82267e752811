// The statistics screen: a copy of the figures taken when it opens, the texts it shows and the
// sheets it opens. It never sees later changes: the main screen builds it anew each time.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/clock.h"
#include "statistics/statistics.h"

namespace tessarine {

// The width, in logical pixels, that the size factors assume where no screen can be asked.
inline constexpr double kDefaultScreenWidth = 390.0;

// A system symbol drawn as a button, the named colour it takes, and whether a touch does anything.
struct ButtonLook {
  std::string_view symbol;
  std::string_view color = "blue";
  double opacity = 1.0;
  bool enabled = true;
  friend bool operator==(const ButtonLook&, const ButtonLook&) = default;
};

inline constexpr ButtonLook kBackButton{"chevron.left"};
inline constexpr ButtonLook kShareButton{"square.and.arrow.up"};

// One line of the block of figures; a value without a label stands on a line of its own.
struct FigureLine {
  std::string label;
  std::string value;
  friend bool operator==(const FigureLine&, const FigureLine&) = default;
};

struct SecondView : ScoreLists {
  bool showingFifthSheet = false;
  bool showingSixthSheet = false;
  bool isShareSheetPresented = false;

  std::string latestScore;
  int daysAvailable = 0;
  int gamesPlayed = 0;
  int gamesCompleted = 0;
  int currentStreakLength = 0;
  std::string currentStreak;
  int maxStreakLength = 0;
  std::string maxStreak;
  std::array<int, kScoreSlots> scoreInt{};
  int daysFromApril1st = 0;
  std::array<int, kLatestScores> latestTenScores{};
  std::string unfinishedTitle, unfinishedDate;
  std::string averageScore, latestTenAverage, winPercentage;
  std::string gameType;
  bool EnglishTranslation = true;
  bool thankYouFlag = false;

  double fontSizeTitle = 0, fontSizeText = 0, symbolWidth = 0, marginSize = 0;

  std::string_view title() const;
  std::string_view thankYouLine() const;  // empty unless the thank-you cover is up
  std::string_view latestScoreTitle() const;
  // The block of figures, top to bottom, with only the rows that are shown.
  std::vector<FigureLine> figures() const;

  ButtonLook distributionButton() const { return {"chart.bar.doc.horizontal"}; }
  ButtonLook listButton() const;  // dim and dead until a game has been played

  void openDistribution() { showingSixthSheet = true; }
  void toggleShareSheet() { isShareSheetPresented = !isShareSheetPresented; }
  // Returns whether the list opened: the button does nothing before a first game.
  bool openList();
};

SecondView makeSecondView(const Statistics& stats, const StatisticsScope& scope, const Clock& clock,
                          double screenWidth = kDefaultScreenWidth);

}  // namespace tessarine
