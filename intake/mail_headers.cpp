// intake/mail_headers.cpp - reads the fields of a mail as leniently as mail programs write them.
#include "intake/mail_headers.h"

#include "base/windows1252.h"
#include "intake/charsets.h"
#include "intake/mail_encodings.h"
#include "intake/plain_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>

namespace tallyhoop {

namespace {

constexpr std::string_view kWhite = " \t\r\n";

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(kWhite);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kWhite) - first + 1);
}

std::string inSmallLetters(std::string_view text)
{
    std::string small{text};
    for (char& letter : small)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return small;
}

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

/// Text in a character set of which its header tells.
std::string utf8Of(std::string_view bytes, const std::string& charset)
{
    return isUtf8(bytes) ? std::string{bytes} : utf8FromCharset(bytes, charset).value_or(tallyhoop::utf8Of(bytes));
}

// ------------------------------------------------------------------------------------------------- parameters

/// A parameter as it is written: "filename*0*" is part 0 of "filename", with escapes and perhaps a character set.
struct Piece {
    std::string name;
    int part = 0;
    bool isExtended = false;
    std::string text;
};

Piece pieceOf(std::string_view name, std::string text)
{
    Piece piece;
    if (name.ends_with('*')) {
        piece.isExtended = true;
        name.remove_suffix(1);
    }
    if (const std::size_t star = name.find('*'); star != std::string_view::npos) {
        std::from_chars(name.data() + star + 1, name.data() + name.size(), piece.part);
        name = name.substr(0, star);
    }
    piece.name = inSmallLetters(trimmed(name));
    piece.text = std::move(text);
    return piece;
}

/// Takes a text in quotation marks, or one up to the next semicolon.
std::string takeText(std::string_view& rest)
{
    rest = rest.substr(std::min(rest.find_first_not_of(kWhite), rest.size()));
    std::string text;
    if (!rest.starts_with('"')) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        text = trimmed(rest.substr(0, end));
        rest.remove_prefix(end);
        return text;
    }
    std::size_t at = 1;
    for (; at < rest.size() && rest[at] != '"'; ++at) {
        if (rest[at] == '\\' && at + 1 < rest.size())
            ++at;
        text.push_back(rest[at]);
    }
    rest.remove_prefix(std::min(rest.find(';', at), rest.size()));
    return text;
}

std::string withoutPercents(std::string_view text)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned value = 0;
        const bool isEscape =
            text[at] == '%' && at + 2 < text.size() &&
            std::from_chars(text.data() + at + 1, text.data() + at + 3, value, 16).ptr == text.data() + at + 3;
        bytes.push_back(isEscape ? static_cast<char>(value) : text[at]);
        at += isEscape ? 2 : 0;
    }
    return bytes;
}

/// @param pieces of one parameter, in order
std::string joined(const std::vector<Piece>& pieces)
{
    if (!pieces.front().isExtended && pieces.size() == 1)
        return withoutEncodedWords(pieces.front().text);
    std::string charset;
    std::string bytes;
    for (const Piece& piece : pieces) {
        std::string_view text = piece.text;
        if (&piece == &pieces.front() && piece.isExtended) { // charset'language'text
            const std::size_t first = text.find('\'');
            const std::size_t second = text.find('\'', first == std::string_view::npos ? first : first + 1);
            if (second != std::string_view::npos) {
                charset = text.substr(0, first);
                text = text.substr(second + 1);
            }
        }
        bytes += piece.isExtended ? withoutPercents(text) : std::string{text};
    }
    return utf8Of(bytes, charset);
}

// ---------------------------------------------------------------------------------------------- encoded words

/// An encoded word at the beginning of a text, such as `=?utf-8?q?Zo=C3=A9?=`.
struct Word {
    std::string charset;
    std::string bytes;
    std::size_t length = 0;
};

