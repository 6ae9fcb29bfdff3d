// reports/web/web_page.cpp - escapes, and the places of a template.
#include "reports/web/web_page.h"

#include "base/windows1252.h"

#include <fmt/format.h>

namespace tallyhoop {

namespace {

bool isControl(unsigned char byte) { return byte < ' ' || byte == 0x7F; }

} // namespace

bool isEscapedInPage(unsigned char byte)
{
    constexpr std::string_view kSpecial = "\"\\<>&\x81\x8D\x8F\x90\x9D"; // the last five are controls, too
    return isControl(byte) || kSpecial.find(static_cast<char>(byte)) != std::string_view::npos;
}

std::string htmlOf(std::string_view text)
{
    std::string html;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (isControl(byte))
            html += ' ';
        else
            html += isEscapedInPage(byte) ? fmt::format("&#{};", byte) : toUtf8({&character, 1});
    }
    return html;
}

std::string filled(std::string_view page, std::string_view place, std::string_view text)
{
    const std::size_t at = page.find(place);
    return fmt::format("{}{}{}", page.substr(0, at), text, page.substr(at + place.size()));
}

} // namespace tallyhoop
