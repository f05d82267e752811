#include "statistics/statistics_texts.h"

#include <cmath>
#include <cstdio>

#include "catalogue/calendar.h"
#include "catalogue/catalogue.h"
#include "session/content_view.h"

namespace tessarine {
namespace {

std::string dateText(const ContentView& view, const Clock& clock, int relativeDay) {
  return displayDateString(clock, relativeDay, view.thankYouFlag, view.EnglishTranslation);
}

std::string twoDecimals(float value) {
  char text[64];
  std::snprintf(text, sizeof text, "%.2f", static_cast<double>(value));
  return text;
}

// The texts for a type without games; empty when there are games to speak of.
std::string noGamesText(const ContentView& view) {
  if (view.gamesCompleted != 0) return {};
  if (view.gamesPlayed != 0)
    return view.EnglishTranslation ? "No games completed" : "No hay juegos completados";
  return view.EnglishTranslation ? "No games played" : "No se jugaron juegos";
}

const char* noWinsText(const ContentView& view) {
  return view.EnglishTranslation ? "No games won" : "Sin juegos ganados";
}

bool rowsKnown(const ContentView& view) {
  return findGameType(view.gameType) != nullptr;
}

}  // namespace

int currentStreakLength(const ContentView& view) {
  if (view.gamesCompleted == 0 || view.latestWinDate == 1 || view.latestScore == view.gameRows) return 0;
  return view.latestScoreDate - view.currentStreakStart + 1;
}

int maxStreakLength(const ContentView& view) {
  if (view.gamesCompleted == 0 || view.maxStreakEnd > 0) return 0;
  return view.maxStreakEnd - view.maxStreakStart + 1;
}

std::string currentStreakText(const ContentView& view, const Clock& clock) {
  if (std::string none = noGamesText(view); !none.empty()) return none;
  if (view.latestWinDate == 1) return noWinsText(view);
  if (view.latestScore == view.gameRows)
    return (view.EnglishTranslation ? "Last win " : "última victoria ") +
           dateText(view, clock, view.latestWinDate);
  return dateText(view, clock, view.currentStreakStart) + " - " + dateText(view, clock, view.latestScoreDate);
}

std::string maxStreakText(const ContentView& view, const Clock& clock) {
  if (std::string none = noGamesText(view); !none.empty()) return none;
  if (view.maxStreakEnd > 0) return noWinsText(view);
  return dateText(view, clock, view.maxStreakStart) + " - " + dateText(view, clock, view.maxStreakEnd);
}

std::string latestScoreText(const ContentView& view, const Clock& clock) {
  if (view.latestScoreDate <= 0)
    return dateText(view, clock, view.latestScoreDate) + " " +
           std::string(scoreName(view.latestScore, view.gameType, view.EnglishTranslation));
  if (view.gamesPlayed != 0)
    return view.EnglishTranslation ? "No games completed" : "No hay juegos completados";
  return view.EnglishTranslation ? "No games played" : "No se jugaron juegos";
}

std::string averageScoreText(const ContentView& view) {
  if (view.gamesCompleted == 0) return {};
  if (!rowsKnown(view)) return "0.00";
  float sum = 0.0f;
  for (int score = 1; score <= view.gameRows + 1 && score <= kScoreSlots; ++score)
    sum += static_cast<float>(score * view.scoreInt[score - 1]);
  return twoDecimals(sum / static_cast<float>(view.gamesCompleted));
}

std::string latestTenAverageText(const ContentView& view) {
  // Always over ten slots, finished or not: unplayed slots pull the figure down.
  float sum = 0.0f;
  for (const int score : view.latestTenScores)
    sum += static_cast<float>(score);
  const float rounded = std::round(sum / 10.0f * 100.0f) / 100.0f;
  return twoDecimals(rounded);
}

std::string winPercentageText(const ContentView& view) {
  if (view.gamesCompleted == 0) return {};
  if (!rowsKnown(view)) return "0.00";
  int wins = 0;
  for (int score = 1; score <= view.gameRows && score <= kScoreSlots; ++score)
    wins += view.scoreInt[score - 1];
  const int losses = view.gameRows < kScoreSlots ? view.scoreInt[view.gameRows] : 0;
  if (losses == 0) return "100";
  if (wins == 0) return "0";
  return twoDecimals(static_cast<float>(wins) / static_cast<float>(wins + losses) * 100.0f);
}

}  // namespace tessarine
