// files/data_folder.cpp - finding files by name without regard to case.
#include "files/data_folder.h"

#include "base/reason.h"
#include "base/text.h"
#include "base/windows1252.h"
#include "files/entry_at.h"

#include <algorithm>
#include <array>
#include <exception>
#include <system_error>
#include <utility>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

/// Shows whether we may write here; beside it the replacing makes a temporary of its own.
constexpr const char* kWriteCheck = ".tallyhoop-check";

/// Calls visit(entry) for every entry of a folder, as far as it can be read.
/// @returns why it cannot be read whole, if so
template <class Visit>
std::error_code forEachEntry(const fs::path& folder, Visit visit)
{
    std::error_code error;
    for (fs::directory_iterator entry{folder, error}, end; !error && entry != end; entry.increment(error))
        visit(*entry);
    return error;
}

/// A letter that our code page lacks is shown as "?".
bool isShownWhole(const fs::path& name)
{
    const std::string text = shown(name);
    return text.find('?') == std::string::npos || nativeName(text) == name;
}

/// @returns the entry of this name; of several that differ from it only in case the first in byte order. An entry whose
///          name cannot be shown whole is meant only when no other looks alike: none is better than a wrong one.
std::optional<fs::path> findEntry(const fs::path& folder, std::string_view name)
{
    if (std::optional<fs::path> exact = entryAt(folder / nativeName(name)))
        return exact;
    std::optional<fs::path> found;
    std::vector<fs::path> lookalikes;
    forEachEntry(folder, [&](const fs::directory_entry& entry) {
        if (!equalFolded(shown(entry.path().filename()), name))
            return;
        if (!isShownWhole(entry.path().filename()))
            lookalikes.push_back(entry.path());
        else if (!found || entry.path() < *found)
            found = entry.path();
    });
    if (!found && lookalikes.size() == 1)
        found = lookalikes.front();
    return found;
}

/// @returns how long the part is that Windows takes for a device, whatever follows the first point; 0 = none
std::size_t deviceLength(std::string_view name)
{
    const std::string stem = trimTrailingBlanks(name.substr(0, name.find('.')));
    constexpr std::array<std::string_view, 6> kDevices = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
    constexpr std::array<std::string_view, 2> kNumbered = {"COM", "LPT"};
    const bool device = std::ranges::any_of(kDevices, [&](std::string_view one) { return equalFolded(stem, one); });
    constexpr std::string_view kDigits = "0123456789\xB9\xB2\xB3"; // raised 1, 2 and 3 count as well
    const bool numbered =
        stem.size() == 4 && kDigits.find(stem.back()) != std::string_view::npos &&
        std::ranges::any_of(kNumbered, [&](std::string_view one) { return startsWithFolded(stem, one); });
    return device || numbered ? stem.size() : 0;
}

Failure refusedName(std::string_view name)
{
    return Failure{"\"" + std::string{name} + "\" cannot be the name of a file in the program's folder."};
}

fs::path fullPath(const fs::path& path)
{
    std::error_code error;
    fs::path full = fs::weakly_canonical(path, error);
    return error ? path.lexically_normal() : full;
}

} // namespace

std::string joinPath(std::string_view folder, char separator, std::string_view name)
{
    std::string path{folder};
    if (path.empty() || path.back() != separator)
        path.push_back(separator);
    path += name;
    return path;
}

DataFolder::DataFolder(fs::path folder) : m_folder{std::move(folder)} {}

std::optional<fs::path> DataFolder::pathOf(std::string_view name) const
{
    if (!isBareName(name))
        return std::nullopt;
    if (std::optional<fs::path> found = findEntry(m_folder, name))
        return found;
    return m_folder / nativeName(name);
}

fs::path DataFolder::pathTo(std::string_view name) const { return *pathOf(name); }

bool DataFolder::exists(std::string_view name) const
{
    return isBareName(name) && findEntry(m_folder, name).has_value();
}

std::vector<std::string> DataFolder::spellingsOf(std::string_view name) const
{
    std::vector<std::string> spellings;
    forEachEntry(m_folder, [&](const fs::directory_entry& entry) {
        std::string spelling = shown(entry.path().filename());
        if (equalFolded(spelling, name) && isShownWhole(entry.path().filename()))
            spellings.push_back(std::move(spelling));
    });
    std::ranges::sort(spellings);
    return spellings;
}

