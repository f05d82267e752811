#include "statistics/statistics_share.h"

#include "catalogue/catalogue.h"

namespace tessarine {

std::string statisticsShareText(const SecondView& view) {
  const bool en = view.EnglishTranslation;
  const GameTypeInfo* info = findGameType(view.gameType);
  std::string text = en ? "STATISTICS\nTessarine " : "ESTADÍSTICAS\nTessarina ";
  text += info != nullptr ? info->statisticsShareCode : kNoShareCode;
  text += "\n\n";
  text += (en ? "Games Completed:  " : "Juegos completados:  ") + std::to_string(view.gamesCompleted) + "\n";
  text += (en ? "Average Score:  " : "Puntuación media:  ") + view.averageScore + "\n";
  if (view.gamesCompleted >= 10)
    text += (en ? "Latest 10 Game Average:  " : "Promedio de los últimos 10 juegos:  ") +
            view.latestTenAverage + "\n";
  text += (en ? "Win %:  " : "Ganar %:  ") + view.winPercentage + "\n";
  text += (en ? "Current Streak:  " : "Racha actual:  ") + std::to_string(view.currentStreakLength) + "\n";
  text += view.currentStreak + "\n";
  text += (en ? "Max Streak:  " : "racha máxima:  ") + std::to_string(view.maxStreakLength) + "\n";
  return text + view.maxStreak;
}

std::optional<std::string> listShareText(const FifthView& view) {
  if (view.listInForce() == nullptr) return std::string();
  const std::vector<ListEntry> entries = view.entries();
  if (entries.empty()) return std::nullopt;
  const GameTypeInfo* info = findGameType(view.gameType);
  std::string text;
  for (const ListEntry& entry : entries) {
    if (!text.empty()) text += "\n";
    text += view.dateOf(entry.day) + ",";
    if (info == nullptr) {
      text += std::string(kNoScoreName) + "," + std::string(kNoScoreName);
      continue;
    }
    text += std::string(scoreName(entry.score - 1, view.gameType, view.EnglishTranslation)) + "," +
            std::to_string(entry.score - info->par);
  }
  return text;
}

}  // namespace tessarine
