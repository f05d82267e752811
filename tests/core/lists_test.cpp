#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "catalogue/fatal_error.h"
#include "catalogue/lists.h"

namespace tessarine {
namespace {

// Lists held in memory, counting how often each is read.
class MemorySource : public ListSource {
 public:
  std::map<std::string, std::string> files;
  mutable std::map<std::string, int> reads;
  std::optional<std::string> read(const std::string& name) const override {
    ++reads[name];
    const auto found = files.find(name);
    if (found == files.end()) return std::nullopt;
    return found->second;
  }
};

// "L0\nL1\n..." with a final newline, as the generator writes them.
std::string numberedLines(int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += "L" + std::to_string(i) + "\n";
  return text;
}

struct DayCase {
  const char* gameType;
  int dayIndex;
  const char* expected;
};

class AnswerOfDay : public testing::TestWithParam<DayCase> {};

TEST_P(AnswerOfDay, FollowsTheModulusRule) {
  MemorySource source;
  source.files["3LetterAnswers"] = numberedLines(3654);
  source.files["4GLetterAnswers"] = numberedLines(5480);
  source.files["5GLetterAnswers"] = numberedLines(7306);
  const Lists lists(source);
  EXPECT_EQ(lists.answer(GetParam().gameType, GetParam().dayIndex), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Lists, AnswerOfDay,
                         testing::Values(DayCase{"A", 0, "L0"}, DayCase{"A", 3653, "L3653"},
                                         DayCase{"A", 3654, "L0"}, DayCase{"A", 3655, "L1"},
                                         DayCase{"A", 7308, "L0"}, DayCase{"A", -1, "L0"},
                                         DayCase{"A", -4000, "L0"}, DayCase{"2", 3654, "L3654"},
                                         DayCase{"2", 5479, "L5479"}, DayCase{"2", 5480, "L0"},
                                         DayCase{"3", 7306, "L0"}, DayCase{"3", 7305, "L7305"},
                                         // No list: the default word, without touching any file.
                                         DayCase{"V", 5, "Tessarine"}, DayCase{"Ñ", 5, "Tessarine"},
                                         DayCase{"Ó", 5, "Tessarine"}, DayCase{"2", -3, "L0"}));

TEST(Lists, AnswerIsTrimmed) {
  MemorySource source;
  source.files["5LetterAnswers"] = " CRANE \r\n" + numberedLines(3653);
  const Lists lists(source);
  EXPECT_EQ(lists.answer("C", 0), "CRANE");
}

struct MissingCase {
  const char* what;
  std::function<void(const Lists&)> use;
  const char* message;
};

TEST(Lists, MissingFileIsFatalWithItsName) {
  const MissingCase cases[] = {
      // The three-letter answers have always named their validity file.
      {"3 letter answer", [](const Lists& l) { l.answer("A", 0); },
       "Could not load 3LetterWords.txt from bundle."},
      {"4 letter answer", [](const Lists& l) { l.answer("B", 0); },
       "Could not load 4LetterAnswers.txt from bundle."},
      {"genius answer", [](const Lists& l) { l.answer("3", 9); },
       "Could not load 5GLetterAnswers.txt from bundle."},
      {"validity", [](const Lists& l) { l.containsWord("5LetterWords", "CRANE"); },
       "Could not load 5LetterWords.txt from bundle."},
      {"primes", [](const Lists& l) { l.containsLine("3DigitPrimes", "101"); },
       "Could not load 3DigitPrimes.txt from bundle."},
      {"translation", [](const Lists& l) { l.translation("X", "PERRO"); },
       "Could not load 5LetterTranslation.txt from bundle."},
      // An answer file shorter than its schedule, or empty, leaves days that can never be won.
      {"short answers", [](const Lists& l) { l.answer("C", 0); },
       "Could not load 5LetterAnswers.txt from bundle."},
      {"empty answers", [](const Lists& l) { l.answer("2", 0); },
       "Could not load 4GLetterAnswers.txt from bundle."},
  };
  for (const auto& c : cases) {
    MemorySource source;
    source.files["3LetterWords"] = "CAT\n";
    source.files["5LetterWords"] = "CRANE\n\xC3(\n";  // a broken Ñ: the text does not decode
    source.files["5LetterAnswers"] = numberedLines(3653);
    source.files["4GLetterAnswers"] = "";
    const Lists lists(source);
    try {
      c.use(lists);
      ADD_FAILURE() << c.what << ": no fatal error";
    } catch (const FatalError& error) {
      EXPECT_STREQ(error.what(), c.message) << c.what;
    }
  }
}

TEST(Lists, EachFileIsReadOnce) {
  MemorySource source;
  source.files["5LetterAnswers"] = numberedLines(3654);
  source.files["5LetterWords"] = "CRANE a large bird\nSLATE a rock\n";
  const Lists lists(source);
  for (int day = 0; day < 20; ++day) {
    lists.answer("C", day % 2);
    EXPECT_TRUE(lists.containsWord("5LetterWords", day % 2 ? "SLATE" : "CRANE"));
    EXPECT_FALSE(lists.containsWord("5LetterWords", "QQQQQ"));
  }
  EXPECT_EQ(source.reads["5LetterAnswers"], 1);
  EXPECT_EQ(source.reads["5LetterWords"], 1);
}

TEST(Lists, TranslationTakesTheLastMatchingLine) {
  MemorySource source;
  source.files["4LetterTranslation"] = "CASA house\nMESA table\nCASA  home \nAÑOS years\n";
  source.files["5LetterTranslation"] = "NIÑOS children\n";
  const Lists lists(source);
  const std::pair<std::pair<const char*, const char*>, const char*> cases[] = {
      {{"W", "CASA"}, "home"},      {{"W", "MESA"}, "table"},     {{"W", "AÑOS"}, "years"},
      {{"X", "NIÑOS"}, "children"}, {{"W", "AÑO"}, "Tessarine"},  {{"W", "PATO"}, "Tessarine"},
      {{"C", "CASA"}, "Tessarine"}, {{"X", "CASA"}, "Tessarine"},
  };
  for (const auto& [query, expected] : cases) {
    EXPECT_EQ(lists.translation(query.first, query.second), expected) << query.first << " " << query.second;
  }
}

TEST(Lists, WordListsCompareTheFirstCharactersOfALine) {
  MemorySource source;
  source.files["5LetterWords"] = "CRANE a large wading bird\nSLATE\n";
  source.files["5SLetterWords"] = "NIÑOS\nPERRO\n";
  source.files["3DigitPrimes"] = "101 \n103\n";
  const Lists lists(source);
  EXPECT_TRUE(lists.containsWord("5LetterWords", "CRANE"));
  EXPECT_FALSE(lists.containsWord("5LetterWords", "CRANES"));
  EXPECT_TRUE(lists.containsWord("5SLetterWords", "NIÑOS"));  // six bytes, five tiles
  EXPECT_FALSE(lists.containsWord("5SLetterWords", "NINOS"));
  EXPECT_TRUE(lists.containsLine("3DigitPrimes", "101"));
  EXPECT_FALSE(lists.containsLine("3DigitPrimes", "10"));
  EXPECT_EQ(lists.definition("5LetterWords", "CRANE"), "a large wading bird");
  EXPECT_EQ(lists.definition("5LetterWords", "SLATE"), "");
}

TEST(Lists, AFolderInPlaceOfAListIsMissing) {
  const auto folder =
      std::filesystem::temp_directory_path() / ("tessarine-lists-" + std::to_string(::getpid()));
  std::filesystem::create_directories(folder / "5LetterWords.txt");
  const DirectoryListSource source(folder);
  EXPECT_EQ(source.read("5LetterWords"), std::nullopt);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tessarine
