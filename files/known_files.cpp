// files/known_files.cpp - comparing a file with what it held.
#include "files/known_files.h"

#include "files/data_folder.h"
#include "files/replace_file.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tallyhoop {

KnownFiles::Content KnownFiles::contentOf(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(file, ignored))
        return {}; // what is no file cannot be replaced: the writing says so
    const Result<std::string> bytes = readFile(file);
    return {true, bytes ? *bytes : std::string{}};
}

void KnownFiles::note(const std::filesystem::path& file) { note(file, contentOf(file)); }

void KnownFiles::note(const std::filesystem::path& file, Content content)
{
    const auto known = std::ranges::find_if(m_known, [&](const Known& entry) { return isSameFile(entry.file, file); });
    if (known == m_known.end())
        m_known.push_back({file, std::move(content)});
    else
        *known = {file, std::move(content)};
}

bool KnownFiles::wouldUndoChanges(const std::filesystem::path& file, std::string_view bytes) const
{
    const auto known = std::ranges::find_if(m_known, [&](const Known& entry) { return isSameFile(entry.file, file); });
    if (known == m_known.end())
        return false;
    const Content now = contentOf(file);
    return now.isThere && now != known->content && now.bytes != bytes;
}

Result<Done> KnownFiles::replace(const std::filesystem::path& file, std::string_view bytes)
{
    Result<Done> replaced = replaceFile(file, bytes);
    if (replaced)
        note(file, {true, std::string{bytes}});
    return replaced;
}

} // namespace tallyhoop
