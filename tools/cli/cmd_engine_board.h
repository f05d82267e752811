// A board for the engine commands: the game type's catalogue row, a chosen answer, scored rows.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/lists.h"
#include "cli/command.h"
#include "engine/board.h"
#include "engine/hints.h"
#include "engine/keypad.h"
#include "engine/knowledge.h"

namespace tessarine::cli {

// Serves ANSWER as the type's answer file (day 0) and reads every other list from the folder.
class AnswerSource : public ListSource {
 public:
  AnswerSource(std::unique_ptr<ListSource> inner, std::string answerFile, std::string answer)
      : inner_(std::move(inner)), answerFile_(std::move(answerFile)), answer_(std::move(answer)) {}
  std::optional<std::string> read(const std::string& name) const override {
    if (name == answerFile_) return answer_ + "\n";
    return inner_->read(name);
  }

 private:
  std::unique_ptr<ListSource> inner_;
  std::string answerFile_, answer_;
};

class EngineBoard {
 public:
  static constexpr int kBoardCells = 56;  // as the main screen's board

  // TYPE and ANSWER from the command line; ANSWER may be empty when the command needs none.
  EngineBoard(const Args& args, const std::string& type, const std::string& answer);
  const std::string& gameType() const { return gameType_; }
  Board& board() { return board_; }
  Keypad& keypad() { return keypad_; }
  Knowledge& knowledge() { return knowledge_; }
  HintState& hints() { return hints_; }
  const Lists& lists() const { return *lists_; }

  // Checks that `guess` fills a row exactly.
  void requireRowLength(const std::string& guess) const;
  // Writes `guess` into row `row` and makes it the active row.
  void enterRow(int row, const std::string& guess);
  // Enters and colours a row as the replay does: a win paints it whole.
  void playRow(int row, const std::string& guess);
  // The colours of the active row, lower-case names separated by blanks.
  std::string rowColors() const;

 private:
  std::unique_ptr<ListSource> source_;
  std::unique_ptr<Lists> lists_;
  std::string gameType_;
  Board board_{kBoardCells};
  Keypad keypad_;
  Knowledge knowledge_;
  HintState hints_;
};

}  // namespace tessarine::cli
