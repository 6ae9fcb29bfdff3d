// intake/addresses.cpp - an address is what is around an "@", as far as its characters go.
#include "intake/addresses.h"

#include "base/windows1252.h"
#include "intake/ascii_search.h"

#include <algorithm>

namespace tallyhoop {

namespace {

bool isLetterOrDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool isOfName(char c)
{
    return isLetterOrDigit(c) || std::string_view{"!#$%&'*+-/=?^_`{|}~."}.find(c) != std::string_view::npos;
}

bool isOfHost(char c) { return isLetterOrDigit(c) || c == '-' || c == '.'; }

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0u) == 0x80u; }

/// @param place of the first byte of a character of UTF-8
/// @returns whether it is a letter outside ASCII; not so for quotation marks, dashes and blanks
bool isOtherLetter(std::string_view text, std::size_t place)
{
    const auto byte = static_cast<unsigned char>(text[place]);
    return byte >= 0xC3u && byte != 0xE2u && place + 1 < text.size() && isContinuation(text[place + 1]);
}

bool isAfterOtherLetter(std::string_view text, std::size_t end)
{
    std::size_t place = end;
    while (place > 0 && isContinuation(text[place - 1]))
        --place;
    return place > 0 && place < end && isOtherLetter(text, place - 1);
}

/// @param at where the "@" is
/// @returns empty when there is nothing on one of its sides, and for an address with letters that would be left out
std::string addressAround(std::string_view text, std::size_t at)
{
    std::size_t begin = at;
    while (begin > 0 && isOfName(text[begin - 1]))
        --begin;
    std::size_t end = at + 1;
    while (end < text.size() && isOfHost(text[end]))
        ++end;
    if (isAfterOtherLetter(text, begin) || (end < text.size() && isOtherLetter(text, end)))
        return {};
    while (end > at + 1 && !isLetterOrDigit(text[end - 1]))
        --end; // the full stop of a sentence
    const bool isWhole = begin < at && end > at + 1;
    return isWhole ? std::string{text.substr(begin, end - begin)} : std::string{};
}

} // namespace

std::string firstAddressIn(std::string_view text)
{
    for (std::size_t at = text.find('@'); at != std::string_view::npos; at = text.find('@', at + 1))
        if (std::string address = addressAround(text, at); !address.empty())
            return address;
    return {};
}

bool isAddressForEntries(std::string_view text)
{
    constexpr std::size_t kLongestAddress = 254; // that a mail server takes
    return text.size() <= kLongestAddress && firstAddressIn(text) == text;
}

bool namesAddress(std::string_view text, std::string_view address)
{
    for (std::size_t at = text.find('@'); at != std::string_view::npos; at = text.find('@', at + 1))
        if (equalFolded(addressAround(text, at), address))
            return true;
    return false;
}

std::string lastWriterIn(std::string_view text)
{
    constexpr std::size_t kMostOfHeader = 200; // a name and an address, and a date
    const std::size_t from = lastKey(text, "From");
    const std::size_t wrote = lastKey(text, "wrote");
    if (from == std::string_view::npos && wrote == std::string_view::npos)
        return {};
    if (from != std::string_view::npos && (wrote == std::string_view::npos || from > wrote)) {
        std::string_view header = text.substr(from, kMostOfHeader);
        header = header.substr(0, keyAt(header, "To", 0).begin);
        return firstAddressIn(header);
    }
    const std::string_view attribution = text.substr(0, wrote).substr(wrote - std::min(wrote, kMostOfHeader));
    for (std::size_t at = attribution.rfind('@'); at != std::string_view::npos && at > 0;
         at = attribution.rfind('@', at - 1))
        if (std::string address = addressAround(attribution, at); !address.empty())
            return address;
    return {};
}

} // namespace tallyhoop
