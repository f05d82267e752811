// A real session on stores in a fresh temporary folder, with pinned clock, seed and lists.
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "catalogue/list_source.h"
#include "catalogue/lists.h"
#include "session/session.h"
#include "storage/record_text.h"

namespace tessarine::testing {

// Day 649 is January 10, 2024; the fixture lists make WIELD its answer and 6X7=42 every equation's.
constexpr int kToday = 649;

inline std::string dayRecord(int day, const std::string& type, int score, std::string cells,
                             const std::string& marks = "000000") {
  cells.resize(50, ' ');
  return paddedDayIndex(day) + type + std::to_string(score) + cells + marks;
}

class SessionTest : public ::testing::Test {
 protected:
  SessionTest() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(info->test_suite_name()) + "_" + info->name();
    for (char& c : name)
      c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    dir_ = std::filesystem::temp_directory_path() / ("tessarine_" + name + "_" + std::to_string(getpid()));
    std::filesystem::remove_all(dir_);
    std::filesystem::create_directories(dir_);
  }
  ~SessionTest() override {
    session_.reset();
    std::filesystem::remove_all(dir_);
  }

  void seedRecords(const std::vector<std::string>& records) {
    CoreDataManager core(dir_);
    for (const auto& record : records)
      core.saveEntry(record);
  }
  void seedSettings(int minimumDay, const std::string& options = "CNNYYYNNY") {
    SettingsDataManager settings(dir_);
    settings.saveEntry(paddedDayIndex(minimumDay));
    settings.saveEntry(options);
  }
  std::vector<std::string> storedRecords() {
    std::vector<std::string> texts;
    for (const auto& entry : CoreDataManager(dir_).getAllEntries())
      texts.push_back(entry.text);
    return texts;
  }

  Session& start() {
    session_ = std::make_unique<Session>(dir_, lists_, clock_, random_, log_);
    session_->launch();
    return *session_;
  }
  Session& restart() {
    session_.reset();
    return start();
  }
  void setOption(bool Options::*field, bool value) {
    Options options = session_->options();
    options.*field = value;
    session_->applyOptions(options);
  }
  void setGameType(const std::string& gameType) {
    Options options = session_->options();
    options.gameType = gameType;
    session_->applyOptions(options);
  }
  void type(const std::string& text) {
    for (const auto& symbol : splitSymbols(text))
      session_->enterSymbol(symbol);
  }
  void play(const std::string& word) {
    type(word);
    session_->submitGuess();
  }
  const ContentView& view() const { return session_->view(); }
  std::string row(int r) const {
    std::string text;
    for (int c = 0; c < view().gameLetters; ++c) {
      const auto& letter = view().cellLetter[r * view().gameLetters + c];
      text += letter == kEmptyCell ? "." : letter;
    }
    return text;
  }
  std::string colors(int r) const {
    static const std::string letters = "WXGBYORCPK";
    std::string text;
    for (int c = 0; c < view().gameLetters; ++c)
      text += letters[static_cast<int>(view().cellBackground[r * view().gameLetters + c])];
    return text;
  }

  std::filesystem::path dir_;
  DirectoryListSource source_{std::filesystem::path(TESSARINE_TESTDATA_DIR) / "session"};
  Lists lists_{source_};
  FixedClock clock_{LocalDateTime{2024, 1, 10, 12, 0, 0}};
  SplitMix64 random_{7};
  std::ostringstream log_;
  std::unique_ptr<Session> session_;
};

}  // namespace tessarine::testing
