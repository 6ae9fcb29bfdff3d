// intake/mail_text.cpp - plain work on the text of fields.
#include "intake/mail_text.h"

#include "base/windows1252.h"
#include "intake/charsets.h"
#include "intake/plain_text.h"

#include <algorithm>
#include <array>

namespace tallyhoop {

namespace {

/// @returns whether text in this character set may have the bytes of another text in ASCII
bool looksLikeAscii(std::string_view charset)
{
    constexpr std::array<std::string_view, 3> kBeginnings = {"iso-2022-", "utf-7", "utf-16"};
    return std::ranges::any_of(kBeginnings, [&](std::string_view name) { return startsWithFolded(charset, name); });
}

} // namespace

std::string_view withoutOuterBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kMailBlanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kMailBlanks) - first + 1);
}

std::string inLowerCase(std::string_view text)
{
    std::string lower{text};
    for (char& letter : lower)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return lower;
}

std::string inUtf8(std::string_view bytes, const std::string& charset)
{
    return isUtf8(bytes) && !looksLikeAscii(charset) ? std::string{bytes}
                                                     : utf8FromCharset(bytes, charset).value_or(utf8Of(bytes));
}

} // namespace tallyhoop
