// intake/entry_readers.h - from the bytes of a file or of a pasted text to the entries in it.
#pragma once

#include "intake/handed_in.h"
#include "intake/known_teams.h"
#include "intake/mail.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhoop {

/// A file that was handed in, already read.
struct HandedFile {
    std::string name; ///< bare, Windows-1252; its extension says what it is
    std::string bytes;
    std::optional<std::int64_t> date{}; ///< when it was changed last: seconds since 1970
};

/// To be made once for an import.
class EntryReaders
{
public:
    EntryReaders(const Field& field, TakeMailApart takeMailApart);

    /// @returns whether files of this name are read: *.THC, *.EML, *.TXT and *.CSV
    static bool isRead(std::string_view fileName);

    /// @returns the entries of a file, each with its refusals, at least one: what cannot be read at all is a refusal by
    ///          itself. An entry that a mail brings twice, as text and as a file, is there once
    std::vector<HandedIn> read(const HandedFile& file) const;

    /// @param text UTF-8 or Windows-1252
    /// @returns the entries of a pasted text, at least one as well
    std::vector<HandedIn> readPasted(std::string_view text) const;

private:
    using Parts = std::vector<const MailPart*>;

    std::vector<HandedIn> readFile(std::string_view bytes, const Origin& origin, int depth) const;
    std::vector<HandedIn> readMail(std::string_view bytes, const Origin& origin, int depth) const;
    std::vector<HandedIn> readTexts(const Parts& texts, const Parts& pages, const Origin& origin) const;
    std::vector<HandedIn> readAttached(const MailPart& file, const Origin& origin, int depth) const;
    std::vector<HandedIn> readText(std::string_view bytes, const Origin& origin) const;
    HandedIn readSelectionFile(std::string_view bytes, const Origin& origin) const;
    HandedIn readSelectionText(std::string_view utf8, const Origin& origin) const;

    Bracket m_start;
    KnownTeams m_teams;
    TakeMailApart m_takeMailApart;
};

} // namespace tallyhoop
