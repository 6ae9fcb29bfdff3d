// qt/services/message_encodings.cpp - base64, percent encoding and the encoded words of headers.
#include "qt/services/message_encodings.h"

#include <algorithm>
#include <cstdint>

namespace tallyhoop::qt {

namespace {

bool isLetterOrDigit(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

/// @returns how many bytes from `start`, at most `most`, end between two characters
std::size_t wholeCharacters(std::string_view utf8, std::size_t start, std::size_t most)
{
    std::size_t end = std::min(start + most, utf8.size());
    while (end < utf8.size() && end > start + 1 && (static_cast<unsigned char>(utf8[end]) & 0xC0U) == 0x80U)
        --end;
    return end - start;
}

/// Appends up to three bytes as four letters.
void appendBase64(std::string& text, std::string_view bytes)
{
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < 3; ++i)
        bits = bits << 8U | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
    for (std::size_t i = 0; i < 4; ++i)
        text.push_back(i <= bytes.size() ? kLetters[bits >> (18U - 6U * i) & 0x3FU] : '=');
}

} // namespace

std::string base64(std::string_view bytes)
{
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (; !bytes.empty(); bytes.remove_prefix(std::min<std::size_t>(3, bytes.size())))
        appendBase64(text, bytes.substr(0, 3));
    return text;
}

std::string percentEncoded(std::string_view text, std::string_view kept)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    constexpr std::string_view kMarks = "-._~";
    std::string encoded;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (isLetterOrDigit(c) || kMarks.find(c) != std::string_view::npos || kept.find(c) != std::string_view::npos)
            encoded.push_back(c);
        else
            encoded += {'%', kHex[byte >> 4U], kHex[byte & 0x0FU]};
    }
    return encoded;
}

bool isPlainHeader(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; }) &&
           text.find("=?") == std::string_view::npos && !text.starts_with(' ') && !text.ends_with(' ');
}

std::string encodedWords(std::string_view utf8)
{
    constexpr std::size_t kBytesPerWord = 39; // 52 in base64, 12 around them: a line holds 76, "Subject: " included
    std::string words;
    for (std::size_t start = 0; start < utf8.size();) {
        const std::size_t length = wholeCharacters(utf8, start, kBytesPerWord);
        words += (start == 0 ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") + base64(utf8.substr(start, length)) + "?=";
        start += length;
    }
    return words;
}

} // namespace tallyhoop::qt
