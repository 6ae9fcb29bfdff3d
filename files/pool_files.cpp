// files/pool_files.cpp - reads the field, the results and the entries of a folder.
#include "files/pool_files.h"

#include "files/file_names.h"
#include "files/replace_file.h"
#include "files/selection_file.h"
#include "files/selection_reader.h"
#include "files/setup_file.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <future>
#include <system_error>
#include <thread>
#include <utility>

namespace tallyhoop {

namespace {

void addTrouble(ReadPool& read, std::filesystem::path file, const Failure& failure)
{
    read.pool.trouble.push_back(Failure{shown(file) + ": " + failure.message});
    read.troubles.push_back({std::move(file), failure});
}

/// So few files that a person who cancels need not wait for them, and so many that handing them out costs nothing.
constexpr std::size_t kFilesAtOnce = 16;

Read<Entry> readOne(const SelectionReader& reader, const FolderFile& file)
{
    const Result<std::string> bytes = readFile(file.path, kMostBytesOfSelection);
    Read<Entry> read = bytes ? reader.read(*bytes) : Read<Entry>{{}, bytes.failure()};
    read.value.fileName = file.name;
    return read;
}

/// Reads a list of files in parts, each of which is read by whoever comes first: a thread of ours, or the caller while
/// it waits for one.
class ReadingInParts
{
public:
    using Part = std::vector<Read<Entry>>;

    ReadingInParts(std::span<const FolderFile> files, const Bracket& like, std::size_t readers) : m_reader{like}
    {
        for (; !files.empty(); files = files.subspan(std::min(files.size(), kFilesAtOnce)))
            m_parts.emplace_back(
                [this, part = files.first(std::min(files.size(), kFilesAtOnce))] { return read(part); });
        startThreads(std::min(readers, m_parts.size()));
    }

    /// The parts that nobody has begun stay unread.
    ~ReadingInParts() { m_next = m_parts.size(); }

    ReadingInParts(const ReadingInParts&) = delete;
    ReadingInParts& operator=(const ReadingInParts&) = delete;

    std::size_t parts() const { return m_parts.size(); }

    /// Waits for a part; to be called once for each.
    Part take(std::size_t part)
    {
        std::future<Part> read = m_parts[part].get_future();
        while (read.wait_for(std::chrono::seconds{0}) != std::future_status::ready && readNext())
            ;
        return read.get();
    }

private:
    Part read(std::span<const FolderFile> files) const
    {
        Part part;
        part.reserve(files.size());
        for (const FolderFile& file : files)
            part.push_back(readOne(m_reader, file));
        return part;
    }

    /// @returns false when all parts are read, or being read
    bool readNext()
    {
        const std::size_t part = m_next++;
        if (part >= m_parts.size())
            return false;
        m_parts[part]();
        return true;
    }

    /// One reader is the caller.
    void startThreads(std::size_t readers)
    {
        try {
            while (m_threads.size() + 1 < readers)
                m_threads.emplace_back([this] {
                    while (readNext())
                        ;
                });
        } catch (const std::system_error&) {
            // The system has no more of them. The caller reads what is left.
        }
    }

    const SelectionReader m_reader;
    std::vector<std::packaged_task<Part()>> m_parts;
    std::atomic<std::size_t> m_next = 0;
    std::vector<std::jthread> m_threads; ///< last: they end before the rest is gone
};

} // namespace

std::size_t readersAtATime() { return std::max(1u, std::thread::hardware_concurrency()); }

void readSelections(std::span<const FolderFile> files, const Bracket& like, const TakeSelection& take,
                    std::size_t readers)
{
    ReadingInParts reading{files, like, readers};
    auto file = files.begin();
    for (std::size_t part = 0; part < reading.parts(); ++part)
        for (Read<Entry>& selection : reading.take(part))
            if (!take(*file++, selection))
                return;
}

ReadEntries readEntries(std::span<const FolderFile> files, const Bracket& like, const Step& step)
{
    ReadEntries read;
    read.entries.reserve(files.size());
    readSelections(files, like, [&](const FolderFile& file, Read<Entry>& selection) {
        if (selection.trouble)
            read.troubles.push_back({file.path, std::move(*selection.trouble)});
        read.entries.push_back(std::move(selection.value));
        return step();
    });
    return read;
}

ReadPool readPoolInSteps(const DataFolder& folder, const Step& step)
{
    ReadPool read;
    Pool& pool = read.pool;
    ReadField field = readField(folder);
    pool.field = std::move(field.value);
    read.isFieldDamaged = field.trouble.has_value();
    read.isFieldWhole = field.isWhole;
    if (field.trouble)
        addTrouble(read, folder.pathTo(file_name::kSetup), *field.trouble);

    Bracket like = startingBracket(pool.field);
    if (folder.exists(file_name::kResults)) {
        const std::filesystem::path file = folder.pathTo(file_name::kResults);
        Read<Entry> results = readSelectionFile(file, like);
        read.areResultsDamaged = results.trouble.has_value();
        if (results.trouble)
            addTrouble(read, file, *results.trouble);
        like = results.value.picks;
        pool.results = std::move(results.value);
    }
    const Read<std::vector<FolderFile>> selections = folder.list(file_name::kSelectionExtension);
    read.isListDamaged = selections.trouble.has_value();
    if (selections.trouble)
        addTrouble(read, folder.folder(), *selections.trouble);
    readSelections(selections.value, like, [&](const FolderFile& file, Read<Entry>& selection) {
        if (selection.trouble) {
            read.damagedEntries.push_back(pool.entries.size());
            addTrouble(read, file.path, *selection.trouble);
        }
        pool.entries.push_back(std::move(selection.value));
        return step();
    });
    return read;
}

Pool readPool(const DataFolder& folder) { return readPoolInSteps(folder, goOn).pool; }

} // namespace tallyhoop
