#include "statistics/statistics_texts.h"

#include <cmath>
#include <cstdio>

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"
#include "statistics/statistics.h"

namespace tessarine {
namespace {

std::string dateText(const StatisticsScope& scope, const Clock& clock, int relativeDay) {
  return displayDateString(clock, relativeDay, scope.thankYouFlag, scope.EnglishTranslation);
}

std::string twoDecimals(float value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.2f", static_cast<double>(value));
  return text;
}

// The texts for a type without games; empty when there are games to speak of.
std::string noGamesText(const Statistics& stats, const StatisticsScope& scope) {
  if (stats.gamesCompleted != 0) return {};
  if (stats.gamesPlayed != 0)
    return scope.EnglishTranslation ? "No games completed" : "No hay juegos completados";
  return scope.EnglishTranslation ? "No games played" : "No se jugaron juegos";
}

const char* noWinsText(const StatisticsScope& scope) {
  return scope.EnglishTranslation ? "No games won" : "Sin juegos ganados";
}

bool rowsKnown(const StatisticsScope& scope) {
  return findGameType(scope.gameType) != nullptr;
}

}  // namespace

int currentStreakLength(const Statistics& stats, const StatisticsScope& scope) {
  if (stats.gamesCompleted == 0 || stats.latestWinDate == 1 || stats.latestScore == scope.gameRows) return 0;
  return stats.latestScoreDate - stats.currentStreakStart + 1;
}

int maxStreakLength(const Statistics& stats, const StatisticsScope& scope) {
  if (stats.gamesCompleted == 0 || stats.maxStreakEnd > 0) return 0;
  return stats.maxStreakEnd - stats.maxStreakStart + 1;
}

std::string currentStreakText(const Statistics& stats, const StatisticsScope& scope, const Clock& clock) {
  if (std::string none = noGamesText(stats, scope); !none.empty()) return none;
  if (stats.latestWinDate == 1) return noWinsText(scope);
  if (stats.latestScore == scope.gameRows)
    return (scope.EnglishTranslation ? "Last win " : "última victoria ") +
           dateText(scope, clock, stats.latestWinDate);
  return dateText(scope, clock, stats.currentStreakStart) + " - " +
         dateText(scope, clock, stats.latestScoreDate);
}

std::string maxStreakText(const Statistics& stats, const StatisticsScope& scope, const Clock& clock) {
  if (std::string none = noGamesText(stats, scope); !none.empty()) return none;
  if (stats.maxStreakEnd > 0) return noWinsText(scope);
  return dateText(scope, clock, stats.maxStreakStart) + " - " + dateText(scope, clock, stats.maxStreakEnd);
}

std::string latestScoreText(const Statistics& stats, const StatisticsScope& scope, const Clock& clock) {
  if (stats.latestScoreDate <= 0)
    return dateText(scope, clock, stats.latestScoreDate) + " " +
           std::string(scoreName(stats.latestScore, scope.gameType, scope.EnglishTranslation));
  if (stats.gamesPlayed != 0)
    return scope.EnglishTranslation ? "No games completed" : "No hay juegos completados";
  return scope.EnglishTranslation ? "No games played" : "No se jugaron juegos";
}

std::string unfinishedTitle(const Statistics& stats, const StatisticsScope& scope) {
  if (stats.latestUnfinishedDate <= 0)
    return scope.EnglishTranslation ? "Latest unfinished day:" : "Último día sin terminar:";
  return scope.EnglishTranslation ? "Latest available day:" : "Último día disponible:";
}

std::string unfinishedDate(const Statistics& stats, const StatisticsScope& scope, const Clock& clock) {
  if (stats.latestUnfinishedDate <= 0) return dateText(scope, clock, stats.latestUnfinishedDate);
  const bool allPlayed = stats.latestAvailableDate > 0 ||
                         stats.gamesCompleted >= scope.latestDateIndex + 1 - scope.minimumDayIndex;
  if (allPlayed)
    return scope.EnglishTranslation ? "All available games have been played."
                                    : "Se han jugado todos los juegos disponibles.";
  return dateText(scope, clock, stats.latestAvailableDate);
}

std::string averageScoreText(const Statistics& stats, const StatisticsScope& scope) {
  if (stats.gamesCompleted == 0) return {};
  if (!rowsKnown(scope)) return "0.00";
  float sum = 0.0f;
  for (int score = 1; score <= scope.gameRows + 1 && score <= kScoreSlots; ++score)
    sum += static_cast<float>(score * stats.scoreInt[score - 1]);
  return twoDecimals(sum / static_cast<float>(stats.gamesCompleted));
}

std::string latestTenAverageText(const Statistics& stats, const StatisticsScope& scope) {
  // Always over ten slots, finished or not: unplayed slots pull the figure down.
  float sum = 0.0f;
  for (const int score : stats.latestTenScores)
    sum += static_cast<float>(score);
  const float rounded = std::round(sum / 10.0f * 100.0f) / 100.0f;
  return twoDecimals(rounded);
}

std::string winPercentageText(const Statistics& stats, const StatisticsScope& scope) {
  if (stats.gamesCompleted == 0) return {};
  if (!rowsKnown(scope)) return "0.00";
  int wins = 0;
  for (int score = 1; score <= scope.gameRows && score <= kScoreSlots; ++score)
    wins += stats.scoreInt[score - 1];
  const int losses = scope.gameRows < kScoreSlots ? stats.scoreInt[scope.gameRows] : 0;
  if (losses == 0) return "100";
  if (wins == 0) return "0";
  return twoDecimals(static_cast<float>(wins) / static_cast<float>(wins + losses) * 100.0f);
}

}  // namespace tessarine
