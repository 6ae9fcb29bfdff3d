// qt/services/mailboxes.cpp - takes lists of addresses apart.
#include "qt/services/mailboxes.h"

#include "base/text.h"

#include <utility>

namespace tallyhoop::qt {

namespace {

/// Walks through a text and knows where it is inside quotation marks.
class Quotes
{
public:
    /// @returns whether the character is a mark, or between two
    bool cover(char c)
    {
        if (m_afterBackslash) {
            m_afterBackslash = false;
            return true;
        }
        m_afterBackslash = m_inside && c == '\\';
        if (c != '"')
            return m_inside;
        m_inside = !m_inside;
        return true;
    }

private:
    bool m_inside = false;
    bool m_afterBackslash = false;
};

std::vector<std::string> piecesOf(std::string_view recipient)
{
    std::vector<std::string> pieces{std::string{}};
    Quotes quotes;
    for (const char c : recipient) {
        if (!quotes.cover(c) && (c == ',' || c == ';'))
            pieces.emplace_back();
        else
            pieces.back().push_back(c);
    }
    return pieces;
}

/// @returns a name without the quotation marks around it and the backslashes in it
std::string unquoted(const std::string& name)
{
    if (name.size() < 2 || !name.starts_with('"') || !name.ends_with('"'))
        return name;
    std::string plain;
    for (std::size_t at = 1; at + 1 < name.size(); ++at) {
        if (name[at] == '\\' && at + 2 < name.size())
            ++at;
        plain.push_back(name[at]);
    }
    return plain;
}

/// @returns where the address in angle brackets begins that ends the piece; npos = there is none
std::size_t bracketOf(std::string_view piece)
{
    if (!piece.ends_with('>'))
        return std::string_view::npos;
    Quotes quotes;
    for (std::size_t at = 0; at < piece.size(); ++at)
        if (!quotes.cover(piece[at]) && piece[at] == '<')
            return at;
    return std::string_view::npos;
}

Mailbox mailboxOf(const std::string& piece)
{
    const std::size_t bracket = bracketOf(piece);
    if (bracket != std::string_view::npos)
        return {unquoted(withoutOuterBlanks(piece.substr(0, bracket))),
                withoutOuterBlanks(piece.substr(bracket + 1, piece.size() - bracket - 2))};
    return piece.find('@') == std::string::npos ? Mailbox{unquoted(piece), {}} : Mailbox{{}, piece};
}

} // namespace

std::vector<Mailbox> mailboxesOf(std::string_view recipient)
{
    const bool isOneName = recipient.find('@') == std::string_view::npos; // such as "Smith, J"
    std::vector<Mailbox> mailboxes;
    for (const std::string& piece : isOneName ? std::vector{std::string{recipient}} : piecesOf(recipient)) {
        Mailbox mailbox = mailboxOf(withoutOuterBlanks(piece));
        if (mailbox != Mailbox{})
            mailboxes.push_back(std::move(mailbox));
    }
    return mailboxes;
}

} // namespace tallyhoop::qt
