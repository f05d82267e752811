// Two devices of one match on the shipped lists, each with its own challenge store in a fresh
// temporary folder and its own seeded random source.
#pragma once

#include <gtest/gtest.h>

#include <unistd.h>
#include <filesystem>
#include <memory>
#include <string>

#include "catalogue/list_source.h"
#include "catalogue/lists.h"
#include "challenge/match.h"
#include "challenge/match_texts.h"
#include "engine/random_source.h"
#include "storage/record_text.h"

namespace tessarine::testing {

inline std::filesystem::path freshFolder(const std::string& tag) {
  const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
  std::string name = std::string(info->test_suite_name()) + "_" + info->name() + "_" + tag;
  for (char& c : name)
    c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
  auto dir = std::filesystem::temp_directory_path() / ("tessarine_" + name + "_" + std::to_string(getpid()));
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir);
  return dir;
}

struct Device {
  explicit Device(const Lists& lists, const std::string& tag, std::uint64_t seed)
      : dir(freshFolder(tag)),
        store(std::make_unique<ChallengeDataManager>(dir)),
        random(seed),
        match(std::make_unique<Match>(lists, *store, random, true)) {}
  ~Device() {
    match.reset();
    store.reset();
    std::filesystem::remove_all(dir);
  }
  const MatchState& s() const { return match->state(); }
  void guess(const std::string& word) {
    match->typeWord(word);
    match->submitRow();
  }

  std::filesystem::path dir;
  std::unique_ptr<ChallengeDataManager> store;
  SplitMix64 random;
  std::unique_ptr<Match> match;
};

class MatchTest : public ::testing::Test {
 protected:
  DirectoryListSource source_{TESSARINE_RESOURCES_DIR};
  Lists lists_{source_};
  Device a_{lists_, "a", 7};
  Device b_{lists_, "b", 8};

  // A opens type `gameType` with `first`; B accepts the key and enters the same guess.
  void open(const std::string& gameType, const std::string& first) {
    a_.match->openChallenge(gameType);
    a_.guess(first);
    b_.match->acceptChallenge();
    for (const auto& symbol : splitSymbols(a_.s().challengeKey))
      if (symbol[0] >= '0' && symbol[0] <= '9') b_.match->enterKeyDigit(symbol[0] - '0');
    b_.match->submitRow();
    b_.guess(first);
  }
  // `to` picks "guess received" and types what `from` just sent.
  void relay(Device& from, Device& to) {
    to.match->chooseGuessReceived();
    to.guess(from.s().playerLastGuess);
  }
};

}  // namespace tessarine::testing
