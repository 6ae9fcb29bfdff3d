// intake/mail_dates.cpp - reads dates such as "Sun, 12 Mar 2000 08:00:00 -0500".
#include "intake/mail_dates.h"

#include "base/windows1252.h"
#include "intake/mail_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <vector>

namespace tallyhoop {

namespace {

std::optional<int> numberOf(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional{number} : std::nullopt;
}

std::vector<std::string_view> wordsOf(std::string_view text)
{
    std::vector<std::string_view> words;
    for (text = withoutOuterBlanks(text); !text.empty(); text = withoutOuterBlanks(text)) {
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
        seconds += std::int64_t{*number} * (parts == 0 ? 3600 : parts == 1 ? 60 : 1);
        if (colon == std::string_view::npos)
            break;
        word.remove_prefix(colon + 1);
    }
    return parts == 0 ? std::nullopt : std::optional{seconds};
}

/// @returns how many seconds a zone such as -0500 or EST is ahead of UTC; one that is not known counts as UTC
std::int64_t aheadOfUtc(std::string_view zone)
{
    constexpr std::int64_t kHour = 3600;
    struct Named {
        std::string_view name;
        int hours;
    };
    constexpr std::array<Named, 8> kZones = {
        {{"EST", -5}, {"EDT", -4}, {"CST", -6}, {"CDT", -5}, {"MST", -7}, {"MDT", -6}, {"PST", -8}, {"PDT", -7}}};
    for (const Named& named : kZones)
        if (equalFolded(zone, named.name))
            return named.hours * kHour;
    if (zone.size() != 5 || (zone[0] != '+' && zone[0] != '-'))
        return 0;
    const std::int64_t number = numberOf(zone.substr(1)).value_or(0);
    return (number / 100 * kHour + number % 100 * 60) * (zone[0] == '-' ? -1 : 1);
}

} // namespace

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
    if (!dayNumber || *dayNumber < 1 || *dayNumber > 31 || !monthNumber || !yearNumber || !time)
        return std::nullopt;
    const int century = *yearNumber < 50 ? 2000 : *yearNumber < 1000 ? 1900 : 0; // two digits, or three by mistake
    const year_month_day date{year{*yearNumber + century}, month{*monthNumber}, day{static_cast<unsigned>(*dayNumber)}};
    if (!date.ok())
        return std::nullopt;
    const std::int64_t days = sys_days{date}.time_since_epoch().count();
    return days * 86'400 + *time - (words.size() > 4 ? aheadOfUtc(words[4]) : 0);
}

} // namespace tallyhoop
