#pragma once

#include <string>
#include <string_view>

#include "storage/data_manager.h"
#include "storage/options.h"

namespace tessarine {

// The settings store holds two records: 0 the earliest playable day in four digits, 1 the options,
// `gameType` followed by eight "Y"/"N" flags. Only "Y" reads as true.
constexpr const char* kDefaultFlags = "NNYYYNNY";

// `gameType` and the eight flags, e.g. "CNNYYYNNY".
std::string optionsRecord(const Options& options);

// Older versions stored fewer flags: the missing ones take their defaults.
std::string lengthenedOptions(const std::string& record);

// The options of a record, lengthened first. A game type that does not read is "C".
Options parseOptionsRecord(const std::string& record);

// Rewrites record 0; false when there is no record 0 or the write failed.
bool writeMinimumDay(SettingsDataManager& settingDM, int minimumDayIndex);

}  // namespace tessarine
