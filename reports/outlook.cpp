// reports/outlook.cpp - the columns of the outlook's report, and its pages.
#include "reports/outlook.h"

#include "base/numbers.h"
#include "base/text.h"
#include "reports/outlook_words.h"

#include <algorithm>
#include <fmt/format.h>
#include <string_view>

namespace tallyhoop {

namespace {

constexpr std::size_t kLastLineOfPage = 47;
constexpr std::size_t kChange = 8; ///< a column of 6 and the blanks before it

struct Widths {
    std::size_t name = std::string_view{"Player Name"}.size();
    std::size_t best = std::string_view{"Place"}.size();
    std::size_t worst = best;
    bool hasChange = false; ///< something is supposed

    std::size_t line() const { return name + best + worst + 54 + (hasChange ? kChange : 0); }
};

Widths widthsOf(std::span<const OutlookRow> rows)
{
    Widths widths;
    for (const OutlookRow& row : rows) {
        widths.name = std::max(widths.name, row.name.size());
        widths.best = std::max(widths.best, placeInWords(row.best).size());
        widths.worst = std::max(widths.worst, placeInWords(row.worst).size());
        widths.hasChange = widths.hasChange || row.change;
    }
    return widths;
}

/// What one line has in each column.
struct Cells {
    std::string place, name, points, possible, first, share, change, best, worst, verdict;
};

std::string lineOf(const Cells& cells, const Widths& widths)
{
    const std::string change = widths.hasChange ? fmt::format("  {:>6}", cells.change) : std::string{};
    return fmt::format("{:>5}  {}  {:>6}  {:>5}  {:>7}  {:>7}{}  {:>{}}  {:>{}}  {}", cells.place,
                       fitted(cells.name, widths.name), cells.points, cells.possible, cells.first, cells.share, change,
                       cells.best, widths.best, cells.worst, widths.worst, cells.verdict);
}

std::string rowLine(const OutlookRow& row, const Widths& widths)
{
    const PlayerStanding& now = row.standing;
    return lineOf({std::to_string(now.place), asOneLine(row.name), threeDigits(now.points), threeDigits(now.possible),
                   chanceInWords(row, row.first), chanceInWords(row, row.share),
                   row.change ? changeInWords(*row.change) : std::string{}, placeInWords(row.best),
                   placeInWords(row.worst), verdictInWords(row.prospect)},
                  widths);
}

std::string centred(const std::string& text, const Widths& widths)
{
    return indentedOrFlush(centredOnce(widths.line(), text.size()), text);
}

ReportLines headerOf(const OutlookHeading& heading, const Widths& widths)
{
    ReportLines lines;
    addPageHeader(lines, centred(asOneLine(heading.title), widths), centred(kOutlookName, widths));
    for (const std::string& words : heading.whatIf)
        lines.push_back(asOneLine(words)); // the name of a team can hold line breaks
    lines.insert(lines.end(), heading.basis.begin(), heading.basis.end());
    lines.emplace_back(kBlankLine);
    lines.push_back(trimTrailingBlanks(
        lineOf({"Now", "", "Points", "Poss.", "First", "Share", "Share", "Best", "Worst", ""}, widths)));
    lines.push_back(
        lineOf({"Place", "Player Name", "Earned", "Score", "Percent", "Percent", "Change", "Place", "Place", "Verdict"},
               widths));
    lines.push_back(lineOf({dashes(5), dashes(widths.name), dashes(6), dashes(5), dashes(7), dashes(7), dashes(6),
                            dashes(widths.best), dashes(widths.worst), dashes(8)},
                           widths));
    return lines;
}

} // namespace

ReportLines outlookLines(const OutlookHeading& heading, std::span<const OutlookRow> rows)
{
    const Widths widths = widthsOf(rows);
    const ReportLines header = headerOf(heading, widths);
    ReportLines lines;
    std::size_t lineOfPage = 0;
    for (const OutlookRow& row : rows) {
        if (lineOfPage == 0) {
            lines.insert(lines.end(), header.begin(), header.end());
            lineOfPage = header.size();
        }
        lines.push_back(rowLine(row, widths));
        if (++lineOfPage > kLastLineOfPage) {
            lines.emplace_back(kFormFeedLine);
            lineOfPage = 0;
        }
    }
    return lines;
}

} // namespace tallyhoop
