// screens/outlook/outlook_words.h - the sentences of the outlook's screen: how far it is, what is proven.
#pragma once

#include "pool/outlook/chances.h"
#include "pool/outlook/prospects.h"
#include "reports/outlook_words.h"
#include "screens/outlook/game_swings.h"

#include <cstdint>
#include <exception>
#include <span>
#include <string>

namespace tallyhoop {

/// @returns what these chances are called on the screen, "All alike"
std::string captionOf(ChanceKind kind);

/// @returns how these chances come about, in a sentence
std::string explanationOf(ChanceKind kind);

/// @returns lines as sentences, one after the other
std::string sentencesOf(std::span<const std::string> lines);

/// @returns by which chances an outlook is made, and whether it is counted or a forecast, in a short sentence, such as
///          "All alike: 32768 outcomes left, every one counted."
std::string basisInShort(const OutlookBasis& basis);

/// @param fraction 0..1
std::string workingWords(double fraction);

/// @returns what has ended the work before its time, as the end of a sentence
std::string troubleInWords(const std::exception_ptr& trouble);

/// @returns "First in 44 of 128 outcomes."
std::string countedWords(std::uint64_t first, std::uint64_t outcomes);

/// @returns why there is nothing to count, as every game has a winner
std::string decidedWords(bool isSupposed);

/// @returns what is proven without counting
std::string provenWords(Prospect prospect, std::size_t openGames);

/// @returns "Duke - Kansas", "Duke / Kansas - Florida"; its round where a side has more than two teams: "West final"
std::string gameText(const OpenGame& game);

/// @returns the side that helps; "-" where the game does not matter
std::string rootFor(const OpenGame& game, double swing);

/// @returns "next" where both teams are known, else "later"
std::string whenText(const OpenGame& game);

/// @returns what a game means to all players, "93.8", with its standard error after it where it has one
std::string weightText(const GameWeight& weight);

/// @returns the sum alone, "93.8"
std::string swingText(const GameWeight& weight);

} // namespace tallyhoop
