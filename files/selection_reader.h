// files/selection_reader.h - reads the selections of one pool, in which nearly every line is one of two.
#pragma once

#include "base/result.h"
#include "pool/entry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A team's line in a file, compared in a few steps of the processor, without looking for the end of the line first.
class TeamLine
{
public:
    static constexpr std::size_t kWidth = 32; ///< bytes that are looked at

    /// A name that contains a line break, or is longer than kWidth - 2, makes a line that is found nowhere.
    explicit TeamLine(std::string_view name);

    /// @param bytes at least kWidth of them
    /// @returns whether they begin with the name, CR and LF
    bool begins(const char* bytes) const;

    /// Looks at the first eight bytes only: a quick guess. @returns false only when they do not begin with it
    bool seemsToBegin(const char* bytes) const;

    /// @returns how long the line is, its end included
    std::size_t size() const { return m_size; }

private:
    using Words = std::array<std::uint64_t, kWidth / sizeof(std::uint64_t)>;

    Words m_text{1}; ///< differs from whatever the empty mask leaves
    Words m_mask{};  ///< which bits of the bytes belong to the line
    std::size_t m_size = 0;
};

/// To be made once for all selections of a pool; several threads may read with it at a time.
class SelectionReader
{
public:
    /// @param like a bracket in which most of the teams are expected, such as the results
    explicit SelectionReader(Bracket like);

    /// Reads a selection file's bytes. The trouble is set when there are more or fewer than 131 lines, or the last one
    /// is not the end marker; what could be read is there all the same. The entry's file name stays empty. The picks
    /// share the names of `like` when it has them all.
    Read<Entry> read(std::string_view bytes) const;

private:
    Bracket takePicks(std::string_view& bytes) const;
    std::optional<ByPosition<TeamNumber>> takeExpected(std::string_view& bytes) const;
    bool takeRows(int region, std::string_view& bytes, ByPosition<TeamNumber>& numbers) const;

    Bracket m_like;
    std::array<std::string, kRegions> m_rows; ///< the lines of a region's teams; empty = not to be expected
    std::vector<TeamLine> m_teams;            ///< by number
};

} // namespace tallyhoop
