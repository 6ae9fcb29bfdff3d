// tests/qt/accessibility_test.cpp - checks every screen for screen readers, keyboard users and large letters.
#include "app/wiring.h"
#include "demo/sample_pool.h"
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "qt/accessibility.h"
#include "qt/main_frame.h"
#include "qt/screen_host.h"
#include "screens/board/board_screen.h"
#include "screens/import/import_screen.h"
#include "screens/money/money_screen.h"
#include "screens/outlook/outlook_screen.h"
#include "screens/scores/scores_screen.h"

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <array>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

/// The program on a small display with the sample pool.
class Accessibility : public testing::TestWithParam<ColourScheme>
{
protected:
    Accessibility()
    {
        EXPECT_TRUE(demo::installSamplePool(folder));
        wireScreens(host, desk, folder, platform.services, shared);
        frame.resize(1366, 768 - kDesktop);
        frame.show();
        host.load(ScreenKind::Board);
    }

    /// Fails for everything that is wrong with this screen as it is now.
    void examine(ScreenKind kind)
    {
        desk.push();
        QApplication::processEvents();
        Page* page = host.page(kind);
        ASSERT_NE(page, nullptr);
        ASSERT_TRUE(page->isVisible());
        EXPECT_LE(page->window()->width(), 1366);
        EXPECT_LE(page->window()->height(), 768 - kDesktop);
        EXPECT_EQ(troublesOf(*page), "");
        EXPECT_EQ(unexplained(*page), "");
    }

    /// @returns controls that the keyboard reaches, and menu entries, for which the status line has no explanation
    static std::string unexplained(const Page& page)
    {
        std::string names;
        for (const ui::Control* control : page.screen().controls()) {
            const QWidget* const widget = page.widgetOf(*control);
            const bool reached = widget && widget->isVisible() && widget->focusPolicy() & Qt::TabFocus;
            const auto* const entry = dynamic_cast<const ui::MenuEntry*>(control);
            const bool chosen = entry && entry->children.empty();
            if ((reached || chosen) && control->explanation.empty())
                names += control->name + "\n";
        }
        return names;
    }

    /// Loads a modal screen, examines it and leaves it.
    void examineModal(ScreenKind kind)
    {
        QTimer::singleShot(0, qApp, [&] {
            host.page(kind)->window()->resize(1000, 700); // the offscreen display is smaller than any real one
            examine(kind);
            desk.runInside(*host.screen(kind), [&] { host.unload(kind); });
        });
        host.load(kind);
        EXPECT_FALSE(host.isLoaded(kind));
    }

    BoardScreen& board() { return *host.find<BoardScreen>(ScreenKind::Board); }

    void onBoard(const std::function<void()>& command) { desk.runInside(board(), command); }

    static constexpr int kDesktop = 60; ///< a title bar and a panel

    UsedColours colours{GetParam()};
    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    SharedValues shared;
    MainFrame frame;
    Desk desk{&frame};
    ScreenHost host{desk, frame};
};

TEST_P(Accessibility, OfTheColours) { EXPECT_EQ(paleRoles(QApplication::palette()).join('\n').toStdString(), ""); }

TEST_P(Accessibility, OfTheBoard) { examine(ScreenKind::Board); }

TEST_P(Accessibility, OfAScoredSelection)
{
    onBoard([&] { board().showScored(scratch.path() / "Demo Prophet_DP.THC"); });
    ASSERT_TRUE(board().cmdDefaultColors.visible);
    examine(ScreenKind::Board);
    EXPECT_EQ(
        host.page(ScreenKind::Board)->widgetOf(board().lblRegion[Position{16}])->palette().color(QPalette::WindowText),
        (QColor{0, 255, 0}));
    EXPECT_EQ(
        host.page(ScreenKind::Board)->widgetOf(board().lblRegion[Position{18}])->palette().color(QPalette::WindowText),
        (QColor{255, 0, 0}));
}

TEST_P(Accessibility, OfTheLongestNamesOfTheList)
{
    // Given the longest names that come with the program, in the narrowest places: winners with their marks.
    constexpr std::array kLongest{"UT Rio Grande Valley", "Missouri-Kansas City", "Fairleigh Dickinson",
                                  "Charleston Southern"};
    Entry picks;
    Entry results;
    for (const Position position : allPositions()) {
        picks.picks.put(position, kLongest.at(static_cast<std::size_t>(index(position)) % kLongest.size()));
        results.picks.put(position, "Nobody");
    }
    scratch.put(file_name::kResults, selectionFile(results));
    const std::filesystem::path file = scratch.put("Longest.THC", selectionFile(picks));
    onBoard([&] { board().showScored(file); });
    ASSERT_EQ(board().lblResult[Game{62}].text, "X");
    examine(ScreenKind::Board);
}

