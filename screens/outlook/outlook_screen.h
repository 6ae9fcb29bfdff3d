// screens/outlook/outlook_screen.h - the pool outlook: who can still win, how, and whom to root for.
#pragma once

#include "pool/entry.h"
#include "screens/outlook/outlook_board.h"
#include "screens/outlook/outlook_rows.h"
#include "screens/outlook/outlook_work.h"
#include "screens/outlook/road_drawing.h"
#include "screens/outlook/what_if.h"
#include "screens/screens.h"
#include "ui/picture.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// Works with a copy of the pool: there is no way from here to a file.
class OutlookScreen : public ui::Screen, public OutlookBoard
{
public:
    /// @param pool as it is in the files; what could not be read is shown when the screen is loaded
    OutlookScreen(Pool pool, const ui::Platform& platform, Screens& screens);

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
    ui::Label lblGames{this, "lblGames", "Games that matter"};
    ui::Grid grdGames{this, "grdGames"};
    ui::Command cmdStop{this, "cmdStop", "S&top", [this] { m_stopped = true; }};
    ui::Command cmdCopy{this, "cmdCopy", "C&opy", [this] { copy(); }};
    ui::Command cmdExit{this, "cmdExit", "E&xit", [this] { closeRequested(); }};

    // What happens on the bracket.
    void pressPosition(Position position) { supposed(m_whatIf.press(position)); }
    void takeBackPosition(Position position) { supposed(m_whatIf.takeBack(position)); }

    /// How everybody's chances have changed from round to round, by the results as entered and the chances chosen; with
    /// as many points as are known.
    RoadPicture roadPicture() const;

    /// Whether advance() has something to do.
    bool isWorking() const { return m_work && !m_stopped && !m_work->isDone(); }

    /// Does a slice of the work, of some milliseconds; showState() then shows what is known. Whoever shows the screen
    /// calls it again and again while it is working.
    void advance(const Step& step = goOn);

private:
    void describeGrids();
    void orderTabs();
    void supposed(bool changed);
    void fillWithHigherSeeds();
    void chooseChances();
    void startWork();
    void keepAsEntered();
    void choosePlayer(std::size_t row, std::size_t column);
    void sortBy(std::size_t column);
    void reachGame(std::size_t row);
    void pressGame(std::size_t row);
    void showWay();
    void copy();
    bool pressedKey(Position position, const ui::KeyPress& press);

    void takeFigures();
    void makeRows();
    void showRows();
    void chooseLeader();
    void choose(std::size_t row);
    void showGames(const std::vector<OpenGame>& games);
    void showPlayer();
    void showRoad();
    std::string howFar() const;
    std::string proofFor(std::size_t player) const;
    std::vector<double> swings() const;

    const ui::Platform& m_platform;
    Screens& m_screens;
    Pool m_pool;
    std::vector<Bracket> m_picks;
    WhatIf m_whatIf;
    ChanceKind m_kind = ChanceKind::Alike;

    std::optional<OutlookWork> m_work; ///< nothing = the payoffs are no numbers
    bool m_stopped = false;
    bool m_hasNews = false; ///< of the work: what is shown is not all that is known
    OutlookFigures m_figures;
    std::array<std::vector<double>, 3>
        m_entered; ///< shares by the results as entered, for each kind; empty = not known
    std::array<std::vector<RoadPoint>, 3> m_roads; ///< by the results as entered, for each kind: the points known

    std::vector<PlayerStanding> m_standings;
    OutlookOrder m_order;
    std::vector<OutlookRow> m_rows;
    std::optional<std::size_t> m_chosen; ///< player whom to root for
    bool m_followsLeader = true;         ///< nobody has chosen one yet
    std::optional<std::size_t> m_headingPressed;
    std::vector<OpenGame> m_listed; ///< the games of the list, row by row
    RoadPicture m_road;             ///< as it is shown
};

} // namespace tallyhoop
