// files/known_files.cpp - comparing a file with what it held, and asking before somebody else's changes are replaced.
#include "files/known_files.h"

#include "files/data_folder.h"
#include "files/replace_file.h"
#include "screens/file_messages.h"

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

bool KnownFiles::mayReplace(const std::filesystem::path& file, std::string_view bytes, ui::Dialogs& dialogs) const
{
    const auto known = std::ranges::find_if(m_known, [&](const Known& entry) { return isSameFile(entry.file, file); });
    if (known == m_known.end())
        return true;
    const Content now = contentOf(file);
    if (!now.isThere || now == known->content || now.bytes == bytes)
        return true;
    return dialogs.show(changedMeanwhile(shown(file))) == ui::Answer::Yes;
}

bool KnownFiles::replace(const std::filesystem::path& file, std::string_view bytes, ui::Dialogs& dialogs,
                         const ui::Message& trouble)
{
    if (!mayReplace(file, bytes, dialogs))
        return false;
    if (!replaceFile(file, bytes)) {
        dialogs.show(trouble);
        return false;
    }
    note(file, {true, std::string{bytes}});
    return true;
}

} // namespace tallyhoop
