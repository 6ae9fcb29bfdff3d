// intake/known_teams.h - from picks as they were written to picks in the field's own spelling.
#pragma once

#include "pool/bracket.h"
#include "pool/field.h"

#include <map>
#include <string>
#include <string_view>

namespace tallyhoop {

/// To be made once for all the entries of an import.
class KnownTeams
{
public:
    explicit KnownTeams(const Field& field);

    /// Fills in the field's teams and the picks. A pick that is, in canonical characters and any case of letters, one
    /// of the two teams that meet, or else any team of the field, becomes that team, byte for byte as the field has it;
    /// another one stays as it is.
    /// @param picks Windows-1252; empty = open
    Bracket bracketOf(const ByGame<std::string>& picks) const;

private:
    std::string_view spellingOf(std::string_view pick) const;

    Bracket m_start;
    std::map<std::string, std::string, std::less<>> m_exact;  ///< canonical -> as the field has it
    std::map<std::string, std::string, std::less<>> m_folded; ///< the same in capitals
};

/// @returns a Windows-1252 text in canonical characters
std::string canonicalOf(std::string_view text);

} // namespace tallyhoop
