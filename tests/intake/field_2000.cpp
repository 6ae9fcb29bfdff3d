// tests/intake/field_2000.cpp - the field, and a writer of its own for the text of the entry form.
#include "intake/field_2000.h"

#include "base/windows1252.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace tallyhoop::test {

namespace {

constexpr std::array<const char*, 64> kTeams2000 = {"Arizona",
                                                    "Jackson St.",
                                                    "Wisconsin",
                                                    "Fresno St.",
                                                    "Texas",
                                                    "Indiana St.",
                                                    "LSU",
                                                    "SE Missouri St.",
                                                    "Purdue",
                                                    "Dayton",
                                                    "Oklahoma",
                                                    "Winthrop",
                                                    "Louisville",
                                                    "Gonzaga",
                                                    "St. John's",
                                                    "Northern Arizona",
                                                    "Michigan St.",
                                                    "Valparaiso",
                                                    "Utah",
                                                    "St. Louis",
                                                    "Kentucky",
                                                    "St. Bonaventure",
                                                    "Syracuse",
                                                    "Samford",
                                                    "UCLA",
                                                    "Ball St.",
                                                    "Maryland",
                                                    "Iona",
                                                    "Auburn",
                                                    "Creighton",
                                                    "Iowa St.",
                                                    "Central Conn. St.",
                                                    "Duke",
                                                    "Lamar",
                                                    "Kansas",
                                                    "DePaul",
                                                    "Florida",
                                                    "Butler",
                                                    "Illinois",
                                                    "Pennsylvania",
                                                    "Indiana",
                                                    "Pepperdine",
                                                    "Oklahoma St.",
                                                    "Hofstra",
                                                    "Oregon",
                                                    "Seton Hall",
                                                    "Temple",
                                                    "Lafayette",
                                                    "Stanford",
                                                    "S. Carolina St.",
                                                    "North Carolina",
                                                    "Missouri",
                                                    "Connecticut",
                                                    "Utah St.",
                                                    "Tennessee",
                                                    "Louisiana-Lafayette",
                                                    "Miami, FL",
                                                    "Arkansas",
                                                    "Ohio St.",
                                                    "Appalachian St.",
                                                    "Tulsa",
                                                    "UNLV",
                                                    "Cincinnati",
                                                    "UNC Wilmington"};

/// A remainder for each byte, from a table: another way than the program's.
std::uint32_t remainderOf(std::string_view bytes)
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        table[byte] = byte;
        for (int bit = 0; bit < 8; ++bit)
            table[byte] = (table[byte] & 1u) != 0 ? (table[byte] >> 1) ^ 0xEDB88320u : table[byte] >> 1;
    }
    std::uint32_t value = 0xFFFFFFFFu;
    for (const char byte : bytes)
        value = table[(value ^ static_cast<unsigned char>(byte)) & 0xFFu] ^ (value >> 8);
    return value ^ 0xFFFFFFFFu;
}

/// Texts of these tests have no characters that look like others, but for the typographic apostrophe.
std::string plain(const std::string& text) { return replaced(text, "\x92", "'"); }

std::string list(const Bracket& picks, int first, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += (i > 0 ? ", " : "") + replaced(picks.at(Position{first + i}), ",", ",,");
    return all;
}

} // namespace

Field field2000()
{
    Field field;
    for (std::size_t i = 0; i < kTeams2000.size(); ++i)
        field.teams.values[i] = kTeams2000[i];
    field.title = "2000 Office Pool";
    field.regionTitles = {"West", "Midwest", "East", "South"};
    field.payoffs = PayoffTexts{{"1", "2", "4", "8", "12", "16"}};
    field.finalized = "1";
    return field;
}

Bracket upperTeamsWin()
{
    Bracket picks = startingBracket(field2000());
    for (int region = 0; region < 4; ++region) {
        const int base = 31 * region;
        int from = base;
        for (int to = base + 16; to <= base + 30; ++to, from += 2)
            picks.copy(Position{from}, Position{to});
    }
    picks.copy(Position{30}, Position{124});
    picks.copy(Position{92}, Position{125});
    picks.put(Position{126}, "Duke");
    return picks;
}

Entry upperEntry(std::string name, std::string initials, std::string total)
{
    return {upperTeamsWin(), std::move(initials), std::move(name), std::move(total), {}};
}