std::optional<Word> wordAt(std::string_view text)
{
    const std::size_t charsetEnd = text.find('?', 2);
    if (!text.starts_with("=?") || charsetEnd == std::string_view::npos || charsetEnd + 2 >= text.size() ||
        text[charsetEnd + 2] != '?')
        return std::nullopt;
    const std::size_t begin = charsetEnd + 3;
    const std::size_t end = text.find("?=", begin);
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view content = text.substr(begin, end - begin);
    const std::string_view charset = text.substr(2, charsetEnd - 2);
    Word word{std::string{charset.substr(0, charset.find('*'))}, {}, end + 2};
    switch (text[charsetEnd + 1]) {
    case 'q':
    case 'Q':
        word.bytes = fromQuotedPrintable(content, true);
        return word;
    case 'b':
    case 'B':
        word.bytes = fromBase64(content);
        return word;
    default:
        return std::nullopt;
    }
}

// ---------------------------------------------------------------------------------------------------- addresses

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

// -------------------------------------------------------------------------------------------------------- dates

std::optional<int> numberOf(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional{number} : std::nullopt;
}

std::vector<std::string_view> wordsOf(std::string_view text)
{
    std::vector<std::string_view> words;
    for (text = trimmed(text); !text.empty(); text = trimmed(text)) {
        const std::size_t end = std::min(text.find_first_of(" \t\r\n,"), text.size());
        if (end > 0)
            words.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return words;
}

std::optional<unsigned> monthOf(std::string_view word)
{
    constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                          "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    for (unsigned month = 0; month < kMonths.size(); ++month)
        if (startsWithFolded(word, kMonths.at(month)))
            return month + 1;
    return std::nullopt;
}

/// @returns the seconds of a time such as 08:00 or 8:00:30
std::optional<std::int64_t> secondsOfTime(std::string_view word)
{
    std::int64_t seconds = 0;
    int parts = 0;
    for (; parts < 3; ++parts) {
        const std::size_t colon = word.find(':');
        const std::optional<int> number = numberOf(word.substr(0, colon));
        if (!number || *number < 0 || *number > 60)
            return std::nullopt;
        seconds += *number * (parts == 0 ? 3600 : parts == 1 ? 60 : 1);
        if (colon == std::string_view::npos)
            break;
        word.remove_prefix(colon + 1);
    }
    return parts == 0 ? std::nullopt : std::optional{seconds};
}

/// @returns how many seconds a zone such as -0500 or EST is ahead of UTC; one that is not known counts as UTC
std::int64_t aheadOfUtc(std::string_view zone)
{
    struct Named {
        std::string_view name;
        int hours;
    };
    constexpr std::array<Named, 8> kZones = {
        {{"EST", -5}, {"EDT", -4}, {"CST", -6}, {"CDT", -5}, {"MST", -7}, {"MDT", -6}, {"PST", -8}, {"PDT", -7}}};
    for (const Named& named : kZones)
        if (equalFolded(zone, named.name))
            return named.hours * 3600;
    if (zone.size() != 5 || (zone[0] != '+' && zone[0] != '-'))
        return 0;
    const int number = numberOf(zone.substr(1)).value_or(0);
    return (number / 100 * 3600 + number % 100 * 60) * (zone[0] == '-' ? -1 : 1);
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
            headers.m_fields.emplace_back(inSmallLetters(line.substr(0, name)),
                                          trimmed(line.substr(line.find(':') + 1)));
        } else if (!line.starts_with("From ") && !line.starts_with(">From ")) { // which begin a mail in a mailbox file
            break;
        }
        bytes = rest;
    }
    return headers;
}

std::string MailHeaders::get(std::string_view name) const
{
    const std::string wanted = inSmallLetters(name);
    const auto field = std::ranges::find(m_fields, wanted, &std::pair<std::string, std::string>::first);
    return field == m_fields.end() ? std::string{} : field->second;
}

std::string MailValue::get(const std::string& name) const
{
    const auto parameter = parameters.find(name);
    return parameter == parameters.end() ? std::string{} : parameter->second;
}

