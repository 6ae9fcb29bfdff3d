// screens/board/recent_selections.cpp - by the time of their files at first, then in the order in which they are used.
#include "screens/board/recent_selections.h"

#include "files/file_names.h"
#include "screens/board/board_menus.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

/// A file whose time cannot be read counts as the oldest.
fs::file_time_type timeOf(const fs::path& file)
{
    std::error_code unknown;
    const fs::file_time_type time = fs::last_write_time(file, unknown);
    return unknown ? fs::file_time_type::min() : time;
}

/// A dialog may spell the way to the folder differently.
bool isOne(const fs::path& left, const fs::path& right)
{
    std::error_code unknown;
    return left == right ||
           (left.filename() == right.filename() && fs::equivalent(left.parent_path(), right.parent_path(), unknown));
}

} // namespace

void RecentSelections::begin(const DataFolder& folder)
{
    std::vector<std::pair<fs::file_time_type, fs::path>> files;
    for (const FolderFile& file : folder.files(file_name::kSelectionExtension))
        files.emplace_back(timeOf(file.path), file.path);
    const auto end = files.begin() + static_cast<std::ptrdiff_t>(std::min(files.size(), kRecentSelections));
    std::ranges::partial_sort(files, end, std::ranges::greater{}, [](const auto& file) { return file.first; });
    m_files.clear();
    for (auto file = files.begin(); file != end; ++file)
        m_files.push_back(file->second);
}

void RecentSelections::note(const fs::path& file)
{
    forget(file);
    m_files.insert(m_files.begin(), file);
    m_files.resize(std::min(m_files.size(), kRecentSelections));
}

void RecentSelections::forget(const fs::path& file)
{
    std::erase_if(m_files, [&](const fs::path& known) { return isOne(known, file); });
}

std::vector<std::string> RecentSelections::names() const
{
    std::vector<std::string> names;
    for (const fs::path& file : m_files)
        names.push_back(shown(file.filename()));
    return names;
}

std::optional<fs::path> RecentSelections::at(std::size_t index) const
{
    return index < m_files.size() ? std::optional{m_files[index]} : std::nullopt;
}

std::optional<fs::path> neighbouringSelection(std::span<const FolderFile> selections, const fs::path& opened, int step)
{
    if (selections.empty())
        return std::nullopt;
    const auto at = std::ranges::find_if(selections, [&](const FolderFile& file) { return isOne(file.path, opened); });
    if (at == selections.end())
        return step > 0 ? selections.front().path : selections.back().path;
    const std::ptrdiff_t next = at - selections.begin() + step;
    if (next < 0 || next >= std::ssize(selections))
        return std::nullopt;
    return selections[static_cast<std::size_t>(next)].path;
}

} // namespace tallyhoop
