// screens/outlook/outlook_screen.h - the pool outlook: who can still win, how, and whom to root for.
#pragma once

#include "pool/entry.h"
#include "reports/outlook_words.h"
#include "screens/outlook/outlook_board.h"
#include "screens/outlook/outlook_output.h"
#include "screens/outlook/outlook_rows.h"
#include "screens/outlook/outlook_worker.h"
#include "screens/outlook/pool_opening.h"
#include "screens/outlook/road_drawing.h"
#include "screens/outlook/what_if.h"
#include "screens/screens.h"
#include "ui/background.h"
#include "ui/picture.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// Works with a copy of the pool: there is no way from here to the files that it was read from.
class OutlookScreen : public ui::Screen, public OutlookBoard
{
public:
    /// @param folder     where the report is written
    /// @param opened     what could not be read is shown when the screen is loaded
    /// @param background where the outlook is worked out
    OutlookScreen(const DataFolder& folder, OpenedPool opened, const ui::Platform& platform, Screens& screens,
                  std::unique_ptr<ui::Background> background);

    std::string helpTopic() const override;
    void showState() override;
    void load() override;
    void closeRequested() override { m_screens.unload(ScreenKind::Outlook); }
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;
    void gotFocus(ui::Control& control) override;

    ui::Label lblWhatIf{this, "lblWhatIf"};
    ui::Command cmdAsEntered{this, "cmdAsEntered", "&As Entered", [this] { supposed(m_whatIf.asEntered()); }};
    ui::Command cmdHigherSeeds{this, "cmdHigherSeeds", "&Higher Seeds", [this] { fillWithHigherSeeds(); }};
    ui::Command cmdUndo{this, "cmdUndo", "&Undo", [this] { supposed(m_whatIf.undo()); }};
    ui::Label lblChances{this, "lblChances", "Chances"};
    ui::ControlArray<ui::OptionButton, 3> optChances{this, "optChances"}; ///< by ChanceKind
    ui::Label lblOutcomes{this, "lblOutcomes"};
    ui::Grid grdPlayers{this, "grdPlayers"};
    ui::Label lblPlayer{this, "lblPlayer"};
    ui::Label lblProof{this, "lblProof"};
    ui::Command cmdShowWay{this, "cmdShowWay", "Show a &Way to Win", [this] { showWay(); }};
    ui::Label lblRoad{this, "lblRoad"};
    ui::Picture picRoad{this, "picRoad"};
    ui::Label lblGames{this, "lblGames", "Games that matter, the next ones first"};
    ui::Grid grdGames{this, "grdGames"};
    ui::Command cmdStop{this, "cmdStop", "S&top", [this] { stop(); }};
    ui::Command cmdSaveReport{this, "cmdSaveReport", "Save &Report", [this] { bringOut(&OutlookOutput::saveReport); }};
    ui::Command cmdSavePdf{this, "cmdSavePdf", "Save as P&DF", [this] { bringOut(&OutlookOutput::savePdf); }};
    ui::Command cmdSaveCsv{this, "cmdSaveCsv", "Save as &CSV...", [this] { bringOut(&OutlookOutput::saveCsv); }};
    ui::Command cmdPrint{this, "cmdPrint", "Pri&nt", [this] { bringOut(&OutlookOutput::print); }};
    ui::Command cmdPreview{this, "cmdPreview", "Pre&view", [this] { bringOut(&OutlookOutput::preview); }};
    ui::Command cmdCopy{this, "cmdCopy", "C&opy", [this] { bringOut(&OutlookOutput::copy); }};
    ui::Command cmdExit{this, "cmdExit", "E&xit", [this] { closeRequested(); }};

    // What happens on the bracket.
    void pressPosition(Position position) { supposed(m_whatIf.press(position)); }
    void takeBackPosition(Position position) { supposed(m_whatIf.takeBack(position)); }

    /// How everybody's chances have changed from round to round, by the results as entered and the chances chosen; with
    /// as many points as are known.
    RoadPicture roadPicture() const;

    /// Whether more will be known than is shown. Whoever shows the screen then calls showState() again and again.
    bool isWorking() const { return m_worker && m_worker->isWorking(); }

private:
    void describeChances();
    void describeGrids();
    void orderTabs();
    void supposed(bool changed);
    void fillWithHigherSeeds();
    void chooseChances();
    void startWork();
    void stop();
    void choosePlayer(std::size_t row, std::size_t column);
    void sortBy(std::size_t column);
    void reachGame(std::size_t row);
    void pressGame(std::size_t row);
    void showWay();
    bool pressedKey(Position position, const ui::KeyPress& press);

    void bringOut(std::string (OutlookOutput::*way)(const OutlookSheet&) const);
    OutlookSheet sheet() const;
    OutlookBasis basis() const;
    std::vector<SheetGame> gamesOfSheet() const;

    void takeFigures();
    void keepAsEntered();
    void makeRows();
    void showRows();
    void chooseLeader();
    void choose(std::size_t row);
    void showGames(const std::vector<OpenGame>& games);
    void showMarkedGame(const std::vector<GameWeight>& weights);
    void showPlayer();
    void showRoad();
    std::string noteWithoutGames() const;
    std::string howFar() const;
    std::string stillToCome() const;
    std::string stoppedInWords() const;
    std::string proofFor(std::size_t player) const;
    std::vector<double> swings() const;

    const ui::Platform& m_platform;
    Screens& m_screens;
    OpenedPool m_opened;
    const Pool& m_pool = m_opened.pool;
    WhatIf m_whatIf;
    ChanceKind m_kind = ChanceKind::Alike;

    /// The best that is known by the results as entered.
    struct EnteredShares {
        SharesAsEntered known;
        std::uint64_t samples = 0; ///< of the forecast; 0 = counted
    };

    std::optional<OutlookWorker> m_worker; ///< nothing = the payoffs are no numbers
    OpenGames m_games;                     ///< of the results as supposed
    bool m_stopped = false;
    bool m_hasNews = false; ///< the rows are not as they should be
    OutlookFigures m_figures;
    bool m_isWhole = false;                        ///< there is nothing more to find than these figures
    std::array<EnteredShares, 3> m_entered;        ///< by ChanceKind
    std::array<std::vector<RoadPoint>, 3> m_roads; ///< by ChanceKind: the points known, by the results as entered

    std::vector<PlayerStanding> m_standings;
    OutlookOrder m_order;
    std::vector<OutlookRow> m_rows;
    std::optional<std::size_t> m_chosen; ///< player whom to root for
    bool m_followsLeader = true;         ///< nobody has chosen one yet
    std::optional<std::size_t> m_headingPressed;
    std::vector<OpenGame> m_listed; ///< the games of the list, row by row
    RoadPicture m_road;             ///< as it is shown
    OutlookOutput m_output;
};

} // namespace tallyhoop
