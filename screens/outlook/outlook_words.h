// screens/outlook/outlook_words.h - the sentences of the outlook: which chances, how far it is, what is proven.
#pragma once

#include "screens/outlook/game_swings.h"
#include "screens/outlook/outlook_work.h"

#include <cstdint>
#include <string>

namespace tallyhoop {

/// @returns which chances these are, in a few words; all outcomes alike are never called a chance to win
std::string nameOf(ChanceKind kind);

/// @returns how these chances come about, in a sentence
std::string explanationOf(ChanceKind kind);

/// @returns "128 outcomes left, every one counted." or how large the forecast is and where it began
std::string sourceWords(const OutlookFigures& figures, const OpenGames& games);

/// @param fraction 0..1
std::string workingWords(double fraction);

/// @returns "First in 44 of 128 outcomes."
std::string countedWords(std::uint64_t first, std::uint64_t outcomes);

/// @returns what is proven without counting
std::string provenWords(Prospect prospect, std::size_t openGames);

/// @returns "Duke - Kansas"; a side of more than two teams is "winner of an earlier game"
std::string gameText(const OpenGame& game);

/// @returns the side that helps; "-" where the game does not matter
std::string rootFor(const OpenGame& game, double swing);

/// @returns a number with one decimal, "93.8"
std::string fixedText(double number);

} // namespace tallyhoop
