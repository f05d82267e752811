#include "statistics/second_view.h"

#include "statistics/statistics_texts.h"

namespace tessarine {

SecondView makeSecondView(const Statistics& stats, const StatisticsScope& scope, const Clock& clock,
                          double screenWidth) {
  SecondView view;
  static_cast<ScoreLists&>(view) = stats;
  view.latestScore = latestScoreText(stats, scope, clock);
  view.daysAvailable = scope.latestDateIndex + 1 - scope.minimumDayIndex;
  view.gamesPlayed = stats.gamesPlayed;
  view.gamesCompleted = stats.gamesCompleted;
  view.currentStreakLength = currentStreakLength(stats, scope);
  view.currentStreak = currentStreakText(stats, scope, clock);
  view.maxStreakLength = maxStreakLength(stats, scope);
  view.maxStreak = maxStreakText(stats, scope, clock);
  view.scoreInt = stats.scoreInt;
  view.daysFromApril1st = scope.latestDateIndex + 1;
  view.latestTenScores = stats.latestTenScores;
  view.unfinishedTitle = unfinishedTitle(stats, scope);
  view.unfinishedDate = unfinishedDate(stats, scope, clock);
  view.averageScore = averageScoreText(stats, scope);
  view.latestTenAverage = latestTenAverageText(stats, scope);
  view.winPercentage = winPercentageText(stats, scope);
  view.gameType = std::string(scope.gameType);
  view.EnglishTranslation = scope.EnglishTranslation;
  view.thankYouFlag = scope.thankYouFlag;
  view.fontSizeTitle = screenWidth * 0.06;
  view.fontSizeText = screenWidth * 0.05;
  view.symbolWidth = screenWidth * 0.1;
  view.marginSize = screenWidth * 0.025;
  return view;
}

std::string_view SecondView::title() const {
  return EnglishTranslation ? "STATISTICS" : "ESTADÍSTICAS";
}

std::string_view SecondView::thankYouLine() const {
  if (!thankYouFlag) return {};
  return EnglishTranslation ? "Thanks for playing" : "Gracias por jugar";
}

std::string_view SecondView::latestScoreTitle() const {
  return EnglishTranslation ? "Latest score:" : "Última puntuación:";
}

std::vector<FigureLine> SecondView::figures() const {
  const bool en = EnglishTranslation;
  std::vector<FigureLine> lines = {
      {en ? "  Days Available: " : "  Días disponibles: ", std::to_string(daysAvailable)},
      {en ? "  Games Played: " : "  Juegos jugados: ", std::to_string(gamesPlayed)},
      {en ? "  Games Completed: " : "  Juegos completados: ", std::to_string(gamesCompleted)},
      {en ? "  Average Score: " : "  Puntuación media: ", averageScore},
  };
  // Gated on games played, not finished, so unfinished games still pull the figure down on the
  // screen; the share text gates on finished games.
  if (gamesPlayed >= 10)
    lines.push_back(
        {en ? "  Latest 10 Game Average: " : "  Promedio de los últimos 10 juegos: ", latestTenAverage});
  lines.push_back({en ? "  Win %: " : "  Ganar %: ", winPercentage});
  lines.push_back({en ? "  Current Streak: " : "  Racha actual: ", std::to_string(currentStreakLength)});
  lines.push_back({"", currentStreak});
  lines.push_back({en ? "  Max Streak: " : "  Racha máxima: ", std::to_string(maxStreakLength)});
  lines.push_back({"", maxStreak});
  return lines;
}

ButtonLook SecondView::listButton() const {
  if (gamesPlayed == 0) return {"list.bullet.rectangle", "gray", 0.4, false};
  return {"list.bullet.rectangle"};
}

bool SecondView::openList() {
  if (!listButton().enabled) return false;
  showingFifthSheet = true;
  return true;
}

}  // namespace tessarine
