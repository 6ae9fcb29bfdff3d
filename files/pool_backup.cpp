// files/pool_backup.cpp - gathers the files in a hidden folder, which one rename then makes the backup.
#include "files/pool_backup.h"

#include "base/windows1252.h"
#include "files/replace_file.h"
#include "files/replace_file_steps.h"

#include <fmt/format.h>
#include <optional>
#include <system_error>

namespace tallyhoop {
namespace {

namespace fs = std::filesystem;

/// A fixed name: what a crash leaves is swept away by the next backup.
constexpr const char* kGathering = ".Backup.tmp~";

Failure failureAt(const fs::path& path, const std::string& reason) { return Failure{shown(path) + "\r\n" + reason}; }

Failure failureAt(const fs::path& path, std::error_code error) { return failureAt(path, fromUtf8(error.message())); }

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

Result<Done> copyInto(const fs::path& gathering, const fs::path& source, Unreadable unreadable)
{
    const Result<std::string> bytes = readFile(source);
    const fs::path copy = gathering / source.filename();
    if (!bytes) {
        if (unreadable == Unreadable::Fails)
            return failureAt(source, bytes.failure().message);
        std::error_code error;
        if (const fs::path file = fs::canonical(source, error); !error)
            fs::create_hard_link(file, copy, error);
        return error ? Result<Done>{failureAt(source, bytes.failure().message)} : Done{};
    }
    if (const Result<Done> written = replaceFile(copy, *bytes); !written)
        return failureAt(copy, written.failure().message);
    keepTimeAndMode(source, copy);
    return Done{};
}

Result<Done> gather(const std::vector<fs::path>& sources, const fs::path& gathering, Unreadable unreadable)
{
    std::error_code error;
    fs::remove_all(gathering, error);
    if (!error)
        fs::create_directory(gathering, error);
    if (error)
        return failureAt(gathering, error);
    for (const fs::path& source : sources)
        if (Result<Done> copied = copyInto(gathering, source, unreadable); !copied)
            return copied;
    return Done{};
}

/// @returns a subfolder that is not there yet
fs::path freeName(const DataFolder& folder, const std::string& name)
{
    std::string candidate = name;
    for (int number = 2; folder.exists(candidate); ++number)
        candidate = name + " (" + std::to_string(number) + ")";
    return folder.folder() / candidate;
}

Result<fs::path> keep(const DataFolder& folder, const std::vector<fs::path>& sources, std::chrono::local_seconds now,
                      Unreadable unreadable)
{
    const fs::path gathering = folder.folder() / kGathering;
    const fs::path backup = freeName(folder, backupName(now));
    Result<Done> kept = gather(sources, gathering, unreadable);
    if (kept) {
        std::error_code error;
        fs::rename(gathering, backup, error);
        if (error)
            kept = failureAt(backup, error);
    }
    if (!kept) {
        std::error_code ignored;
        fs::remove_all(gathering, ignored);
        return kept.failure();
    }
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
        if (Result<Done> copied = copyInto(folder.folder(), entry->path(), Unreadable::Fails); !copied && outcome)
            outcome = copied;
    return error ? failureAt(backup, error) : outcome;
}

} // namespace tallyhoop
