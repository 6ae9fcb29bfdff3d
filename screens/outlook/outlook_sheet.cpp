// screens/outlook/outlook_sheet.cpp - from the top of the first page to the bottom of the last.
#include "screens/outlook/outlook_sheet.h"

#include "base/text.h"
#include "screens/outlook/outlook_board.h"
#include "screens/outlook/outlook_rows.h"

#include <array>
#include <fmt/format.h>
#include <span>
#include <utility>

namespace tallyhoop {

namespace {

constexpr double kPageWidth = 800;
constexpr double kPageHeight = 1100;
constexpr double kMargin = 40;
constexpr double kWidth = kPageWidth - 2 * kMargin;
constexpr double kBottom = kPageHeight - kMargin - 24; ///< of what is above the page's number
constexpr double kTitle = 20;                          ///< heights of letters
constexpr double kHeading = 13;
constexpr double kText = 10;
constexpr double kLine = 16; ///< heights of lines
constexpr double kTitleLine = 28;
constexpr double kHeadingLine = 22;
constexpr double kSpace = 14; ///< before a section
constexpr double kDate = 140;
constexpr double kChart = 260;
constexpr double kGap = 6;        ///< around what is supposed
constexpr double kColumnGap = 12; ///< between two columns
constexpr std::size_t kRowsOfAGoodEnd = 3;

constexpr ui::Colour kTextColour{30, 32, 40};
constexpr ui::Colour kGrey{105, 108, 116};
constexpr ui::Colour kRule{190, 193, 200};
constexpr ui::Colour kChosenBackground{222, 232, 247};

/// By OutlookColumn; the name takes what is left.
constexpr std::array<double, kOutlookColumns> kWidths{28, 0, 46, 56, 54, 92, 58, 62, 62, 50};

struct SheetColumn {
    std::string heading;
    ui::Alignment alignment = ui::Alignment::Left;
    double width = 0;
};

struct SheetRow {
    std::vector<std::string> cells;
    ui::Colour colour = kTextColour;
    bool isChosen = false;
};

struct SheetTable {
    std::vector<SheetColumn> columns; ///< as wide as the page together
    std::vector<SheetRow> rows;
};

/// Gives one of the columns the width that the others leave.
void fillWidth(std::vector<SheetColumn>& columns, std::size_t widest)
{
    double left = kWidth;
    for (const SheetColumn& column : columns)
        left -= column.width + kColumnGap;
    columns[widest].width += left + kColumnGap;
}

SheetTable tableOfPlayers(const OutlookSheet& sheet)
{
    const std::size_t columns =
        sheet.heading.whatIf.empty() ? kOutlookColumns - 1 : kOutlookColumns; // the last: Change
    SheetTable table;
    const std::vector<ui::GridColumn> shown = outlookColumns(sheet.rows.size());
    for (std::size_t i = 0; i < columns; ++i)
        table.columns.push_back({shown[i].heading, shown[i].alignment, kWidths.at(i)});
    fillWidth(table.columns, static_cast<std::size_t>(OutlookColumn::Player));
    for (const OutlookRow& row : sheet.rows) {
        SheetRow printed{{}, row.prospect == Prospect::Out ? kGrey : kTextColour, row.player == sheet.chosen};
        for (std::size_t i = 0; i < columns; ++i)
            printed.cells.push_back(asOneLine(cellOf(row, OutlookColumn(i))));
        table.rows.push_back(std::move(printed));
    }
    return table;
}

SheetTable tableOfGames(const OutlookSheet& sheet)
{
    SheetTable table;
    const bool isChosen = sheet.chosen.has_value();
    table.columns = {{"Game", ui::Alignment::Left, 0}};
    if (isChosen)
        table.columns.insert(table.columns.end(),
                             {{"Root for", ui::Alignment::Left, 210}, {"Helps by", ui::Alignment::Right, 70}});
    table.columns.insert(table.columns.end(),
                         {{"All players", ui::Alignment::Right, 80}, {"When", ui::Alignment::Left, 40}});
    fillWidth(table.columns, 0);
    for (const SheetGame& game : sheet.games)
        table.rows.push_back({isChosen ? std::vector{game.game, game.rootFor, game.helps, game.all, game.when}
                                       : std::vector{game.game, game.all, game.when}});
    return table;
}

class SheetPainter
{
public:
    SheetPainter(const OutlookSheet& sheet, const std::string& date) : m_sheet{sheet}, m_date{date} {}

    std::vector<ui::Drawing> paint()
    {
        beginPage();
        paintTable(tableOfPlayers(m_sheet));
        paintRoad();
        paintGames();
        for (std::size_t page = 0; page < m_pages.size(); ++page)
            m_pages[page].captions.push_back({{kMargin, kPageHeight - kMargin - kLine, kWidth, kLine},
                                              fmt::format("Page {} of {}", page + 1, m_pages.size()),
                                              kText,
                                              kGrey,
                                              ui::Alignment::Right});
        return std::move(m_pages);
    }

private:
    ui::Drawing& page() { return m_pages.back(); }

    void beginPage()
    {
        m_pages.push_back({kPageWidth, kPageHeight, {}, {}, {}});
        m_y = kMargin;
        const std::string title = asOneLine(m_sheet.heading.title);
        if (m_pages.size() > 1) {
            write({kMargin, m_y, kWidth, kLine}, title.empty() ? kOutlookName : title + ", " + kOutlookName);
            m_y += kLine;
            paintWhatIf(1);
        } else {
            write({kMargin, m_y, kWidth - kDate, kTitleLine}, title, kTitle, true);
            write({kPageWidth - kMargin - kDate, m_y, kDate, kTitleLine}, m_date);
            page().captions.back().alignment = ui::Alignment::Right;
            m_y += kTitleLine;
            writeLine(kOutlookName, kHeadingLine, kHeading);
            for (const std::string& words : m_sheet.heading.basis)
                writeLine(words, kLine, kText);
            paintWhatIf(m_sheet.heading.whatIf.size());
        }
        m_y += kSpace;
    }

