// reports/final_sheet.cpp - the rows of the final sheet, and its pages.
#include "reports/final_sheet.h"

#include "base/numbers.h"
#include "base/text.h"
#include "pool/outlook/open_games.h"
#include "pool/projection.h"
#include "reports/final_sheet_words.h"
#include "reports/standings.h"
#include "reports/text_table.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kLastLineOfPage = 47;
constexpr const char* kUnknown = "The final sheet can be made when the winners of all four regions are known.";

std::optional<int> predictedBy(const PlayerScore& score)
{
    return hasPredicted(score) ? std::optional<int>{score.finalPoints} : std::nullopt;
}

FinalRow rowOf(const PlayerScore& score, const FinalPlace& place, std::optional<int> total)
{
    FinalRow row;
    row.name = score.playerName == ", " ? score.fileName : score.playerName;
    row.place = place.place;
    row.isShared = place.sharedBy > 1;
    row.isLast = place.isLast;
    row.points = score.points;
    row.predicted = predictedBy(score);
    if (row.predicted && total)
        row.off = *row.predicted - *total;
    return row;
}

/// The pages of the sheet: each begins with the title, the name and the notes, and the heading of its table.
class SheetPages
{
public:
    explicit SheetPages(ReportLines header) : m_header{std::move(header)} {}

    /// Begins a table, on the same page when some of its rows fit there, too.
    void begin(ReportLines heading)
    {
        constexpr std::size_t kFewestRows = 3;
        m_heading = std::move(heading);
        if (m_lineOfPage == 0)
            return;
        if (m_lineOfPage + 1 + m_heading.size() + kFewestRows > kLastLineOfPage) {
            endPage();
            return;
        }
        put({kBlankLine});
        put(m_heading);
    }

    void add(const ReportLines& rows)
    {
        for (const std::string& row : rows) {
            if (m_lineOfPage == 0) {
                put(m_header);
                put(m_heading);
            }
            put({row});
            if (m_lineOfPage > kLastLineOfPage)
                endPage();
        }
    }

    ReportLines take() { return std::move(m_lines); }

private:
    void put(const ReportLines& lines)
    {
        m_lines.insert(m_lines.end(), lines.begin(), lines.end());
        m_lineOfPage += lines.size();
    }

    void endPage()
    {
        m_lines.emplace_back(kFormFeedLine);
        m_lineOfPage = 0;
    }

    ReportLines m_header;
    ReportLines m_heading;
    ReportLines m_lines;
    std::size_t m_lineOfPage = 0;
};

std::string numberOrNothing(std::optional<int> number) { return number ? std::to_string(*number) : std::string{}; }

TextTable placesTable(const FinalSheet& sheet)
{
    // "2=" is a place of two characters: what is not shared has a blank there.
    const auto place = [](const FinalRow& row) { return placeInWords(row) + (row.isShared ? "" : " "); };
    std::vector<std::vector<std::string>> rows;
    rows.reserve(sheet.rows.size());
    for (const FinalRow& row : sheet.rows) {
        std::vector<std::string> cells{place(row), asOneLine(row.name), threeDigits(row.points),
                                       numberOrNothing(row.predicted)};
        if (sheet.total)
            cells.push_back(offInWords(row));
        cells.push_back(prizeInWords(row));
        cells.emplace_back(row.isLast ? "Last" : "");
        rows.push_back(std::move(cells));
    }
    std::vector<TextColumn> columns{
        {"Place ", Align::Right}, {"Player Name"}, {"Points", Align::Right}, {"Predicted", Align::Right}};
    if (sheet.total)
        columns.push_back({"Off", Align::Right});
    columns.push_back({"Prize", Align::Right});
    columns.push_back({"Note"});
    return textTable(columns, rows);
}

TextTable pairsTable(const FinalSheet& sheet)
{
    std::vector<std::vector<std::string>> rows;
    for (PairInWords& pair : pairsInWords(sheet))
        rows.push_back({std::move(pair.place), std::move(pair.lower), std::move(pair.upTo), std::move(pair.tiedAt),
                        std::move(pair.higher), std::move(pair.from)});
    return textTable(std::vector<TextColumn>{{"Place", Align::Right},
                                             {"Lower Prediction"},
                                             {"Ahead Up To", Align::Right},
                                             {"Tied At", Align::Right},
                                             {"Higher Prediction"},
                                             {"Ahead From", Align::Right}},
                     rows);
}

ReportLines pairsHeading(const FinalSheet& sheet, const TextTable& pairs)
{
    ReportLines heading = pairsNotes(sheet);
    heading.emplace_back(kBlankLine);
    heading.insert(heading.end(), pairs.heading.begin(), pairs.heading.end());
    return heading;
}

