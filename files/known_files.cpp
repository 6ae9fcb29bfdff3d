// files/known_files.cpp - comparing a file with what it held.
#include "files/known_files.h"

#include "base/reason.h"
#include "files/data_folder.h"
#include "files/replace_file.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tallyhoop {

bool FileContent::isSameAs(const FileContent& other) const
{
    return isThere == other.isThere && trouble.has_value() == other.trouble.has_value() && bytes == other.bytes;
}

namespace {

/// Whether a file that the system does not examine is one that cannot be replaced either: its folder may not be
/// entered, its name is too long, or it is behind a link that leads to itself. The writing then fails, and says so.
bool isOutOfReach(std::error_code error)
{
    return error == std::errc::permission_denied || error == std::errc::filename_too_long ||
           error == std::errc::too_many_symbolic_link_levels;
}

} // namespace

FileContent KnownFiles::contentOf(const std::filesystem::path& file)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::none && !isOutOfReach(error))
        return {true, Failure{reasonOf(error)}, {}};
    if (!fs::is_regular_file(status))
        return {};
    const Result<std::string> bytes = readFile(file);
    return bytes ? FileContent{true, {}, *bytes} : FileContent{true, bytes.failure(), {}};
}

void KnownFiles::note(const std::filesystem::path& file) { note(file, contentOf(file)); }

void KnownFiles::note(const std::filesystem::path& file, FileContent content)
{
    const auto known = std::ranges::find_if(m_known, [&](const Known& entry) { return isSameFile(entry.file, file); });
    if (known == m_known.end())
        m_known.push_back({file, std::move(content)});
    else
        *known = {file, std::move(content)};
}

void KnownFiles::noteDamage(const std::filesystem::path& file)
{
    for (Known& known : m_known)
        if (isSameFile(known.file, file))
            known.isDamaged = true;
}

const KnownFiles::Known* KnownFiles::find(const std::filesystem::path& file) const
{
    const auto known = std::ranges::find_if(m_known, [&](const Known& entry) { return isSameFile(entry.file, file); });
    return known == m_known.end() ? nullptr : &*known;
}

bool KnownFiles::wouldUndoChanges(const std::filesystem::path& file, const FileContent& now,
                                  std::string_view bytes) const
{
    const Known* known = find(file);
    return known != nullptr && now.isThere && !now.trouble && !now.isSameAs(known->content) && now.bytes != bytes;
}

bool KnownFiles::wouldLoseUnread(const std::filesystem::path& file, const FileContent& now) const
{
    const Known* known = find(file);
    const bool isNotedDamage = known != nullptr && known->isDamaged && now.isSameAs(known->content);
    return now.isThere && (now.trouble || isNotedDamage);
}

KnownFiles::Outcome KnownFiles::replace(const std::filesystem::path& file, std::string_view bytes,
                                        const FileContent& seen)
{
    bool hasChanged = false;
    const Result<Done> replaced = replaceFile(file, bytes, [&] {
        const FileContent now = contentOf(file);
        hasChanged = now.isThere && !now.isSameAs(seen) && (now.trouble || now.bytes != bytes);
        return !hasChanged;
    });
    if (hasChanged)
        return {Replaced::ChangedMeanwhile};
    if (!replaced)
        return {Replaced::No, replaced.failure()};
    note(file, {true, {}, std::string{bytes}});
    return {};
}

} // namespace tallyhoop
