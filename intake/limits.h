// intake/limits.h - how much is taken in at a time: everything that is handed in comes from outside.
#pragma once

#include <cstddef>

namespace tallyhoop {

inline constexpr std::size_t kMostBytesHandedIn = 1u << 20;        ///< of one file, or of one pasted text
inline constexpr std::size_t kMostBytesHandedInAtOnce = 10u << 20; ///< of all files of one import
inline constexpr std::size_t kMostFilesHandedIn = 10'000;          ///< of one import
inline constexpr std::size_t kMostEntriesHandedIn = 10'000;        ///< of one import

inline constexpr std::size_t kMostPartsOfMail = 500; ///< the messages inside it and their parts included
inline constexpr int kDeepestPartOfMail = 20;        ///< parts inside parts
inline constexpr int kDeepestMailFile = 3;           ///< mails attached as files to mails

inline constexpr std::size_t kLongestNameHandedIn = 100;         ///< characters; the player list holds 25
inline constexpr std::size_t kLongestInitialsHandedIn = 20;      ///< characters
inline constexpr std::size_t kMostBytesOfFileNameHandedIn = 255; ///< in UTF-8: the longest that file systems take

} // namespace tallyhoop