Read<std::vector<FolderFile>> DataFolder::list(std::string_view extension) const
{
    std::vector<FolderFile> found;
    const std::error_code error = forEachEntry(m_folder, [&](const fs::directory_entry& entry) {
        std::string name = shown(entry.path().filename());
        std::error_code ignored;
        if (endsWithFolded(name, extension) && entry.is_regular_file(ignored))
            found.push_back({std::move(name), entry.path()});
    });
    std::sort(found.begin(), found.end(), [](const FolderFile& left, const FolderFile& right) {
        const int order = compareFolded(left.name, right.name);
        return order != 0 ? order < 0 : left.path < right.path;
    });
    if (error)
        return {std::move(found), Failure{reasonOf(error)}};
    return {std::move(found), {}};
}

Result<std::string> DataFolder::read(std::string_view name, std::size_t mostBytes) const
{
    const std::optional<fs::path> file = pathOf(name);
    return file ? readFile(*file, mostBytes) : refusedName(name);
}

Result<Done> DataFolder::write(std::string_view name, std::string_view bytes) const
{
    const std::optional<fs::path> file = pathOf(name);
    return file ? replaceFile(*file, bytes) : refusedName(name);
}

Result<Done> DataFolder::remove(std::string_view name) const
{
    const std::optional<fs::path> file = pathOf(name);
    if (!file)
        return refusedName(name);
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(*file, error)))
        error = std::make_error_code(std::errc::is_a_directory); // an empty one would be removed silently
    else
        fs::remove(*file, error);
    if (error)
        return Failure{reasonOf(error)};
    return Done{};
}

Result<Done> DataFolder::checkWritable() const
{
    Result<Done> outcome = replaceFile(m_folder / kWriteCheck, "");
    std::error_code ignored;
    fs::remove(m_folder / kWriteCheck, ignored);
    return outcome;
}

std::string DataFolder::shownPathOf(std::string_view name) const
{
    return joinPath(shown(m_folder), static_cast<char>(fs::path::preferred_separator), name);
}

fs::path nativeName(std::string_view name)
{
    const std::string utf8 = toUtf8(name);
    return fs::path{std::u8string{utf8.begin(), utf8.end()}};
}

std::string shown(const fs::path& path)
{
    try {
        const std::u8string utf8 = path.u8string();
        return fromUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
    } catch (const std::exception&) { // a system with 16-bit names may hold one that is no text
        return "?";
    }
}

bool isBareName(std::string_view name)
{
    using namespace std::string_view_literals;
    return !name.empty() && name != "." && name != ".." && name.find_first_of("/\\:\0"sv) == std::string_view::npos;
}

std::optional<fs::path> findInAnyCase(const fs::path& path)
{
    if (std::optional<fs::path> exact = entryAt(path))
        return exact;
    const std::string name = shown(path.filename());
    return isBareName(name) && isShownWhole(path.filename()) ? findEntry(path.parent_path(), name) : std::nullopt;
}

bool isSameFile(const fs::path& left, const fs::path& right)
{
    std::error_code ignored;
    if (fs::equivalent(left, right, ignored))
        return true;
    const fs::path fullLeft = fullPath(left);
    const fs::path fullRight = fullPath(right);
    if (fullLeft.parent_path() != fullRight.parent_path())
        return false;
    if (!isShownWhole(fullLeft.filename()) || !isShownWhole(fullRight.filename()))
        return fullLeft.filename() == fullRight.filename();
    return equalFolded(shown(fullLeft.filename()), shown(fullRight.filename()));
}

std::string withoutUnsafeCharacters(std::string_view name)
{
    constexpr std::string_view kUnsafe = "/\\:*?\"<>|\x7F";
    std::string safe{name};
    for (char& character : safe)
        if (static_cast<unsigned char>(character) < ' ' || kUnsafe.find(character) != std::string_view::npos)
            character = '_';
    if (const std::size_t device = deviceLength(safe); device > 0)
        safe.insert(device, 1, '_');
    return safe;
}

} // namespace tallyhoop
