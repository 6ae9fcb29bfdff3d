// files/pool_files.cpp - reads the field, the results and the entries of a folder.
#include "files/pool_files.h"

#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/setup_file.h"

#include <utility>

namespace tallyhoop {

namespace {

Failure troubleOf(const std::filesystem::path& file, const Failure& failure)
{
    return Failure{shown(file) + ": " + failure.message};
}

} // namespace

ReadEntries readEntries(std::span<const FolderFile> files, const Bracket& like, const Step& step)
{
    ReadEntries read;
    read.entries.reserve(files.size());
    for (const FolderFile& file : files) {
        Read<Entry> entry = readSelectionFile(file.path, like);
        if (entry.trouble)
            read.troubles.push_back({file.path, *entry.trouble});
        read.entries.push_back(std::move(entry.value));
        if (!step())
            break;
    }
    return read;
}

Pool readPool(const DataFolder& folder)
{
    Pool pool;
    Read<Field> field = readField(folder);
    pool.field = std::move(field.value);
    if (field.trouble)
        pool.trouble.push_back(troubleOf(folder.pathTo(file_name::kSetup), *field.trouble));

    Bracket like = startingBracket(pool.field);
    if (folder.exists(file_name::kResults)) {
        const std::filesystem::path file = folder.pathTo(file_name::kResults);
        Read<Entry> results = readSelectionFile(file, like);
        if (results.trouble)
            pool.trouble.push_back(troubleOf(file, *results.trouble));
        like = results.value.picks;
        pool.results = std::move(results.value);
    }
    ReadEntries read = readEntries(folder.files(file_name::kSelectionExtension), like);
    pool.entries = std::move(read.entries);
    for (const FileTrouble& trouble : read.troubles)
        pool.trouble.push_back(troubleOf(trouble.file, trouble.failure));
    return pool;
}

} // namespace tallyhoop
