// screens/outlook/outlook_screen.cpp - supposing, working, choosing; everything shown is derived in showState().
#include "screens/outlook/outlook_screen.h"

#include "pool/picks.h"
#include "pool/results.h"
#include "reports/outlook_words.h"
#include "screens/board/board_geometry.h"
#include "screens/help_topics.h"
#include "screens/outlook/outlook_words.h"
#include "screens/saving.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

namespace {

constexpr const char* kWhatIf = "What if: nothing here is saved";
constexpr const char* kHowToSort = " To sort, click a heading, or press Ctrl+Enter in its column.";
constexpr const char* kUnsaved = "The outlook uses the saved results; those on the board are not saved";

/// @returns which results these are
const char* resultsInWords(const OpenedPool& opened)
{
    if (opened.areResultsDamaged)
        return "The results that can be read";
    return opened.unsavedResults ? "The results as saved" : "The results as entered";
}

WhatIf whatIfOf(const Pool& pool) { return WhatIf{completedResults(pool.results.value_or(Entry{}), pool.field).picks}; }

} // namespace

OutlookScreen::OutlookScreen(const DataFolder& folder, OpenedPool opened, const ui::Platform& platform,
                             Screens& screens, std::unique_ptr<ui::Background> background)
    : ui::Screen{"frmPoolOutlook", "Pool Outlook"},
      OutlookBoard{this},
      m_platform{platform},
      m_screens{screens},
      m_opened{std::move(opened)},
      m_whatIf{whatIfOf(m_pool)},
      m_games{m_whatIf.entered()},
      m_output{folder, platform}
{
    const Result<Payoffs>& payoffs = m_pool.field.payoffs.points();
    if (payoffs)
        m_worker.emplace(m_whatIf.entered(), picksOf(m_pool.entries), *payoffs, m_pool.field, std::move(background));
    describeChances();
    cmdAsEntered.explanation = "Puts the real results back.";
    cmdHigherSeeds.explanation =
        "Supposes that the better seed wins every open game; of equal seeds, the team listed later.";
    cmdUndo.explanation = "Takes back what was supposed last.";
    cmdShowWay.explanation = "Supposes one way for the games to end in which the chosen player is first.";
    cmdStop.explanation = "Ends the work; what is known by then stays.";
    cmdSaveReport.explanation = "Writes the table as it is shown to OUTLOOK.TXT in the program's folder.";
    cmdSavePdf.explanation = "Saves the table, the road and the games that matter as a PDF file.";
    cmdSaveCsv.explanation = "Saves the table as it is shown as a table for spreadsheets.";
    cmdPrint.explanation = "Prints the table, the road and the games that matter.";
    cmdPreview.explanation = "Shows the pages as they will be printed.";
    cmdCopy.explanation = "Puts the table on the clipboard, ready for a spreadsheet.";
    cmdExit.explanation = "Back to the board.";
    describeGrids();
    orderTabs();
    picRoad.explanation = "Each player's share of first place after every round, by the results as entered.";
    picRoad.draw = [this](double width, double height, const ui::PictureColours& colours) {
        return drawRoad(m_road, width, height,
                        {colours.text, colours.grid, colours.line, colours.accent, colours.soft});
    };
}

void OutlookScreen::describeChances()
{
    constexpr std::array kCaptions{"All A&like", "By &Seed", "As &Picked"};
    for (std::size_t kind = 0; kind < optChances.size(); ++kind) {
        optChances[kind].caption = kCaptions.at(kind);
        optChances[kind].explanation = explanationOf(ChanceKind(kind));
        optChances[kind].changed = [this] { chooseChances(); };
    }
    selectOption(optChances, 0);
}

std::string OutlookScreen::helpTopic() const { return help_topic::kOutlook; }

void OutlookScreen::supposed(bool changed)
{
    if (!changed)
        return;
    m_followsLeader = false;
    say({});
    startWork();
}

void OutlookScreen::fillWithHigherSeeds() { supposed(m_whatIf.fillWithHigherSeeds(seedNumbers(m_pool.field))); }

void OutlookScreen::chooseChances()
{
    for (std::size_t kind = 0; kind < optChances.size(); ++kind)
        if (optChances[kind].selected)
            m_kind = ChanceKind(kind);
    say(explanationOf(m_kind));
    startWork();
}

void OutlookScreen::choosePlayer(std::size_t row, std::size_t column)
{
    choose(row);
    const auto pressed = static_cast<OutlookColumn>(column);
    say(pressed == OutlookColumn::Verdict ? explanationOf(m_rows[row].prospect) : explanationOf(pressed));
}

void OutlookScreen::sortBy(std::size_t column)
{
    const auto chosen = static_cast<OutlookColumn>(column);
    m_followsLeader = false;
    m_order = {chosen, m_order.column == chosen && !m_order.reversed};
    m_hasNews = true;
    say(explanationOf(chosen) + " " + sortedInWords(m_order));
}

void OutlookScreen::showWay()
{
    const std::optional<OutcomeNumber> witness = m_figures.prospects.at(*m_chosen).witness;
    supposed(m_whatIf.suppose(m_games.outcome(*witness)));
    say("This is one way in which " + nameInSentence(m_pool.entries.at(*m_chosen)) + " is first.");
}

bool OutlookScreen::keyPressed(ui::Control& control, const ui::KeyPress& press)
{
    if (const std::optional<Position> position = positionOfLabel(control); position && pressedKey(*position, press))
        return true;
    if (&control == &grdPlayers && grdPlayers.current && press.key == ui::Key::Enter && press.control) {
        sortBy(grdPlayers.current->column);
        return true;
    }
    return ui::Screen::keyPressed(control, press);
}