MailValue mailValueOf(std::string_view field)
{
    MailValue taken;
    taken.value = inSmallLetters(trimmed(field.substr(0, field.find(';'))));
    field.remove_prefix(std::min(field.find(';'), field.size()));
    std::map<std::string, std::vector<Piece>> pieces;
    while (!field.empty()) {
        field.remove_prefix(1); // the semicolon
        const std::size_t equals = std::min(field.find('='), field.size());
        const std::size_t semicolon = std::min(field.find(';'), field.size());
        if (equals >= semicolon) { // no parameter
            field.remove_prefix(semicolon);
            continue;
        }
        const std::string_view name = field.substr(0, equals);
        field.remove_prefix(equals + 1);
        Piece piece = pieceOf(name, takeText(field));
        pieces[piece.name].push_back(std::move(piece));
    }
    for (auto& [name, parts] : pieces) {
        // Whoever knows how says it with escapes; the plain one is for programs that do not understand them.
        if (std::ranges::any_of(parts, &Piece::isExtended) && std::ranges::count(parts, 0, &Piece::part) > 1)
            std::erase_if(parts, [](const Piece& piece) { return !piece.isExtended; });
        std::ranges::stable_sort(parts, {}, &Piece::part);
        taken.parameters[name] = joined(parts);
    }
    return taken;
}

std::string withoutEncodedWords(std::string_view text)
{
    std::string utf8;
    std::size_t blanksAfterWord = std::string::npos; // where they begin: they are left out between two words
    std::string bytes;                               // of words that follow each other, in one character set
    std::string charset;
    const auto endWords = [&] {
        utf8 += utf8Of(bytes, charset);
        bytes.clear();
    };
    while (!text.empty()) {
        const std::optional<Word> word = wordAt(text);
        if (!word) {
            endWords();
            utf8.push_back(text.front());
            if (kWhite.find(text.front()) == std::string_view::npos)
                blanksAfterWord = std::string::npos;
            text.remove_prefix(1);
            continue;
        }
        if (blanksAfterWord != std::string::npos)
            utf8.resize(blanksAfterWord);
        if (!equalFolded(charset, word->charset))
            endWords();
        charset = word->charset;
        bytes += word->bytes;
        text.remove_prefix(word->length);
        endWords();
        blanksAfterWord = utf8.size();
    }
    return isUtf8(utf8) ? utf8 : tallyhoop::utf8Of(utf8);
}

std::string firstAddress(std::string_view field)
{
    const std::string plain = withoutNames(field);
    const std::size_t open = plain.find('<');
    const std::size_t comma = plain.find(',');
    if (open != std::string::npos && (comma == std::string::npos || open < comma)) {
        const std::size_t close = std::min(plain.find('>', open), plain.size());
        return std::string{trimmed(std::string_view{plain}.substr(open + 1, close - open - 1))};
    }
    const std::string_view bare = trimmed(std::string_view{plain}.substr(0, comma));
    return bare.find('@') != std::string_view::npos && bare.find_first_of(kWhite) == std::string_view::npos
               ? std::string{bare}
               : std::string{};
}

std::optional<std::int64_t> secondsOfMailDate(std::string_view field)
{
    using namespace std::chrono;
    std::vector<std::string_view> words = wordsOf(field);
    if (!words.empty() && !numberOf(words.front())) // the day of the week
        words.erase(words.begin());
    if (words.size() < 4)
        return std::nullopt;
    const std::optional<int> dayNumber = numberOf(words[0]);
    const std::optional<unsigned> monthNumber = monthOf(words[1]);
    const std::optional<int> yearNumber = numberOf(words[2]);
    const std::optional<std::int64_t> time = secondsOfTime(words[3]);
    if (!dayNumber || *dayNumber < 1 || !monthNumber || !yearNumber || !time)
        return std::nullopt;
    const int century = *yearNumber < 50 ? 2000 : *yearNumber < 1000 ? 1900 : 0; // two digits, or three by mistake
    const year_month_day date{year{*yearNumber + century}, month{*monthNumber}, day{static_cast<unsigned>(*dayNumber)}};
    if (!date.ok())
        return std::nullopt;
    const std::int64_t days = sys_days{date}.time_since_epoch().count();
    return days * 86'400 + *time - (words.size() > 4 ? aheadOfUtc(words[4]) : 0);
}

} // namespace tallyhoop
