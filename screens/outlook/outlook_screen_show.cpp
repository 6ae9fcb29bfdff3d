// screens/outlook/outlook_screen_show.cpp - the tables and the chart: what they consist of, what is in them, what a
// press on them does.
#include "screens/outlook/outlook_screen.h"

#include "screens/outlook/outlook_words.h"
#include "screens/outlook/road_words.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kRootFor = 1; ///< a column of the games
constexpr const char* kSwings = "Swing: how much the shares of all players differ between the two ways a game can end. "
                                "Next: both teams are known. ";
constexpr const char* kGoToGame = "Press a game to go to it on the board.";

/// @returns each one's chance to be first as a part of the largest, 0..1
std::vector<double> partsOfLargest(std::span<const OutlookRow> rows)
{
    double largest = 0;
    for (const OutlookRow& row : rows)
        largest = std::max(largest, row.first.value_or(0));
    std::vector<double> parts;
    for (const OutlookRow& row : rows)
        parts.push_back(largest > 0 ? row.first.value_or(0) / largest : 0);
    return parts;
}

/// @returns what the figures of a list of games mean
/// @param current the game that is the current one; nothing = none is
std::string explanationOfGames(const std::optional<GameWeight>& current)
{
    const std::string swings = current && current->error > 0
                                   ? "Swing " + weightText(*current) +
                                         ": a forecast with its standard error; players whose difference is "
                                         "within two errors are left out. "
                                   : kSwings;
    return swings + kGoToGame;
}

} // namespace

void OutlookScreen::describeGrids()
{
    grdPlayers.spokenName = "Players";
    grdPlayers.columns = outlookColumns(m_pool.entries.size());
    grdPlayers.wholeRows = true;
    grdPlayers.emptyNote = "There are no selections.";
    grdPlayers.rowReached = [this](std::size_t row) { choose(row); };
    grdPlayers.cellPressed = [this](std::size_t row, std::size_t column) { choosePlayer(row, column); };
    grdPlayers.columnPressed = [this](std::size_t column) { m_headingPressed = column; };
    grdPlayers.columnReleased = [this](std::optional<std::size_t> column) {
        if (const auto pressed = std::exchange(m_headingPressed, std::nullopt); pressed && pressed == column)
            sortBy(*column);
    };
    grdGames.spokenName = "Games that matter";
    grdGames.columns = {{"Game", ui::Alignment::Left, 20, true},
                        {"Root for", ui::Alignment::Left, 13},
                        {"Swing", ui::Alignment::Right, 5},
                        {"When", ui::Alignment::Left, 5}};
    grdGames.wholeRows = true;
    grdGames.rowReached = [this](std::size_t row) { reachGame(row); };
    grdGames.cellPressed = [this](std::size_t row, std::size_t) { pressGame(row); };
}

/// From top to bottom as they are seen: the bar, the bracket, the tables, the buttons.
void OutlookScreen::orderTabs()
{
    int place = 0;
    for (ui::Control* control : std::initializer_list<ui::Control*>{&cmdAsEntered, &cmdHigherSeeds, &cmdUndo,
                                                                    &optChances[0], &optChances[1], &optChances[2]})
        control->tabIndex = place++;
    for (const Position position : allPositions())
        lblRegion[position].tabIndex = place++;
    for (ui::Control* control :
         std::initializer_list<ui::Control*>{&grdPlayers, &grdGames, &cmdSaveReport, &cmdSavePdf, &cmdSaveCsv,
                                             &cmdPrint, &cmdPreview, &cmdCopy, &cmdShowWay, &cmdStop, &cmdExit})
        control->tabIndex = place++;
    focused = &grdPlayers;
}

/// Nothing on the screen waits for a choice: until the person does something, the first row is the chosen one. Before
/// there are shares to sort by, who is first in the table leads in nothing.
void OutlookScreen::chooseLeader()
{
    if (m_followsLeader && !m_rows.empty() && m_figures.source != ChanceSource::None)
        m_chosen = m_rows.front().player;
}

