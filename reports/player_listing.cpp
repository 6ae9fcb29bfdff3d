// reports/player_listing.cpp - measures the four columns, then lays out headings and players.
#include "reports/player_listing.h"

#include "base/text.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr int kHeaderAndColumnLines = 6;
constexpr int kLastLineOfPage = 47;
constexpr const char* kGap = "    ";

struct Widths {
    std::size_t name = 0;
    std::size_t fileName = 0;
    std::size_t email = 0;
    std::size_t phone = 0;

    std::size_t line() const { return name + fileName + email + phone + 12; }
};

Widths widthsOf(std::span<const PlayerListingRow> players)
{
    Widths widths;
    for (const PlayerListingRow& player : players) {
        widths.name = std::max(widths.name, lastNonBlank(player.name));
        widths.fileName = std::max(widths.fileName, lastNonBlank(player.fileName));
        widths.email = std::max(widths.email, lastNonBlank(player.email));
        widths.phone = std::max(widths.phone, lastNonBlank(player.phone));
    }
    return widths;
}

std::string rowLine(const PlayerListingRow& row, const Widths& widths)
{
    return fitted(row.name, widths.name) + kGap + fitted(row.fileName, widths.fileName) + kGap +
           fitted(row.email, widths.email) + kGap + fitted(row.phone, widths.phone);
}

std::string ruleLine(const Widths& widths)
{
    return dashes(widths.name) + kGap + dashes(widths.fileName) + kGap + dashes(widths.email) + kGap +
           dashes(widths.phone);
}

void addHeader(ReportLines& lines, std::string_view title, const Widths& widths)
{
    constexpr std::string_view kName = "Player Listing";
    addPageHeader(lines, indentedOrFlush(centredTwice(widths.line(), title.size()), title),
                  indentedOrFlush(centredTwice(widths.line(), kName.size()), kName));
}

} // namespace

ReportLines playerListingLines(std::string_view title, std::span<const PlayerListingRow> rows)
{
    ReportLines lines;
    if (rows.empty())
        return lines;

    const std::span<const PlayerListingRow> players = rows.subspan(1);
    const Widths widths = widthsOf(players);
    int lineOfPage = 0;
    const auto startPage = [&] {
        addHeader(lines, title, widths);
        lines.push_back(rowLine(rows.front(), widths));
        lines.push_back(ruleLine(widths));
        lineOfPage = kHeaderAndColumnLines;
    };
    startPage(); // also for a list without players
    for (const PlayerListingRow& player : players) {
        if (lineOfPage == 0)
            startPage();
        lines.push_back(rowLine(player, widths));
        if (++lineOfPage > kLastLineOfPage) {
            lineOfPage = 0;
            lines.emplace_back(kFormFeedLine);
        }
    }
    return lines;
}

} // namespace tallyhoop
