// base/windows1252.cpp - the one table of characters, UTF-8 in and out, and folding.
#include "base/windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tallyhoop {
namespace {

constexpr unsigned char kFirstSpecial = 0x80;
constexpr unsigned char kLastSpecial = 0x9F;

/// The characters of bytes 80..9F; all other bytes are the Unicode characters of the same number.
constexpr std::array<char32_t, 32> kSpecial = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                               0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr unsigned char byteAt(std::string_view text, std::size_t place)
{
    return static_cast<unsigned char>(text[place]);
}

/// What the first byte of a UTF-8 sequence announces.
struct Lead {
    std::size_t following = 0; ///< bytes that must follow
    char32_t bits = 0;         ///< the lead's own part of the character
    char32_t least = 0;        ///< a smaller character would be an overlong form
    bool valid = false;
};

Lead leadOf(unsigned char byte)
{
    if (byte < 0x80)
        return {0, byte, 0, true};
    if (byte >= 0xC2 && byte <= 0xDF)
        return {1, static_cast<char32_t>(byte & 0x1F), 0x80, true};
    if (byte >= 0xE0 && byte <= 0xEF)
        return {2, static_cast<char32_t>(byte & 0x0F), 0x800, true};
    if (byte >= 0xF0 && byte <= 0xF4)
        return {3, static_cast<char32_t>(byte & 0x07), 0x10000, true};
    return {};
}

/// Takes one character and moves on after it. A broken sequence moves on by the bytes that belong to it.
std::optional<char32_t> nextCharacter(std::string_view utf8, std::size_t& place)
{
    const Lead lead = leadOf(byteAt(utf8, place++));
    if (!lead.valid)
        return std::nullopt;
    char32_t character = lead.bits;
    for (std::size_t i = 0; i < lead.following; ++i) {
        if (place == utf8.size() || (byteAt(utf8, place) & 0xC0) != 0x80)
            return std::nullopt;
        character = (character << 6) | (byteAt(utf8, place++) & 0x3Fu);
    }
    return character >= lead.least ? std::optional{character} : std::nullopt;
}

/// @returns the small letter of an accented capital, the byte itself when it is none
constexpr unsigned char foldedAccent(unsigned char byte)
{
    constexpr unsigned char kTimes = 0xD7; // is among the capitals and is none
    if (byte >= 0xC0 && byte <= 0xDE && byte != kTimes)
        return static_cast<unsigned char>(byte + 0x20);
    if (byte == 0x8A || byte == 0x8C || byte == 0x8E)
        return static_cast<unsigned char>(byte + 0x10);
    return byte == 0x9F ? 0xFF : byte;
}

constexpr unsigned char foldedByte(unsigned char byte)
{
    if (byte >= 'A' && byte <= 'Z')
        return static_cast<unsigned char>(byte + ('a' - 'A'));
    return foldedAccent(byte);
}

constexpr std::array<unsigned char, 256> makeFoldTable()
{
    std::array<unsigned char, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = foldedByte(static_cast<unsigned char>(byte));
    return table;
}

constexpr std::array<unsigned char, 256> makeCapitalTable()
{
    std::array<unsigned char, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        table[byte] = static_cast<unsigned char>(byte);
    for (std::size_t byte = 0; byte < table.size(); ++byte)
        if (foldedByte(static_cast<unsigned char>(byte)) != byte)
            table[foldedByte(static_cast<unsigned char>(byte))] = static_cast<unsigned char>(byte);
    return table;
}

constexpr std::array<unsigned char, 256> kFolded = makeFoldTable();
constexpr std::array<unsigned char, 256> kCapital = makeCapitalTable();

} // namespace

char32_t unicodeOf(unsigned char byte)
{
    return byte >= kFirstSpecial && byte <= kLastSpecial ? kSpecial.at(byte - kFirstSpecial) : char32_t{byte};
}

std::optional<unsigned char> byteOf(char32_t character)
{
    if (character < kFirstSpecial || (character > kLastSpecial && character <= 0xFF))
        return static_cast<unsigned char>(character);
    const auto* found = std::find(kSpecial.begin(), kSpecial.end(), character);
    if (found == kSpecial.end())
        return std::nullopt;
    return static_cast<unsigned char>(kFirstSpecial + (found - kSpecial.begin()));
}

void appendUtf8(std::string& utf8, char32_t character)
{
    const auto put = [&utf8](char32_t bits) { utf8.push_back(static_cast<char>(static_cast<unsigned char>(bits))); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xE0 | (character >> 12));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

std::string toUtf8(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t place = 0; place < text.size(); ++place)
        appendUtf8(utf8, unicodeOf(byteAt(text, place)));
    return utf8;
}

std::string fromUtf8(std::string_view utf8)
{
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t place = 0; place < utf8.size();) {
        const std::optional<char32_t> character = nextCharacter(utf8, place);
        const std::optional<unsigned char> byte = character ? byteOf(*character) : std::nullopt;
        text.push_back(static_cast<char>(byte.value_or('?')));
    }
    return text;
}

unsigned char folded(unsigned char byte) { return kFolded[byte]; }

std::string upperCase(std::string_view text)
{
    std::string upper{text};
    for (char& character : upper)
        character = static_cast<char>(kCapital[static_cast<unsigned char>(character)]);
    return upper;
}

int compareFolded(std::string_view left, std::string_view right)
{
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t place = 0; place < common; ++place) {
        const int difference = kFolded[byteAt(left, place)] - kFolded[byteAt(right, place)];
        if (difference != 0)
            return difference;
    }
    return left.size() == right.size() ? 0 : (left.size() < right.size() ? -1 : 1);
}

bool equalFolded(std::string_view left, std::string_view right)
{
    return left.size() == right.size() && compareFolded(left, right) == 0;
}

bool startsWithFolded(std::string_view text, std::string_view prefix)
{
    return text.size() >= prefix.size() && compareFolded(text.substr(0, prefix.size()), prefix) == 0;
}

bool endsWithFolded(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && compareFolded(text.substr(text.size() - end.size()), end) == 0;
}

} // namespace tallyhoop