bool OutlookScreen::pressedKey(Position position, const ui::KeyPress& press)
{
    if (press.control || press.alt)
        return false;
    if (const std::optional<Direction> direction = directionOf(press.key)) {
        static const BoardGeometry kShape = layOutBoard(1000, 600);
        focused = &lblRegion[neighbour(kShape, position, *direction)];
        return true;
    }
    if (press.key == ui::Key::Enter || (press.key == ui::Key::Character && press.character == ' ')) {
        pressPosition(position);
        return true;
    }
    if (press.key == ui::Key::Delete || press.key == ui::Key::Backspace) {
        takeBackPosition(position);
        return true;
    }
    return false;
}

void OutlookScreen::gotFocus(ui::Control& control)
{
    if (const std::optional<Position> position = positionOfLabel(control))
        makeTabStop(*position);
}

void OutlookScreen::showState()
{
    takeFigures();
    showSupposed(m_pool.field, m_whatIf.entered(), m_whatIf.supposed());
    const std::vector<OpenGame> games = m_worker ? openGamesOf(m_games, m_pool.field) : std::vector<OpenGame>{};
    showSwings(games, swings());
    showGames(games);
    showPlayer();
    showRoad();
    const bool isSupposed = m_whatIf.isChanged();
    lblWhatIf.text = isSupposed ? kWhatIf : resultsInWords(m_opened);
    lblWhatIf.colour = isSupposed ? std::optional{kSupposedText} : std::nullopt;
    lblWhatIf.background = isSupposed ? std::optional{kSupposedBackground} : std::nullopt;
    cmdAsEntered.enabled = isSupposed;
    cmdUndo.enabled = m_whatIf.canUndo();
    cmdStop.enabled = isWorking() && !m_stopped;
    for (ui::Command* const output : {&cmdSaveReport, &cmdSavePdf, &cmdSaveCsv, &cmdPrint, &cmdPreview, &cmdCopy})
        output->enabled = !grdPlayers.rows.empty();
    lblOutcomes.text = howFar();
    if (const std::vector<std::string> unread = unreadInWords(m_opened); !unread.empty())
        lblOutcomes.text += " " + sentencesOf(unread);
    status = m_opened.unsavedResults ? kUnsaved : "";
    explanation = "Click a team on the board to suppose that it wins; choose a player to see whom to root for.";
    grdPlayers.explanation = grdPlayers.current
                                 ? explanationOf(static_cast<OutlookColumn>(grdPlayers.current->column)) + kHowToSort
                                 : "Choose a player to see whom to root for." + std::string{kHowToSort};
}

void OutlookScreen::makeRows()
{
    const SharesAsEntered& entered = m_entered.at(static_cast<std::size_t>(m_kind)).known;
    m_rows = outlookRows(m_pool.entries, m_standings, m_figures, m_whatIf.isChanged() ? entered : SharesAsEntered{});
    sortRows(m_rows, m_order);
}

std::vector<double> OutlookScreen::swings() const
{
    return m_chosen && m_figures.source != ChanceSource::None ? swingsFor(*m_chosen, m_figures) : std::vector<double>{};
}

void OutlookScreen::showPlayer()
{
    lblPlayer.text = m_chosen ? nameInSentence(m_pool.entries.at(*m_chosen)) + ": " +
                                    verdictInWords(m_figures.prospects.at(*m_chosen).prospect)
                              : "Nobody is chosen";
    lblProof.text = m_chosen ? proofFor(*m_chosen) : "";
    cmdShowWay.enabled = m_chosen && m_figures.prospects.at(*m_chosen).witness;
}

std::string OutlookScreen::proofFor(std::size_t player) const
{
    const PlayerProspect& prospect = m_figures.prospects.at(player);
    const std::size_t openGames = m_games.size();
    if (openGames == 0)
        return decidedWords(m_whatIf.isChanged());
    if (!m_figures.firstOutcomes.empty())
        return countedWords(m_figures.firstOutcomes.at(player), m_games.outcomes()) +
               (prospect.rival ? " " + nameInSentence(m_pool.entries.at(*prospect.rival)) + " is ahead in every one."
                               : "");
    if (prospect.rival)
        return nameInSentence(m_pool.entries.at(*prospect.rival)) + " is ahead, however the games end.";
    return provenWords(prospect.prospect, openGames);
}

std::string OutlookScreen::howFar() const
{
    if (!m_worker)
        return m_pool.field.payoffs.points().failure().message;
    if (m_figures.source == ChanceSource::None && !m_stopped && isWorking())
        return workingWords(m_worker->fraction());
    const std::string toCome = stillToCome();
    return stoppedInWords() + basisInShort(basis()) + (toCome.empty() ? "" : " " + toCome);
}

std::string OutlookScreen::stillToCome() const
{
    if (m_stopped || !isWorking())
        return {};
    if (const double fraction = m_worker->fraction(); fraction < 1)
        return m_figures.source == ChanceSource::Counted ? "The verdicts and places are being worked out."
                                                         : workingWords(fraction);
    return m_road.points.size() < m_road.times.size() ? "The road is being worked out." : "";
}

/// @returns "" while it goes on and when all is found
std::string OutlookScreen::stoppedInWords() const
{
    if (const std::exception_ptr trouble = m_worker->trouble())
        return "Stopped: " + troubleInWords(trouble) + ". ";
    return !m_isWhole && (m_stopped || !isWorking()) ? "Stopped. " : "";
}

} // namespace tallyhoop
