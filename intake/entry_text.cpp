// intake/entry_text.cpp - first one long line without quotation, then its keys in their order.
#include "intake/entry_text.h"

#include "base/lines.h"
#include "base/numbers.h"
#include "base/windows1252.h"
#include "intake/addresses.h"
#include "intake/ascii_search.h"
#include "intake/check_value.h"
#include "intake/limits.h"
#include "intake/plain_text.h"
#include "intake/storable.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::string_view kFirstKey = "Tallyhoop bracket";
constexpr std::size_t kCheckDigits = 8;

/// A text without its lines: they are joined by blanks.
struct OneLine {
    std::string text;
    std::vector<std::pair<std::size_t, bool>> lines; ///< where each begins, and whether it was quoted

    bool isQuotedAt(std::size_t place) const
    {
        const auto after = std::ranges::upper_bound(lines, place, {}, &std::pair<std::size_t, bool>::first);
        return after != lines.begin() && std::prev(after)->second;
    }
};

OneLine oneLineOf(std::string_view utf8)
{
    OneLine all;
    while (!utf8.empty()) {
        const std::string line = withPlainBlanks(takeLine(utf8));
        const std::size_t begin = line.find_first_not_of("> |"); // some programs quote with bars
        if (begin == std::string::npos)
            continue;
        if (!all.text.empty())
            all.text.push_back(' ');
        all.lines.emplace_back(all.text.size(), line.front() == '>' || line.front() == '|');
        all.text.append(line, begin);
    }
    return all;
}

/// One list of the text: its key, the words for it, and how many games it has.
struct ListKey {
    std::string key;
    std::string words;
    std::size_t games = 0;
};

struct Key {
    std::string key;
    std::optional<ListKey> list{}; ///< of picks
};

/// @returns the keys after the e-mail address, in their order
const std::vector<Key>& keysOfPicks()
{
    static const std::vector<Key> all = [] {
        std::vector<Key> keys;
        for (int region = 1; region <= kRegions; ++region) {
            const std::string title = "Region " + std::to_string(region);
            keys.push_back({title});
            std::size_t games = kRowsPerRegion / 2;
            for (int round = 1; round <= 4; ++round, games /= 2) {
                const std::string key = "Round " + std::to_string(round);
                keys.push_back({key, ListKey{key, title + ", round " + std::to_string(round), games}});
            }
        }
        keys.push_back({"Semifinals", ListKey{"Semifinals", "The line of the semifinals", 2}});
        keys.push_back({"Champion", ListKey{"Champion", "The line of the champion", 1}});
        return keys;
    }();
    return all;
}

/// @returns a value whose doubled colons are its own
std::string withSingleColons(std::string_view value)
{
    std::string single;
    single.reserve(value.size());
    for (std::size_t place = 0; place < value.size(); ++place) {
        single.push_back(value[place]);
        place += value.substr(place, 2) == "::" ? 1 : 0;
    }
    return single;
}

/// @returns the elements of a list, UTF-8; a doubled comma or colon is one of an element's own
std::vector<std::string> elementsOf(std::string_view list)
{
    std::vector<std::string> elements(1);
    for (std::size_t place = 0; place < list.size(); ++place) {
        if (list[place] != ',')
            elements.back().push_back(list[place]);
        else if (list.substr(place, 2) == ",,")
            elements.back().push_back(list[++place]);
        else
            elements.emplace_back();
    }
    std::ranges::transform(elements, elements.begin(), withSingleColons);
    return elements;
}

/// Takes one entry apart, from its first key on.
class EntryText
{
public:
    EntryText(std::string_view text, const KnownTeams& teams) : m_text{text}, m_teams{teams} {}

    HandedIn read()
    {
        m_read.isLegible = takeKeys();
        m_read.entry.picks = m_teams.bracketOf(m_picks);
        return std::move(m_read);
    }

private:
    /// @returns whether there is something between all of them
    bool takeKeys()
    {
        if (!take(std::string{kFirstKey}) || !take("Name"))
            return false;
        if (!takeText("The name", "Initials", m_read.entry.name, m_checked.name) ||
            !takeText("The text of the initials", "Total", m_read.entry.initials, m_checked.initials))
            return false;
        if (!takeTotal() || !takePicks())
            return false;
        takeCheck();
        return true;
    }

    /// Takes a text that was typed, and the key after it.
    bool takeText(const std::string& subject, const std::string& nextKey, std::string& typed, std::string& checked)
    {
        const std::optional<std::string_view> value = takeValue(nextKey);
        if (!value)
            return false;
        const std::string text = withSingleColons(*value);
        typed = storable(text, subject, m_read.refusals);
        checked = canonical(text);
        return true;
    }

