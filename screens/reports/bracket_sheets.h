// screens/reports/bracket_sheets.h - sheets of the bracket made from the files, whatever is on the board.
#pragma once

#include "files/data_folder.h"
#include "pool/field.h"
#include "ui/platform.h"

#include <optional>
#include <span>

namespace tallyhoop {

/// Failures are shown here, in the words of the board.
class BracketSheets
{
public:
    /// All outlive it.
    BracketSheets(const DataFolder& folder, const ui::Platform& platform, const Field& field)
        : m_folder{folder}, m_platform{platform}, m_field{field}
    {
    }

    /// @returns the results so far on one page
    ui::DrawingPrintout results() const;

    /// @returns each player's bracket, marked right and wrong, on a page of its own, in the order of the files; nothing
    ///          when they cannot be scored or the person cancelled
    std::optional<ui::DrawingPrintout> scored(std::span<const FolderFile> files) const;

private:
    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    const Field& m_field;
};

} // namespace tallyhoop