TEST_P(Accessibility, OfTheScores)
{
    onBoard([&] {
        board().showGameResults();
        board().mnuScoreSelections.click();
    });
    auto* const scores = host.find<ScoresScreen>(ScreenKind::Scores);
    ASSERT_NE(scores, nullptr);
    desk.runInside(*scores, [&] { scores->cmdOk.click(); });
    ASSERT_EQ(scores->msgScoreDisplay.rows.size(), 4U);
    host.page(ScreenKind::Scores)->window()->resize(840, 420); // as on a display that has room for it
    examine(ScreenKind::Scores);
    examine(ScreenKind::Board);
}

TEST_P(Accessibility, OfTheReports)
{
    onBoard([&] { board().mnuReports.click(); });
    examine(ScreenKind::Reports);
}

TEST_P(Accessibility, OfTheOutlook)
{
    onBoard([&] { board().mnuOutlook.click(); });
    examine(ScreenKind::Outlook);
    OutlookScreen& outlook = *host.find<OutlookScreen>(ScreenKind::Outlook);
    desk.run(outlook, [&] {
        outlook.pressPosition(regionWinner(0));
        outlook.grdPlayers.cellPressed(0, 1);
    });
    examine(ScreenKind::Outlook);
}

TEST_P(Accessibility, OfTheImport)
{
    ASSERT_TRUE(folder.remove(file_name::kSettings)); // the demo takes no new selections
    const auto late = scratch.put("Late.THC", scratch.get("Demo Prophet_DP.THC"));
    Entry entry = readSelectionFile(late, {}).value;
    entry.name = "Longest of the Participants in Pools";
    entry.picks.put(kChampion, "<b>Yale");
    const auto refused = scratch.put("Refused.THC", selectionFile(entry));
    entry.picks.put(kChampion, entry.picks.at(kSemifinalA));
    const auto replacing = scratch.put("Replacing.THC", selectionFile(entry));
    onBoard([&] { board().mnuImport.click(); });
    examine(ScreenKind::Import);
    ImportScreen& import = *host.find<ImportScreen>(ScreenKind::Import);
    desk.run(import, [&] { import.filesDropped({late, refused, replacing}); });
    for (std::size_t row = 0; row < 3; ++row) {
        desk.run(import, [&] { import.grdEntries.current = ui::GridCell{row, 2}; });
        examine(ScreenKind::Import);
    }
    desk.run(import, [&] {
        import.cmdTickAll.click();
        import.cmdImport.click();
    });
    ASSERT_TRUE(import.txtSummary.visible);
    examine(ScreenKind::Import);
}

TEST_P(Accessibility, OfFeesAndPrizes)
{
    scratch.put(file_name::kPrizes, "Entry fee,,10.00\r\nPrize,1,60 %\r\nPrize,12,5.00\r\n");
    onBoard([&] { board().mnuMoney.click(); });
    examine(ScreenKind::Money);
    MoneyScreen& money = *host.find<MoneyScreen>(ScreenKind::Money);
    desk.run(money, [&] {
        money.cmdTickAll.click();
        money.txtPrize[1].text = "50 %";
    });
    examine(ScreenKind::Money);
}

TEST_P(Accessibility, OfThePlayerList)
{
    onBoard([&] { board().mnuEditNames.click(); });
    examine(ScreenKind::Players);
}

TEST_P(Accessibility, OfTheSetup)
{
    onBoard([&] { board().mnuSetupOptions.click(); });
    examine(ScreenKind::Setup);
}

TEST_P(Accessibility, OfTheSeedPositions)
{
    onBoard([&] { board().mnuSetupOptions.click(); });
    examineModal(ScreenKind::Seeds);
}

TEST_P(Accessibility, OfTheMail) { examineModal(ScreenKind::Email); }

TEST_P(Accessibility, OfTheEntryForm) { examineModal(ScreenKind::EntryForm); }

TEST_P(Accessibility, OfAPlaceThatAnAssistiveToolPresses)
{
    QWidget* const place = host.page(ScreenKind::Board)->widgetOf(board().lblRegion[2]);
    QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(place);
    ASSERT_NE(seen, nullptr);
    EXPECT_EQ(seen->text(QAccessible::Name).toStdString(), "West, first round, row 3, seed 8: Wisconsin");
    EXPECT_EQ(seen->text(QAccessible::Description).toStdString(),
              "Click or press Space to send Wisconsin to the next round, or drag it as far as it goes."
              " 1 and 2 fill in the open games, one after another.");
    ASSERT_NE(seen->actionInterface(), nullptr);
    seen->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([&] { return board().lblRegion[17].text == "Wisconsin"; }));
    desk.push();
    QWidget* const winner = host.page(ScreenKind::Board)->widgetOf(board().lblRegion[17]);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(winner)->text(QAccessible::Name).toStdString(),
              "West, winner of first round, game 2: Wisconsin");
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Accessibility, testing::Values(ColourScheme::Light, ColourScheme::Dark),
                         [](const auto& colours) { return colourName(colours); });

} // namespace
} // namespace tallyhoop::qt