    /// The address is between the total and the first region, when there is one.
    bool takeTotal()
    {
        const std::optional<std::string_view> value = takeValue(keysOfPicks().front().key);
        if (!value)
            return false;
        const KeyPlace email = keyAt(*value, "E-mail", 0);
        const std::string_view total = email ? value->substr(0, email.begin) : *value;
        if (email)
            m_read.email = firstAddressIn(value->substr(email.end));
        m_read.entry.finalPoints = fromUtf8(withoutQuotation(total));
        m_checked.total = canonical(withoutQuotation(total));
        return true;
    }

    bool takePicks()
    {
        int game = 0;
        const std::vector<Key>& keys = keysOfPicks();
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const std::optional<std::string_view> value =
                takeValue(i + 1 < keys.size() ? keys[i + 1].key : std::string{"Check"});
            if (!value)
                return false;
            if (keys[i].list)
                takeList(*keys[i].list, *value, game);
        }
        return true;
    }

    void takeList(const ListKey& list, std::string_view value, int& game)
    {
        const std::vector<std::string> elements = elementsOf(value);
        const bool fits = elements.size() == list.games;
        if (!fits)
            mangled(list.words + " has " + counted(elements.size(), "team", "teams") + " instead of " +
                    std::to_string(list.games));
        for (std::size_t i = 0; i < list.games; ++i, ++game) {
            if (!fits)
                continue;
            m_picks[Game{game}] = storable(withPlainBlanks(elements[i]), "A team", m_read.refusals);
            m_checked.picks[Game{game}] = canonical(elements[i]);
        }
    }

    void takeCheck()
    {
        std::string digits;
        for (const char c : m_text.substr(m_at)) {
            if (std::string_view{"0123456789abcdefABCDEF"}.find(c) != std::string_view::npos)
                digits.push_back(c);
            else if (!digits.empty() || c != ' ')
                break;
            if (digits.size() == kCheckDigits)
                break;
        }
        if (digits.size() < kCheckDigits)
            mangled("the check value at its end is missing");
        else if (!m_isMangled && upperCase(digits) != checkValue(m_checked))
            mangled("the check value at its end does not match, so something was changed on the way");
    }

    /// Moves on to what follows the next key. @returns false when it is not there, and says so
    bool take(const std::string& key) { return takeValue(key).has_value(); }

    /// @returns what is before the next key, which is taken as well; nothing when that is missing
    std::optional<std::string_view> takeValue(const std::string& key)
    {
        const KeyPlace place = keyAt(m_text, key, m_at);
        if (!place) {
            mangled("\"" + key + ":\" is missing after \"" + m_last + ":\"");
            return std::nullopt;
        }
        const std::string_view value = withoutQuotation(m_text.substr(m_at, place.begin - m_at));
        m_at = place.end;
        m_last = key;
        return value;
    }

    /// Lines that a mail program has joined have their quotation marks inside, at the end of a value.
    static std::string_view withoutQuotation(std::string_view value)
    {
        const std::size_t begin = value.find_first_not_of(' ');
        const std::size_t end = value.find_last_not_of("> ");
        return begin == std::string_view::npos || end == std::string_view::npos ? std::string_view{}
                                                                                : value.substr(begin, end + 1 - begin);
    }

    void mangled(const std::string& reason)
    {
        m_isMangled = true;
        m_read.refusals.push_back("Mangled: " + reason + ".");
    }

    std::string_view m_text;
    const KnownTeams& m_teams;
    std::size_t m_at = 0;
    std::string m_last;
    HandedIn m_read;
    CheckedTexts m_checked;
    ByGame<std::string> m_picks{};
    bool m_isMangled = false;
};

} // namespace

std::vector<HandedIn> readEntryTexts(std::string_view utf8, const KnownTeams& teams, const Origin& origin)
{
    const OneLine all = oneLineOf(utf8);
    const std::string_view text = all.text;
    std::vector<HandedIn> entries;
    std::size_t before = 0; // where the text between two entries begins
    for (KeyPlace place = keyAt(text, kFirstKey, 0); place && entries.size() < kMostEntriesHandedIn;) {
        const KeyPlace next = keyAt(text, kFirstKey, place.end);
        HandedIn entry = EntryText{text.substr(place.begin, next.begin - place.begin), teams}.read();
        entry.origin = origin;
        entry.origin.number += static_cast<int>(entries.size());
        const std::string writer = lastWriterIn(text.substr(before, place.begin - before));
        if (entry.email.empty())
            entry.email = writer.empty() && !all.isQuotedAt(place.begin) ? origin.sender : writer;
        entries.push_back(std::move(entry));
        before = place.end;
        place = next;
    }
    return entries;
}

} // namespace tallyhoop
