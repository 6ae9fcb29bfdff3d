// files/pool_backup.cpp - gathers the files in a hidden folder, which one rename then makes the backup.
#include "files/pool_backup.h"

#include "base/reason.h"
#include "files/folder_lock.h"
#include "files/replace_file.h"
#include "files/replace_file_steps.h"

#include <fmt/format.h>
#include <optional>
#include <random>
#include <system_error>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

/// Around a number in the name of the hidden folder in which a backup is gathered.
constexpr const char* kGatheringBegins = ".Backup.";
constexpr const char* kGatheringEnds = ".tmp~";

Failure failureAt(const fs::path& path, const std::string& reason) { return Failure{shown(path) + "\r\n" + reason}; }

Failure failureAt(const fs::path& path, std::error_code error) { return failureAt(path, reasonOf(error)); }

std::string backupName(std::chrono::local_seconds now)
{
    const auto midnight = std::chrono::floor<std::chrono::days>(now);
    const std::chrono::year_month_day day{midnight};
    const std::chrono::hh_mm_ss time{now - midnight};
    return fmt::format("Backup {:04}-{:02}-{:02} {:02}{:02}{:02}", static_cast<int>(day.year()),
                       static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()), time.hours().count(),
                       time.minutes().count(), time.seconds().count());
}

/// What a file system cannot keep of these is no reason to keep nothing.
void keepTimeAndMode(const fs::path& source, const fs::path& copy)
{
    std::error_code ignored;
    if (const fs::file_time_type time = fs::last_write_time(source, ignored); !ignored)
        fs::last_write_time(copy, time, ignored);
    if (const fs::file_status status = fs::status(source, ignored); !ignored)
        fs::permissions(copy, status.permissions(), ignored);
}

/// What becomes of a file that cannot be read.
enum class Unreadable {
    Fails,   ///< nothing is kept
    IsLinked ///< it gets a second name, where the file system has such
};

/// @param shownFolder the folder as a failure names it
Result<Done> copyInto(const fs::path& folder, const fs::path& source, Unreadable unreadable,
                      const fs::path& shownFolder)
{
    const Result<std::string> bytes = readFile(source);
    const fs::path copy = folder / source.filename();
    if (!bytes) {
        if (unreadable == Unreadable::Fails)
            return failureAt(source, bytes.failure().message);
        std::error_code error;
        if (const fs::path file = fs::canonical(source, error); !error)
            fs::create_hard_link(file, copy, error);
        return error ? Result<Done>{failureAt(source, bytes.failure().message)} : Done{};
    }
    if (const Result<Done> written = replaceFile(copy, *bytes); !written)
        return failureAt(shownFolder / source.filename(), written.failure().message);
    keepTimeAndMode(source, copy);
    return Done{};
}

/// A hidden folder of a program's own, in which a backup grows. It is held as long as its program works on it, and is
/// removed at the end unless it has become the backup by then.
class Gathering
{
public:
    /// @param folder where the backup will be
    explicit Gathering(const fs::path& folder)
    {
        do
            create(folder); // until the name is new, and nobody has taken the new folder for one left by a crash
        while (!m_error && (!m_lock || m_lock->isHeldElsewhere() || isGone()));
    }
    ~Gathering()
    {
        std::error_code ignored;
        if (!m_error)
            fs::remove_all(m_path, ignored);
    }
    Gathering(const Gathering&) = delete;
    Gathering& operator=(const Gathering&) = delete;

    const fs::path& path() const { return m_path; }

    /// @returns why the folder could not be made
    std::error_code error() const { return m_error; }

private:
    void create(const fs::path& folder)
    {
        m_lock.reset();
        m_path = folder / fmt::format("{}{:08x}{}", kGatheringBegins, std::random_device{}(), kGatheringEnds);
        if (fs::create_directory(m_path, m_error) && !m_error)
            m_lock.emplace(m_path);
    }

    /// Not so where nobody can tell: what is copied then fails, or does not.
    bool isGone() const
    {
        std::error_code ignored;
        return fs::status(m_path, ignored).type() == fs::file_type::not_found;
    }

    fs::path m_path;
    std::error_code m_error;
    std::optional<FolderLock> m_lock;
};

/// Removes what crashed programs have left. Where nobody can tell whether a program is still at work on it, it stays.
void removeLeftovers(const fs::path& folder)
{
    std::error_code ignored;
    std::vector<fs::path> leftovers;
    for (fs::directory_iterator entry{folder, ignored}; !ignored && entry != fs::directory_iterator{};
         entry.increment(ignored)) {
        const std::string name = shown(entry->path().filename());
        if (name.starts_with(kGatheringBegins) && name.ends_with(kGatheringEnds) && !entry->is_symlink(ignored))
            leftovers.push_back(entry->path());
    }
    for (const fs::path& leftover : leftovers)
        if (const FolderLock lock{leftover}; lock.isHeldHere())
            fs::remove_all(leftover, ignored);
}

/// @returns a subfolder that is not there yet
fs::path freeName(const DataFolder& folder, const std::string& name)
{
    std::string candidate = name;
    for (int number = 2; folder.exists(candidate); ++number)
        candidate = name + " (" + std::to_string(number) + ")";
    return folder.folder() / candidate;
}

/// Lets what was gathered take a free name, which another program may want at the same moment.
Result<fs::path> appear(const DataFolder& folder, const fs::path& gathering, const std::string& name)
{
    for (;;) {
        const fs::path backup = freeName(folder, name);
        std::error_code error;
        fs::rename(gathering, backup, error);
        if (!error)
            return backup;
        if (freeName(folder, name) == backup)
            return failureAt(backup, error);
    }
}

Result<fs::path> keep(const DataFolder& folder, const std::vector<fs::path>& sources, std::chrono::local_seconds now,
                      Unreadable unreadable)
{
    removeLeftovers(folder.folder());
    const Gathering gathering{folder.folder()};
    if (gathering.error())
        return failureAt(folder.folder(), gathering.error());
    const std::string name = backupName(now);
    const fs::path shownFolder = freeName(folder, name);
    for (const fs::path& source : sources)
        if (Result<Done> copied = copyInto(gathering.path(), source, unreadable, shownFolder); !copied)
            return copied.failure();
    Result<fs::path> backup = appear(folder, gathering.path(), name);
    if (backup)
        flushFolder(folder.folder());
    return backup;
}

} // namespace

Result<fs::path> backUp(const DataFolder& folder, const std::vector<std::string>& names, std::chrono::local_seconds now)
{
    std::vector<fs::path> sources;
    for (const std::string& name : names)
        if (const std::optional<fs::path> source = folder.pathOf(name))
            sources.push_back(*source);
    return backUpFiles(folder, sources, now);
}

Result<fs::path> backUpFiles(const DataFolder& folder, const std::vector<fs::path>& files,
                             std::chrono::local_seconds now)
{
    return keep(folder, files, now, Unreadable::Fails);
}

Result<fs::path> backUpFile(const fs::path& file, std::chrono::local_seconds now)
{
    return keep(DataFolder{file.parent_path()}, {file}, now, Unreadable::IsLinked);
}

Result<Done> putBack(const DataFolder& folder, const fs::path& backup)
{
    Result<Done> outcome = Done{};
    std::error_code error;
    for (fs::directory_iterator entry{backup, error}; !error && entry != fs::directory_iterator{};
         entry.increment(error))
        if (Result<Done> copied = copyInto(folder.folder(), entry->path(), Unreadable::Fails, folder.folder());
            !copied && outcome)
            outcome = copied;
    return error ? failureAt(backup, error) : outcome;
}

} // namespace tallyhoop
