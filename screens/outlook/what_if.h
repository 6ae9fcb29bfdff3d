// screens/outlook/what_if.h - a copy of the results to play with: nothing that is supposed here can reach a file.
#pragma once

#include "pool/bracket.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace tallyhoop {

/// The results as they are entered, and as somebody supposes them. Each change returns whether there was one.
class WhatIf
{
public:
    explicit WhatIf(Bracket entered);

    const Bracket& entered() const { return m_entered; }
    const Bracket& supposed() const { return m_supposed; }

    /// Whether anything differs from the results as entered.
    bool isChanged() const { return !(m_supposed == m_entered); }
    bool canUndo() const { return !m_past.empty(); }

    /// Lets the team at a position win its game there; where it has won that already, takes this back, and with it
    /// what followed. Nothing changes at the champion and where nobody is.
    bool press(Position position);

    /// Empties a position and takes back what followed. Nothing changes at a first-round row.
    bool takeBack(Position position);

    bool asEntered();

    /// Supposes a whole bracket, such as one way in which somebody is first.
    bool suppose(Bracket bracket) { return change(std::move(bracket)); }

    /// Lets the better-seeded team win every open game; of equal seeds wins the team on the later row of the field, as
    /// with withHighSeeds(). A game that is missing before one that is entered goes to the team that won the later one.
    bool fillWithHigherSeeds(const ByTeamRow<std::int16_t>& seeds);

    bool undo();

private:
    bool change(Bracket after);

    Bracket m_entered;
    Bracket m_supposed;
    std::vector<Bracket> m_past; ///< oldest first
};

} // namespace tallyhoop
