// base/text.cpp - small text helpers.
#include "base/text.h"

#include "base/windows1252.h"

#include <algorithm>

namespace tallyhoop {

std::string trimTrailingBlanks(std::string_view text) { return std::string{text.substr(0, lastNonBlank(text))}; }

std::string withoutOuterBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string{} : trimTrailingBlanks(text.substr(first));
}

std::size_t lastNonBlank(std::string_view text)
{
    const std::size_t place = text.find_last_not_of(' ');
    return place == std::string_view::npos ? 0 : place + 1;
}

bool isBlankField(std::string_view text) { return text.empty() || text.front() == ' '; }

std::string encodeLineBreaks(std::string_view text)
{
    std::string encoded;
    encoded.reserve(text.size());
    for (std::size_t place = 0; place < text.size();) {
        if (text.substr(place, kLineBreak.size()) == kLineBreak) {
            encoded.push_back('|');
            place += kLineBreak.size();
        } else {
            encoded.push_back(text[place++]);
        }
    }
    return encoded;
}

std::string decodeLineBreaks(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    for (const char character : text) {
        if (character == '|')
            decoded += kLineBreak;
        else
            decoded.push_back(character);
    }
    return decoded;
}

std::string fitted(std::string_view text, std::size_t width)
{
    std::string result{text.substr(0, width)};
    result.resize(width, ' ');
    return result;
}

std::string asOneLine(std::string text)
{
    const auto isControl = [](char character) {
        return static_cast<unsigned char>(character) < ' ' || character == 0x7F;
    };
    std::ranges::replace_if(text, isControl, ' ');
    return text;
}

std::string blanks(std::size_t count) { return repeated(' ', count); }

std::string repeated(char character, std::size_t count)
{
    std::string text(count, character); // braces would make a text of two characters
    return text;
}

std::vector<std::string> split(std::string_view text, char separator)
{
    std::vector<std::string> pieces;
    pieces.reserve(static_cast<std::size_t>(std::ranges::count(text, separator)) + 1);
    std::size_t begin = 0;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator, begin)) {
        pieces.emplace_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    pieces.emplace_back(text.substr(begin));
    return pieces;
}

std::size_t insertSorted(std::vector<std::string>& rows, std::string row)
{
    const auto place = std::upper_bound(rows.begin(), rows.end(), row, FoldedLess{});
    const auto index = static_cast<std::size_t>(place - rows.begin());
    rows.insert(place, std::move(row));
    return index;
}

std::string joinLines(const std::vector<std::string>& lines) { return joined(lines, kLineBreak); }

std::string joined(std::span<const std::string> texts, std::string_view between)
{
    std::string all;
    for (const std::string& text : texts) {
        if (&text != &texts.front())
            all += between;
        all += text;
    }
    return all;
}

std::vector<std::string> fewEnoughForAMessage(std::vector<std::string> lines)
{
    constexpr std::size_t kMostLines = 20;
    if (lines.size() > kMostLines) {
        const std::size_t left = lines.size() - kMostLines;
        lines.resize(kMostLines);
        lines.push_back("and " + std::to_string(left) + " more");
    }
    return lines;
}

} // namespace tallyhoop
