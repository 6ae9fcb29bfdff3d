// intake/review.h - what an import would do, before anything is written: one row for each entry.
#pragma once

#include "base/step.h"
#include "files/data_folder.h"
#include "files/known_files.h"
#include "intake/handed_in.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// What writing an entry does to the folder.
enum class Effect {
    New,       ///< there is no selection of this name
    Identical, ///< there is, and it is the very same
    Replaces,  ///< there is, and it is another one
    Refused,   ///< nothing: it is not written
};

struct ReviewRow {
    HandedIn handedIn;
    std::string fileName;       ///< the file that it becomes, such as "Smith_JS.THC"; empty when it is refused
    std::filesystem::path file; ///< the same, with its folder
    FileContent seen;           ///< what is there now
    int picks = 0;              ///< 0..63
    bool addsPlayer = false;    ///< its player is not in the player list, and can be added to it
    Effect effect = Effect::New;
    bool isDamagedHere = false;         ///< what it replaces is no whole selection, or cannot be read
    int differentPicks = 0;             ///< of 63, from the selection that it replaces
    bool isLate = false;                ///< there are results already
    std::size_t fileNumber = 0;         ///< which of Review::files it is among; of no use when it is refused
    std::optional<std::size_t> later{}; ///< the row of a later entry for the same file
    std::string warning;                ///< what should be looked into before it is written; empty = nothing
    bool isDoubtful = false;            ///< so much so that it is not ticked at first
    std::vector<std::string> reasons;   ///< why it is refused, a sentence each
    std::string words;                  ///< what would happen, and what is special about it, for the list
    bool isTicked = false;

    bool isComplete() const { return picks == kGames; }

    /// Whether it is complete and importing it would change something: a selection or the player list.
    bool isWorthWriting() const
    {
        return isComplete() &&
               (effect == Effect::New || effect == Effect::Replaces || (effect == Effect::Identical && addsPlayer));
    }
};

struct Review {
    std::vector<ReviewRow> rows;                 ///< in the order in which they were handed in
    std::vector<std::vector<std::size_t>> files; ///< the rows that are for one file, for each of the files
    int resultsHere = 0;           ///< games that have been decided; all entries are late from the first one on
    std::string playerListTrouble; ///< why no player can be added: words within a sentence; empty = they can
    std::string summary;           ///< how many of which kind, whether it is late, and whether no player can be added
};

/// Holds entries against the field, and against the selections, the results and the player list of a folder. Only files
/// that would be replaced are read. One step of work for each entry.
///
/// Ticked are complete entries that are new or replace another one, as long as there are no results; identical ones
/// only when their player would be added to the player list. Not ticked at first are doubtful ones: those that replace
/// what is no whole selection, or what a player has saved who has another address in the player list; and those that
/// would add a player who is listed with another file. Of several for one file only the latest that is complete and not
/// doubtful can be ticked: by the date that each has, otherwise by their order. Where that one changes nothing, none
/// is. What cannot be written, because a folder has the name, is refused.
/// @returns the rows so far when the work was stopped
Review reviewOf(std::vector<HandedIn> handedIn, const DataFolder& folder, const Field& field, const Step& step = goOn);

/// Sets or takes away a row's tick. A refused one gets none; a tick takes away those of the other rows for the same
/// file: only one of them can be written.
void setTicked(Review& review, std::size_t row, bool isTicked);

/// Ticks every complete entry that would change something, late ones too, doubtful ones not; of several for one file
/// the latest. Others for the same file lose their ticks, others for no such file keep theirs.
/// @returns how many were left out for being doubtful
std::size_t tickAllComplete(Review& review);

/// @returns what is written for an entry: the bytes that a save on the board would write
std::string bytesToWrite(const HandedIn& handedIn);

} // namespace tallyhoop