void OutlookScreen::choose(std::size_t row)
{
    m_chosen = m_rows.at(row).player;
    m_followsLeader = false;
}

void OutlookScreen::showRows()
{
    grdPlayers.rows.clear();
    grdPlayers.muted.clear();
    for (const OutlookRow& row : m_rows) {
        std::vector<std::string> cells;
        for (std::size_t column = 0; column < kOutlookColumns; ++column)
            cells.push_back(cellOf(row, static_cast<OutlookColumn>(column)));
        grdPlayers.rows.push_back(std::move(cells));
        grdPlayers.muted.push_back(row.prospect == Prospect::Out);
        if (row.player == m_chosen) // wherever the row is now
            grdPlayers.current = {grdPlayers.rows.size() - 1, grdPlayers.current ? grdPlayers.current->column : 1};
    }
    grdPlayers.bars = {static_cast<std::size_t>(OutlookColumn::First), partsOfLargest(m_rows)};
    grdPlayers.sorted = ui::GridSort{static_cast<std::size_t>(m_order.column), isAscending(m_order)};
    ++grdPlayers.revision;
}

/// @returns why no game is listed
std::string OutlookScreen::noteWithoutGames() const
{
    if (!m_worker)
        return "There is no outlook without payoffs.";
    if (m_games.size() == 0)
        return "No game is open.";
    if (m_figures.source == ChanceSource::Forecast)
        return "No difference is larger than the error of the forecast.";
    if (m_figures.source == ChanceSource::Counted)
        return "No open game makes a difference.";
    return isWorking() && !m_stopped ? "Nothing is counted yet." : "Stopped before anything was counted.";
}

void OutlookScreen::showGames(const std::vector<OpenGame>& games)
{
    const std::vector<GameWeight> weights = weightsOf(m_figures, games);
    grdGames.emptyNote = noteWithoutGames();
    const std::vector<double> ofChosen = swings();
    std::vector<std::vector<std::string>> rows;
    m_listed.clear();
    for (const GameWeight& weight : weights) {
        const OpenGame& game = m_listed.emplace_back(games[weight.openGame]);
        rows.push_back({gameText(game), ofChosen.empty() ? "" : rootFor(game, ofChosen[weight.openGame]),
                        swingText(weight), whenText(game)});
    }
    showMarkedGame(weights);
    if (rows == grdGames.rows)
        return;
    grdGames.rows = std::move(rows);
    ++grdGames.revision;
}

/// @param weights of the games that are listed
void OutlookScreen::showMarkedGame(const std::vector<GameWeight>& weights)
{
    const auto marked =
        std::ranges::find(m_listed, markedGame, [](const OpenGame& game) { return std::optional{game.game}; });
    if (marked == m_listed.end()) {
        markedGame.reset();
        grdGames.explanation = explanationOfGames(std::nullopt);
        return;
    }
    const auto row = static_cast<std::size_t>(marked - m_listed.begin());
    grdGames.explanation = explanationOfGames(weights[row]);
    if (grdGames.current)
        grdGames.current->row = row;
}

void OutlookScreen::showRoad()
{
    lblRoad.text = m_chosen ? "The road of " + nameInSentence(m_pool.entries.at(*m_chosen)) : "The road";
    RoadPicture road = roadPicture();
    if (road == m_road)
        return;
    m_road = std::move(road);
    picRoad.spokenName = roadInWords(m_road);
    ++picRoad.revision;
}

void OutlookScreen::reachGame(std::size_t row) { markedGame = m_listed.at(row).game; }

/// Goes to the team to root for, where it is known who plays.
void OutlookScreen::pressGame(std::size_t row)
{
    reachGame(row);
    const OpenGame& game = m_listed[row];
    const auto [upper, lower] = *feeders(game.game);
    const Position team = grdGames.rows[row].at(kRootFor) == game.lower ? lower : upper;
    focused = &lblRegion[game.isNext ? team : game.game];
    gotFocus(*focused);
}

} // namespace tallyhoop