std::string formText(const Entry& entry, std::string_view email)
{
    std::string text = "Tallyhoop bracket: 2000 Office Pool\n\nName: " + toUtf8(entry.name) +
                       "\nInitials: " + toUtf8(entry.initials) + "\nTotal: " + entry.finalPoints + "\n";
    if (!email.empty())
        text += "E-mail: " + std::string{email} + "\n";
    text += "\n";
    for (int region = 0; region < 4; ++region) {
        const int base = 31 * region;
        text += "Region " + std::to_string(region + 1) + ": " +
                field2000().regionTitles.at(static_cast<std::size_t>(region)) + "\n";
        text += "Round 1: " + list(entry.picks, base + 16, 8) + "\n";
        text += "Round 2: " + list(entry.picks, base + 24, 4) + "\n";
        text += "Round 3: " + list(entry.picks, base + 28, 2) + "\n";
        text += "Round 4: " + list(entry.picks, base + 30, 1) + "\n";
    }
    text += "Semifinals: " + list(entry.picks, 124, 2) + "\n";
    text += "Champion: " + list(entry.picks, 126, 1) + "\n\n";

    std::string checked = plain(entry.name) + "\n" + plain(entry.initials) + "\n" + entry.finalPoints + "\n";
    for (const int first : {16, 47, 78, 109})
        for (int place = first; place < first + 15; ++place)
            checked += entry.picks.at(Position{place}) + "\n";
    for (const int place : {124, 125, 126})
        checked += entry.picks.at(Position{place}) + "\n";
    std::array<char, 9> digits{};
    std::snprintf(digits.data(), digits.size(), "%08X", remainderOf(checked));
    return text + "Check: " + digits.data() + "\n";
}

std::string exampleText()
{
    return "Tallyhoop bracket: 2000 Office Pool\n"
           "\n"
           "Name: Zo\xC3\xA9 O\xE2\x80\x99Neil\n"
           "Initials: zo\n"
           "Total: 142\n"
           "E-mail: zoe@example.org\n"
           "\n"
           "Region 1: West\n"
           "Round 1: Arizona, Wisconsin, Texas, LSU, Purdue, Oklahoma, Louisville, St. John's\n"
           "Round 2: Arizona, Texas, Purdue, Louisville\n"
           "Round 3: Arizona, Purdue\n"
           "Round 4: Arizona\n"
           "Region 2: Midwest\n"
           "Round 1: Michigan St., Utah, Kentucky, Syracuse, UCLA, Maryland, Auburn, Iowa St.\n"
           "Round 2: Michigan St., Kentucky, UCLA, Auburn\n"
           "Round 3: Michigan St., UCLA\n"
           "Round 4: Michigan St.\n"
           "Region 3: East\n"
           "Round 1: Duke, Kansas, Florida, Illinois, Indiana, Oklahoma St., Oregon, Temple\n"
           "Round 2: Duke, Florida, Indiana, Oregon\n"
           "Round 3: Duke, Indiana\n"
           "Round 4: Duke\n"
           "Region 4: South\n"
           "Round 1: Stanford, North Carolina, Connecticut, Tennessee, Miami,, FL, Ohio St., Tulsa, Cincinnati\n"
           "Round 2: Stanford, Connecticut, Miami,, FL, Tulsa\n"
           "Round 3: Stanford, Miami,, FL\n"
           "Round 4: Stanford\n"
           "Semifinals: Arizona, Duke\n"
           "Champion: Duke\n"
           "\n"
           "Check: 6623D64A\n";
}

std::string utf16Of(std::string_view text)
{
    std::string bytes = "\xFF\xFE";
    for (const char c : text) {
        const char32_t unit = unicodeOf(static_cast<unsigned char>(c));
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

std::string replaced(std::string text, std::string_view what, std::string_view by)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size()))
        text.replace(at, what.size(), by);
    return text;
}

std::string withEachLine(std::string_view before, std::string_view text)
{
    std::string all{before};
    for (const char c : text) {
        all.push_back(c);
        if (c == '\n')
            all += before;
    }
    all.resize(all.size() - (text.ends_with('\n') ? before.size() : 0));
    return all;
}

} // namespace tallyhoop::test
