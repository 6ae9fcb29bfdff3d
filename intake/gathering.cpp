// intake/gathering.cpp - files are counted and added up while they are read.
#include "intake/gathering.h"

#include "base/reason.h"
#include "files/data_folder.h"
#include "files/replace_file.h"
#include "intake/limits.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

namespace tallyhoop {

namespace {

namespace fs = std::filesystem;

std::optional<std::int64_t> dateOf(const fs::path& file)
{
    std::error_code error;
    const fs::file_time_type changed = fs::last_write_time(file, error);
    if (error)
        return std::nullopt;
    const auto time = std::chrono::file_clock::to_sys(changed);
    return std::chrono::duration_cast<std::chrono::seconds>(time.time_since_epoch()).count();
}

/// The system's own words for what was tried with it say little.
bool isSpecial(const fs::path& file)
{
    std::error_code ignored;
    return fs::is_other(file, ignored);
}

/// What is to be read, and what cannot be listed.
struct Listed {
    std::vector<fs::path> files;
    std::vector<HandedIn> refused;
};

void listFolder(const fs::path& folder, Listed& listed)
{
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry{folder, error}, end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (EntryReaders::isRead(shown(entry->path().filename())) && entry->is_regular_file(ignored))
            files.push_back(entry->path());
        if (files.size() > kMostFilesHandedIn)
            break;
    }
    if (error)
        listed.refused.push_back(refusedWhole({shown(folder), {}, 1, {}}, reasonOf(error)));
    std::ranges::sort(files);
    std::ranges::move(files, std::back_inserter(listed.files));
}

Listed listOf(std::span<const fs::path> chosen)
{
    Listed listed;
    for (const fs::path& path : chosen) {
        std::error_code ignored;
        if (fs::is_directory(path, ignored))
            listFolder(path, listed);
        else
            listed.files.push_back(path);
        if (listed.files.size() > kMostFilesHandedIn)
            break;
    }
    if (listed.files.size() > kMostFilesHandedIn) {
        listed.files.resize(kMostFilesHandedIn);
        listed.refused.push_back(refusedWhole({}, "There are more than 10,000 files: the others are not read."));
    }
    return listed;
}

} // namespace

std::vector<HandedIn> gatherEntries(std::span<const fs::path> chosen, const EntryReaders& readers, const Step& step)
{
    Listed listed = listOf(chosen);
    std::vector<HandedIn> entries;
    std::size_t read = 0;
    for (const fs::path& path : listed.files) {
        HandedFile file{shown(path.filename()), {}, dateOf(path)};
        const Result<std::string> bytes = tallyhoop::readFile(path, kMostBytesHandedIn);
        if (!bytes) {
            entries.push_back(refusedWhole({file.name, {}, 1, file.date}, isSpecial(path)
                                                                              ? "It is a device or a pipe, not a file."
                                                                              : bytes.failure().message));
        } else if (read + bytes->size() > kMostBytesHandedInAtOnce) {
            entries.push_back(refusedWhole({file.name, {}, 1, file.date}, "The files are larger than 10 MB in all."));
        } else {
            read += bytes->size();
            file.bytes = *bytes;
            std::ranges::move(readers.read(file), std::back_inserter(entries));
        }
        if (entries.size() > kMostEntriesHandedIn) {
            entries.resize(kMostEntriesHandedIn);
            entries.push_back(refusedWhole({}, "There are more than 10,000 entries: the others are not read."));
            break;
        }
        if (!step())
            break;
    }
    std::ranges::move(listed.refused, std::back_inserter(entries));
    return entries;
}

} // namespace tallyhoop
