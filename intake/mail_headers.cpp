// intake/mail_headers.cpp - reads the fields of a mail as leniently as mail programs write them.
#include "intake/mail_headers.h"

#include "intake/mail_text.h"

#include <algorithm>

namespace tallyhoop {

namespace {

/// Takes the next line, without its end.
std::string_view takeLine(std::string_view& bytes)
{
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

/// @returns how long the name is at the beginning of a line; 0 = the line is no field
std::size_t lengthOfName(std::string_view line)
{
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos)
        return 0;
    const std::size_t end = line.substr(0, colon).find_last_not_of(" \t") + 1;
    return line.substr(0, end).find_first_of(" \t") == std::string_view::npos ? end : 0;
}

/// @returns the text without what is in quotation marks and in parentheses: names and comments
std::string withoutNames(std::string_view text)
{
    std::string left;
    int depth = 0;
    bool isQuoted = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\\' && (isQuoted || depth > 0))
            ++at;
        else if (text[at] == '"' && depth == 0)
            isQuoted = !isQuoted;
        else if (!isQuoted && (text[at] == '(' || text[at] == ')'))
            depth = std::max(0, depth + (text[at] == '(' ? 1 : -1));
        else if (!isQuoted && depth == 0)
            left.push_back(text[at]);
    }
    return left;
}

} // namespace

MailHeaders MailHeaders::takenFrom(std::string_view& bytes)
{
    MailHeaders headers;
    while (!bytes.empty()) {
        std::string_view rest = bytes;
        const std::string_view line = takeLine(rest);
        const std::size_t name = lengthOfName(line);
        if (line.empty()) {
            bytes = rest;
            break;
        }
        if (line.front() == ' ' || line.front() == '\t') {
            if (!headers.m_fields.empty())
                headers.m_fields.back().second += line;
        } else if (name > 0) {
            headers.m_fields.emplace_back(inLowerCase(line.substr(0, name)),
                                          withoutOuterBlanks(line.substr(line.find(':') + 1)));
        } else if (!line.starts_with("From ") && !line.starts_with(">From ")) { // which begin a mail in a mailbox file
            break;
        }
        bytes = rest;
    }
    return headers;
}

std::string MailHeaders::get(std::string_view name) const
{
    const std::string wanted = inLowerCase(name);
    const auto field = std::ranges::find(m_fields, wanted, &std::pair<std::string, std::string>::first);
    return field == m_fields.end() ? std::string{} : field->second;
}

std::string firstAddress(std::string_view field)
{
    const std::string plain = withoutNames(field);
    const std::size_t open = plain.find('<');
    const std::size_t comma = plain.find(',');
    if (open != std::string::npos && (comma == std::string::npos || open < comma)) {
        const std::size_t close = std::min(plain.find('>', open), plain.size());
        return std::string{withoutOuterBlanks(std::string_view{plain}.substr(open + 1, close - open - 1))};
    }
    const std::string_view bare = withoutOuterBlanks(std::string_view{plain}.substr(0, comma));
    return bare.find('@') != std::string_view::npos && bare.find_first_of(kMailBlanks) == std::string_view::npos
               ? std::string{bare}
               : std::string{};
}

} // namespace tallyhoop
