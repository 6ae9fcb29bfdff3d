// files/file_names.h - the fixed names of the program's files, the extension of the others, and the marker lines.
#pragma once

namespace tallyhoop {

inline constexpr const char* kStartMarker = "*START*";
inline constexpr const char* kEndMarker = "*END*";

} // namespace tallyhoop

namespace tallyhoop::file_name {

inline constexpr const char* kSetup = "POOLSTART.THS";
inline constexpr const char* kResults = "TALLYHOOP.THS";
inline constexpr const char* kTeamNames = "NCAALIST.THS";
inline constexpr const char* kPlayerNames = "PLAYERNAMES.CSV";
inline constexpr const char* kPlayerNamesErrors = "PLAYERNAMES.TXT";
inline constexpr const char* kPrizes = "PRIZES.CSV";
inline constexpr const char* kSettings = "TALLYHOOP.INI";
inline constexpr const char* kHelp = "TALLYHOOP.HLP";
inline constexpr const char* kDemoInstaller = "DEMOSET.EXE";
inline constexpr const char* kWorkFile = "TEMPPRT.TXT";
inline constexpr const char* kSelectionExtension = ".THC";

} // namespace tallyhoop::file_name