/// Says what was made of a text that is no plain number.
/// @param entered the total of a final that is played; empty or 0 = none
void addRemarkOnTotal(FinalSheet& sheet, const std::string& entered)
{
    const bool isNone = entered.find_first_not_of('0') == std::string::npos;
    const bool isPlain = entered.find_first_not_of("0123456789") == std::string::npos;
    if (isNone || (isPlain && sheet.total))
        return;
    constexpr std::size_t kMostShown = 12; // the remark fits on a line
    const std::string shown = entered.size() > kMostShown ? entered.substr(0, kMostShown) + "..." : entered;
    sheet.isTotalUseless = !sheet.total;
    sheet.remarks.push_back("The total of the final in the results, \"" + shown +
                            (sheet.total ? "\", is taken for " + std::to_string(*sheet.total) : "\", is no total"));
}

/// @returns whose pairs are listed: all who are tied while they are few, else those whose places win something; the
///          first place wins in any case, if only the honour
std::vector<FinalPlace> placesOfPairs(std::span<const FinalPlace> places, std::span<const Money> paid)
{
    constexpr std::size_t kFewPairs = 45; // a page
    std::size_t allPairs = 0;
    std::size_t winningPairs = 0;
    std::vector<FinalPlace> winning;
    for (std::size_t first = 0; first < places.size(); first += places[first].sharedBy) {
        const std::size_t players = places[first].sharedBy;
        const std::size_t pairs = players * (players - 1) / 2;
        allPairs += pairs;
        if (first > 0 && paid[first] == Money{})
            continue;
        winningPairs += pairs;
        const std::span<const FinalPlace> tied = places.subspan(first, players);
        winning.insert(winning.end(), tied.begin(), tied.end());
    }
    return allPairs <= kFewPairs || winningPairs == allPairs ? std::vector<FinalPlace>(places.begin(), places.end())
                                                             : winning;
}

/// Fills in the rows and the pairs.
/// @param order of the scores, for those whom nothing tells apart
void addPlayers(FinalSheet& sheet, std::span<const PlayerScore> scores, std::span<const std::size_t> order)
{
    std::vector<PlayerScore> listed;
    listed.reserve(scores.size());
    for (const std::size_t player : order)
        listed.push_back(scores[player]);
    const std::vector<FinalPlace> places = finalPlaces(listed, sheet.rule, sheet.total);
    const std::vector<Money> prizes = payouts(places, sheet.purse.prizes);
    sheet.rows.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        sheet.rows.push_back(rowOf(listed[places[i].player], places[i], sheet.total));
        sheet.rows.back().player = order[places[i].player];
        sheet.rows.back().prize = prizes[i];
    }
    if (!sheet.total) {
        const std::vector<FinalPlace> paired = placesOfPairs(places, prizes);
        sheet.pairs = tiedPairs(listed, paired, sheet.rule);
        sheet.arePairsOfPrizes = paired.size() < places.size();
    }
    for (TiedPair& pair : sheet.pairs) {
        pair.lower = order[pair.lower];
        pair.higher = order[pair.higher];
    }
}

} // namespace

Result<FinalSheet> finalSheetOf(std::span<const PlayerScore> scores, const Entry& results, const PrizeTable& table)
{
    if (finalFourState(results.picks) == FinalFourState::Incomplete)
        return Failure{kUnknown};
    const Result<std::int16_t> total = wholeNumber(results.finalPoints);
    if (!total)
        return Failure{"The total of the final in the results cannot be used. " + total.failure().message};

    FinalSheet sheet;
    sheet.openGames = OpenGames{results.picks}.size();
    sheet.isFinalPlayed = !results.picks.isEmpty(kChampion);
    sheet.rule = table.ties;
    if (sheet.isFinalPlayed && *total > 0)
        sheet.total = *total;
    if (sheet.isFinalPlayed)
        addRemarkOnTotal(sheet, withoutOuterBlanks(asOneLine(results.finalPoints)));
    sheet.entryFee = table.entryFee;
    sheet.purse = purseOf(table, scores.size());

    addPlayers(sheet, scores, standingsOrder(scores));
    return sheet;
}

ReportLines finalSheetLines(std::string_view title, const FinalSheet& sheet)
{
    const TextTable places = placesTable(sheet);
    const auto centred = [&](const std::string& text) {
        return indentedOrFlush(centredOnce(places.width, text.size()), text);
    };
    ReportLines header;
    addPageHeader(header, centred(asOneLine(std::string{title})), centred(kFinalSheetName));
    for (std::string& note : finalSheetNotes(sheet))
        header.push_back(std::move(note));
    header.emplace_back(kBlankLine);

    SheetPages pages{std::move(header)};
    pages.begin(places.heading);
    pages.add(places.rows);
    if (!sheet.pairs.empty()) {
        const TextTable pairs = pairsTable(sheet);
        pages.begin(pairsHeading(sheet, pairs));
        pages.add(pairs.rows);
    }
    return pages.take();
}

} // namespace tallyhoop
