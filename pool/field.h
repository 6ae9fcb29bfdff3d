// pool/field.h - the starting field and the options of a pool: what the organiser defines before the first game.
#pragma once

#include "pool/bracket.h"
#include "pool/payoffs.h"

#include <array>
#include <cstdint>
#include <string>

namespace tallyhoop {

/// The seed texts of the 16 first-round rows, the same in every region, such as " 1" and "16".
using SeedTexts = std::array<std::string, kRowsPerRegion>;

inline const std::string& seedOf(const SeedTexts& seeds, TeamRow row)
{
    return seeds.at(static_cast<std::size_t>(rowInRegion(row)));
}

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

    const std::string& seedOf(TeamRow row) const { return tallyhoop::seedOf(seeds, row); }

    friend bool operator==(const Field&, const Field&) = default;
};

/// The field of a pool that nobody has set up yet.
Field defaultField();

/// @returns the seeds as numbers; 0 where a text is no number or one that does not fit
ByTeamRow<std::int16_t> seedNumbers(const Field& field);

/// @returns the field's teams on their first-round rows, nobody elsewhere
Bracket startingBracket(const Field& field);

} // namespace tallyhoop
