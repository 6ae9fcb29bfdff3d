// pool/field.h - the starting field and the options of a pool: what the organiser defines before the first game.
#pragma once

#include "pool/bracket.h"
#include "pool/payoffs.h"

#include <array>
#include <string>

namespace tallyhoop {

/// The seed texts of the 16 first-round rows, the same in every region, such as " 1" and "16".
using SeedTexts = std::array<std::string, kRowsPerRegion>;

/// Texts are kept exactly as typed; a default-constructed field is empty everywhere.
struct Field {
    IndexedBy<TeamRow, std::string, kTeams> teams{};
    std::string title;
    std::array<std::string, kRegions> regionTitles{};
    PayoffTexts payoffs;
    SeedTexts seeds{};
    std::string comment1; ///< lines separated by CR LF
    std::string comment2;
    std::string finalized; ///< "1" = final; see below

    /// Selections and results may be entered, and the field no longer be changed.
    bool isFinalized() const { return finalized == "1"; }

    /// Whether nobody has said in any way that the field is final: only then may a sample replace it.
    bool mayBeReplaced() const;

    const std::string& seedOf(TeamRow row) const { return seeds.at(static_cast<std::size_t>(rowInRegion(row))); }

    friend bool operator==(const Field&, const Field&) = default;
};

/// The field of a pool that nobody has set up yet.
Field defaultField();

/// @returns the field's teams on their first-round rows, nobody elsewhere
Bracket startingBracket(const Field& field);

} // namespace tallyhoop
