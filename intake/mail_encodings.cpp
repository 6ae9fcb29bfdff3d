// intake/mail_encodings.cpp - base64 and quoted-printable, read as leniently as mail programs do.
#include "intake/mail_encodings.h"

#include "base/windows1252.h"

#include <cstdint>
#include <optional>

namespace tallyhoop {

namespace {

std::optional<std::uint32_t> sixBitsOf(char letter)
{
    constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t at = kAlphabet.find(letter);
    return at == std::string_view::npos ? std::nullopt : std::optional{static_cast<std::uint32_t>(at)};
}

std::optional<unsigned> hexDigit(char digit)
{
    constexpr std::string_view kDigits = "0123456789abcdefABCDEF";
    const std::size_t at = kDigits.find(digit);
    if (at == std::string_view::npos)
        return std::nullopt;
    return static_cast<unsigned>(at < 16 ? at : at - 6);
}

/// @returns how long the rest of a line is when it has nothing but blanks and its end; 0 = it has more
std::size_t lengthOfBlankRest(std::string_view text)
{
    std::size_t at = text.find_first_not_of(" \t\r");
    if (at == std::string_view::npos)
        return text.size();
    return text[at] == '\n' ? at + 1 : 0;
}

} // namespace

std::string fromBase64(std::string_view text)
{
    std::string bytes;
    std::uint32_t bits = 0;
    int count = 0; // of the bits that are no byte yet
    for (const char letter : text) {
        if (letter == '=') { // what follows is something new: some programs encode line by line
            count = 0;
            continue;
        }
        const std::optional<std::uint32_t> six = sixBitsOf(letter);
        if (!six)
            continue;
        bits = (bits << 6 | *six) & 0xFFFF;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes.push_back(static_cast<char>(bits >> count & 0xFF));
        }
    }
    return bytes;
}

std::string fromQuotedPrintable(std::string_view text, bool isWord)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '_' && isWord) {
            bytes.push_back(' ');
        } else if (text[at] != '=') {
            bytes.push_back(text[at]);
        } else if (const auto high = at + 2 < text.size() ? hexDigit(text[at + 1]) : std::nullopt,
                   low = high ? hexDigit(text[at + 2]) : std::nullopt;
                   low) {
            bytes.push_back(static_cast<char>(*high << 4 | *low));
            at += 2;
        } else if (const std::size_t rest = lengthOfBlankRest(text.substr(at + 1)); rest > 0 || at + 1 == text.size()) {
            at += rest; // the line goes on in the next one
        } else {
            bytes.push_back('=');
        }
    }
    return bytes;
}

std::string decodedContent(std::string_view bytes, std::string_view encoding)
{
    if (equalFolded(encoding, "base64"))
        return fromBase64(bytes);
    if (equalFolded(encoding, "quoted-printable"))
        return fromQuotedPrintable(bytes);
    return std::string{bytes};
}

} // namespace tallyhoop
