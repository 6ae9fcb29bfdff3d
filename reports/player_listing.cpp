// reports/player_listing.cpp - measures the four columns, then lays out header and players.
#include "reports/player_listing.h"

#include "base/text.h"
#include "files/player_names_file.h"

#include <algorithm>

namespace tallyhoop {

namespace {

constexpr int kHeadAndColumnLines = 6;
constexpr int kLastLineOfPage = 47;
constexpr const char* kGap = "    ";

struct Widths {
    std::size_t name = 0;
    std::size_t fileName = 0;
    std::size_t email = 0;
    std::size_t phone = 0;

    std::size_t line() const { return name + fileName + email + phone + 12; }
};

Widths widthsOf(std::span<const std::string> playerLines)
{
    Widths widths;
    for (const std::string& line : playerLines) {
        const PlayerRecord player = parseRecord(line);
        widths.name = std::max(widths.name, lastNonBlank(player.name));
        widths.fileName = std::max(widths.fileName, lastNonBlank(player.fileName));
        widths.email = std::max(widths.email, lastNonBlank(player.email));
        widths.phone = std::max(widths.phone, lastNonBlank(player.phone));
    }
    return widths;
}

std::string rowLine(const PlayerRecord& player, const Widths& widths)
{
    return fitted(player.name, widths.name) + kGap + fitted(player.fileName, widths.fileName) + kGap +
           fitted(player.email, widths.email) + kGap + fitted(player.phone, widths.phone);
}

std::string ruleLine(const Widths& widths)
{
    return dashes(widths.name) + kGap + dashes(widths.fileName) + kGap + dashes(widths.email) + kGap +
           dashes(widths.phone);
}

void addHead(ReportLines& lines, std::string_view title, const Widths& widths)
{
    constexpr std::string_view kName = "Player Listing";
    addPageHead(lines, indentedOrFlush(centredTwice(widths.line(), title.size()), title),
                indentedOrFlush(centredTwice(widths.line(), kName.size()), kName));
}

} // namespace

ReportLines playerListingLines(std::string_view title, std::span<const std::string> fileLines)
{
    ReportLines lines;
    if (fileLines.empty())
        return lines;

    const std::span<const std::string> players = fileLines.subspan(1);
    const Widths widths = widthsOf(players);
    const std::string columnHeader = rowLine(parseRecord(fileLines.front()), widths);
    int lineOfPage = 0;
    const auto startPage = [&] {
        addHead(lines, title, widths);
        lines.push_back(columnHeader);
        lines.push_back(ruleLine(widths));
        lineOfPage = kHeadAndColumnLines;
    };
    startPage(); // also for a list without players
    for (const std::string& player : players) {
        if (lineOfPage == 0)
            startPage();
        lines.push_back(rowLine(parseRecord(player), widths));
        if (++lineOfPage > kLastLineOfPage) {
            lineOfPage = 0;
            lines.emplace_back(kFormFeedLine);
        }
    }
    return lines;
}

} // namespace tallyhoop