    /// @param lines as many of them, from the first
    void paintWhatIf(std::size_t lines)
    {
        const std::span<const std::string> words =
            std::span{m_sheet.heading.whatIf}.first(std::min(lines, m_sheet.heading.whatIf.size()));
        if (words.empty())
            return;
        m_y += kGap;
        page().boxes.push_back({{kMargin, m_y, kWidth, kLine * static_cast<double>(words.size())},
                                kSupposedBackground,
                                kSupposedBackground});
        for (const std::string& line : words) {
            write({kMargin + kGap, m_y, kWidth - 2 * kGap, kLine}, asOneLine(line), kText, &line == words.data());
            m_y += kLine;
        }
    }

    void write(const ui::Rectangle& place, const std::string& text, double size = kText, bool bold = false)
    {
        page().captions.push_back({place, text, size, kTextColour, ui::Alignment::Left, bold});
    }

    void writeLine(const std::string& text, double height, double size, bool bold = false)
    {
        write({kMargin, m_y, kWidth, height}, text, size, bold);
        m_y += height;
    }

    bool hasRoom(double height) const { return m_y + height <= kBottom; }

    /// Begins a section, on a page of its own when so much of it has no room here.
    void beginSection(const std::string& heading, double height)
    {
        m_y += kSpace;
        if (!hasRoom(kHeadingLine + height))
            beginPage();
        writeLine(heading, kHeadingLine, kHeading, true);
    }

    void paintHeadings(const SheetTable& table)
    {
        double x = kMargin;
        for (const SheetColumn& column : table.columns) {
            page().captions.push_back({{x, m_y, column.width, kLine}, column.heading, kText, kGrey, column.alignment});
            x += column.width + kColumnGap;
        }
        m_y += kLine;
        page().strokes.push_back({kMargin, m_y, kMargin + kWidth, m_y, kTextColour});
    }

    void paintTable(const SheetTable& table)
    {
        paintHeadings(table);
        for (const SheetRow& row : table.rows) {
            if (!hasRoom(kLine)) {
                beginPage();
                paintHeadings(table);
            }
            paintRow(table, row);
        }
    }

    void paintRow(const SheetTable& table, const SheetRow& row)
    {
        if (row.isChosen)
            page().boxes.push_back({{kMargin, m_y, kWidth, kLine}, kChosenBackground, kChosenBackground});
        double x = kMargin;
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            const SheetColumn& column = table.columns[i];
            page().captions.push_back(
                {{x, m_y, column.width, kLine}, row.cells[i], kText, row.colour, column.alignment, row.isChosen});
            x += column.width + kColumnGap;
        }
        m_y += kLine;
        page().strokes.push_back({kMargin, m_y, kMargin + kWidth, m_y, kRule, 0.5});
    }

    void paintRoad()
    {
        const bool isChosen = m_sheet.chosen.has_value();
        const bool isThere = !m_sheet.road.points.empty();
        const std::string name = asOneLine(m_sheet.chosenName);
        beginSection((isChosen ? "The road of " + name : std::string{"The road"}) + ", by the results as entered",
                     kLine + (isThere ? kChart : kLine));
        if (isChosen)
            writeLine(name + ": " + asOneLine(m_sheet.proof), kLine, kText);
        if (!isThere) {
            writeLine("It is not worked out yet.", kLine, kText);
            return;
        }
        paste(drawRoad(m_sheet.road, kWidth, kChart));
        m_y += kChart;
    }

    void paste(ui::Drawing part)
    {
        for (ui::Stroke& stroke : part.strokes) {
            stroke.x1 += kMargin;
            stroke.x2 += kMargin;
            stroke.y1 += m_y;
            stroke.y2 += m_y;
            page().strokes.push_back(stroke);
        }
        const auto moved = [this](auto& thing) {
            thing.place.x += kMargin;
            thing.place.y += m_y;
        };
        for (ui::Box& box : part.boxes) {
            moved(box);
            page().boxes.push_back(box);
        }
        for (ui::Caption& caption : part.captions) {
            moved(caption);
            page().captions.push_back(std::move(caption));
        }
    }

    void paintGames()
    {
        if (m_sheet.games.empty())
            return;
        const SheetTable table = tableOfGames(m_sheet);
        beginSection("Games that matter, the next ones first", kLine * static_cast<double>(kRowsOfAGoodEnd));
        if (m_sheet.chosen)
            writeLine("Helps by: how much the share of " + asOneLine(m_sheet.chosenName) +
                          " is larger when that side wins, in percentage points.",
                      kLine, kText);
        writeLine("All players: how much the shares of all differ between the two ways a game can end.", kLine, kText);
        if (m_sheet.isForecast)
            writeLine("A difference within two standard errors of the forecast counts as 0.0.", kLine, kText);
        paintTable(table);
    }

    const OutlookSheet& m_sheet;
    const std::string& m_date;
    std::vector<ui::Drawing> m_pages;
    double m_y = 0; ///< where the page goes on
};

} // namespace

std::vector<ui::Drawing> drawOutlook(const OutlookSheet& sheet, const std::string& date)
{
    return SheetPainter{sheet, date}.paint();
}

} // namespace tallyhoop
