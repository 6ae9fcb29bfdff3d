// intake/plain_text.cpp - one table of the characters that look alike.
#include "intake/plain_text.h"

#include "base/text.h"
#include "base/utf8_mark.h"
#include "base/windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tallyhoop {

namespace {

/// A character in UTF-8 and what it becomes.
struct Alike {
    std::string_view character;
    std::string_view becomes;
};

// The first byte of each is outside of ASCII, so that most of a text is passed over quickly.
constexpr std::array<Alike, 20> kBlanks = {{
    {"\xC2\xA0", " "},
    {"\xE2\x80\x80", " "},
    {"\xE2\x80\x81", " "},
    {"\xE2\x80\x82", " "},
    {"\xE2\x80\x83", " "},
    {"\xE2\x80\x84", " "},
    {"\xE2\x80\x85", " "},
    {"\xE2\x80\x86", " "},
    {"\xE2\x80\x87", " "},
    {"\xE2\x80\x88", " "},
    {"\xE2\x80\x89", " "},
    {"\xE2\x80\x8A", " "},
    {"\xE2\x80\xAF", " "},
    {"\xE2\x81\x9F", " "},
    {"\xE3\x80\x80", " "},
    // invisible
    {"\xC2\xAD", ""},
    {"\xE2\x80\x8B", ""},
    {"\xE2\x80\x8C", ""},
    {"\xE2\x80\x8D", ""},
    {"\xE2\x81\xA0", ""},
}};
constexpr Alike kByteOrderMark{kUtf8Mark, ""};

constexpr std::array<Alike, 19> kPunctuation = {{
    {"\xC2\xB4", "'"},      {"\xE2\x80\x98", "'"},  {"\xE2\x80\x99", "'"},   {"\xE2\x80\x9A", "'"},
    {"\xE2\x80\x9B", "'"},  {"\xE2\x80\xB2", "'"},  {"\xE2\x80\x9C", "\""},  {"\xE2\x80\x9D", "\""},
    {"\xE2\x80\x9E", "\""}, {"\xE2\x80\x9F", "\""}, {"\xE2\x80\xB3", "\""},  {"\xE2\x80\x90", "-"},
    {"\xE2\x80\x91", "-"},  {"\xE2\x80\x92", "-"},  {"\xE2\x80\x93", "-"},   {"\xE2\x80\x94", "-"},
    {"\xE2\x80\x95", "-"},  {"\xE2\x88\x92", "-"},  {"\xE2\x80\xA6", "..."},
}};

/// @returns which of the table's characters a text begins with, nullptr for none
const Alike* alikeAt(std::string_view text, bool withPunctuation)
{
    const auto begins = [text](const Alike& alike) { return text.starts_with(alike.character); };
    if (const auto* found = std::ranges::find_if(kBlanks, begins); found != kBlanks.end())
        return found;
    if (begins(kByteOrderMark))
        return &kByteOrderMark;
    if (const auto* found = std::ranges::find_if(kPunctuation, begins); withPunctuation && found != kPunctuation.end())
        return found;
    return nullptr;
}

std::string withoutRepeatedBlanks(std::string_view text)
{
    std::string single;
    for (const char character : text)
        if (character != ' ' || (!single.empty() && single.back() != ' '))
            single.push_back(character);
    return trimTrailingBlanks(single);
}

char canonicalOfAscii(char character)
{
    constexpr char kQuotation = '>'; // of a line that a mail program has joined with the one before it
    return character == '`' ? '\'' : character == kQuotation ? ' ' : character;
}

/// @returns UTF-8
std::string unified(std::string_view utf8, bool withPunctuation)
{
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t place = 0; place < utf8.size();) {
        const char character = utf8[place];
        if (static_cast<unsigned char>(character) < 0x80) {
            const bool isBlank = character == '\t' || character == '\n' || character == '\r';
            text.push_back(isBlank ? ' ' : withPunctuation ? canonicalOfAscii(character) : character);
            ++place;
        } else if (const Alike* alike = alikeAt(utf8.substr(place), withPunctuation)) {
            text += alike->becomes;
            place += alike->character.size();
        } else {
            text.push_back(character);
            ++place;
        }
    }
    return withoutRepeatedBlanks(text);
}

bool hasUtf16Mark(std::string_view bytes) { return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"); }

/// @param lowFirst whether the low byte of each unit comes first
std::string utf8OfUtf16(std::string_view bytes, bool lowFirst)
{
    std::string text;
    for (std::size_t place = 0; place + 1 < bytes.size(); place += 2) {
        const auto first = static_cast<unsigned char>(bytes[place]);
        const auto second = static_cast<unsigned char>(bytes[place + 1]);
        const char32_t unit = lowFirst ? first + second * 256u : first * 256u + second;
        const bool isHalf = unit >= 0xD800 && unit <= 0xDFFF; // of a character that we could not keep
        appendUtf8(text, isHalf ? U'\uFFFD' : unit);
    }
    return text;
}

/// @returns how many bytes follow the first one of a character; nothing when it cannot be a first one
int following(unsigned char lead)
{
    return lead < 0x80                    ? 0
           : lead >= 0xC2 && lead <= 0xDF ? 1
           : lead >= 0xE0 && lead <= 0xEF ? 2
           : lead >= 0xF0 && lead <= 0xF4 ? 3
                                          : -1;
}

} // namespace

bool isUtf8(std::string_view bytes)
{
    for (std::size_t place = 0; place < bytes.size();) {
        const int more = following(static_cast<unsigned char>(bytes[place++]));
        if (more < 0)
            return false;
        for (int i = 0; i < more; ++i, ++place)
            if (place == bytes.size() || (static_cast<unsigned char>(bytes[place]) & 0xC0U) != 0x80U)
                return false;
    }
    return true;
}

bool hasByteOrderMark(std::string_view bytes) { return hasUtf16Mark(bytes) || bytes.starts_with(kUtf8Mark); }

std::string utf8Of(std::string_view bytes)
{
    if (hasUtf16Mark(bytes))
        return utf8OfUtf16(bytes.substr(2), bytes.front() == '\xFF');
    if (bytes.starts_with(kUtf8Mark))
        bytes.remove_prefix(kUtf8Mark.size());
    return isUtf8(bytes) ? std::string{bytes} : toUtf8(bytes);
}

std::string withPlainBlanks(std::string_view utf8) { return unified(utf8, false); }

std::string canonical(std::string_view utf8) { return fromUtf8(unified(utf8, true)); }

std::string quotedText(std::string_view text)
{
    constexpr std::size_t kMost = 40;
    const bool isLong = text.size() > kMost;
    return '"' + asOneLine(std::string{text.substr(0, kMost)}) + (isLong ? "...\"" : "\"");
}

bool hasControlCharacters(std::string_view text)
{
    return std::ranges::any_of(
        text, [](char character) { return static_cast<unsigned char>(character) < ' ' || character == '\x7F'; });
}

} // namespace tallyhoop
