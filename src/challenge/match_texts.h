// Every text of the match screen in both languages. The receiving player never parses these: a
// person reads them and acts, so the wording is design, odd words included.
#pragma once

#include <string>

#include "challenge/match_state.h"
#include "challenge/match_view.h"

namespace tessarine {

class Lists;

// The text of the share button while the match runs, and once it is over.
std::string matchShareText(const MatchState& m, bool english);
std::string matchFinalText(const MatchState& m, const Lists& lists, bool english);
std::string sendButtonLabel(const MatchState& m, bool english);
std::string choiceLabel(const MatchState& m, MatchChoice choice, bool english);
std::string matchStatusLine(const MatchState& m, bool english);
std::string matchStatusSecondLine(const MatchState& m, bool english);  // empty when hidden
std::string matchTitleLine(const MatchState& m, bool english);
std::string matchBanner(const MatchState& m, bool english);
// The answer under a loss or a draw by neither; empty otherwise.
std::string matchBannerAnswer(const MatchState& m, const Lists& lists, bool english);
std::string invalidKeyText(bool english);

}  // namespace tessarine
