// screens/help_topics.h - the anchors in TALLYHOOP.HLP that screens and messages lead to.
#pragma once

#include <array>

namespace tallyhoop::help_topic {

inline constexpr const char* kStart = "start";
inline constexpr const char* kDemo = "demo";
inline constexpr const char* kSetup = "setup";
inline constexpr const char* kSeeds = "seeds";
inline constexpr const char* kSelections = "selections";
inline constexpr const char* kEntries = "entries"; ///< how players hand in their brackets
inline constexpr const char* kImport = "import";
inline constexpr const char* kResults = "results";
inline constexpr const char* kScores = "scores";     ///< the marks and the score of one selection
inline constexpr const char* kScoreList = "ranking"; ///< the scores of all players
inline constexpr const char* kOutlook = "outlook";
inline constexpr const char* kReports = "reports";
inline constexpr const char* kEmail = "email";
inline constexpr const char* kPlayers = "players";
inline constexpr const char* kMoney = "money";   ///< fees, prizes and the final sheet
inline constexpr const char* kRepair = "repair"; ///< of a faulty player list

inline constexpr std::array kAll{kStart,  kDemo,      kSetup,   kSeeds, kSelections, kEntries, kImport,  kResults,
                                 kScores, kScoreList, kOutlook, kMoney, kReports,    kEmail,   kPlayers, kRepair};

} // namespace tallyhoop::help_topic
