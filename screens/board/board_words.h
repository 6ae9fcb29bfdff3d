// screens/board/board_words.h - what a screen reader says of a place of the bracket, and what the status line explains.
#pragma once

#include "screens/board/board_picture.h"

#include <string>

namespace tallyhoop {

/// @returns a region's title without the word that everybody knows: "West Region" is "West"
std::string shortNameOfRegion(const Field& field, int region);

/// @returns where a place is, such as "West, winner of second round, game 3"
std::string nameOfPlace(const Field& field, Position position);

/// @returns where a place is, what became of the pick there, and the team, such as
///          "West, winner of second round, game 3, X wrong pick: Duke"
std::string spokenPlace(const BoardPicture& picture, Position position);

/// @returns "Seed of West, row 3"
std::string spokenSeed(const Field& field, TeamRow row);

/// @returns the marker as it is seen and what it means, "= right pick"; empty for a pick without a marker
/// @param whose the names beside the markers: a player's picks, or the results
std::string spokenMark(Verdict verdict, MarkedNames whose);

/// @returns "Points for a win in the first round" for rounds 1..6
std::string spokenPayoff(int round);

/// @returns what the person can do at a place, or what became of the pick there
std::string explanationOf(const BoardPicture& picture, Position position);

/// @returns "60 of 63 picked", or played when the bracket is the results
std::string progressOf(const Bracket& bracket, bool isResults);

/// @returns " 3 games have no pick.", to follow another sentence; empty when every game has one
std::string withoutPick(const Bracket& bracket);

} // namespace tallyhoop
