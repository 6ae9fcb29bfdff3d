// tests/qt/hostile_names_test.cpp - every screen with a pool full of hostile names: they are shown, and nothing else
// happens.
#include "qt/hostile_names_program.h"

#include "screens/scores/scores_screen.h"
#include "screens/setup/seeds_screen.h"
#include "screens/setup/setup_screen.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTextDocumentFragment>

namespace tallyhoop::qt {
namespace {

class HostileNamesOnScreens : public ProgramFullOf, public testing::WithParamInterface<HostileName>
{
protected:
    HostileNamesOnScreens() : ProgramFullOf{GetParam().text} {}
};

TEST_P(HostileNamesOnScreens, AreTextOnTheBoard)
{
    onBoard([&] { board().showScored(scratch.path() / *folder.pathOf(fileName)); });
    examine(ScreenKind::Board);
    auto* const team = qobject_cast<QAbstractButton*>(host.page(ScreenKind::Board)->widgetOf(board().lblRegion[0]));
    ASSERT_NE(team, nullptr);
    EXPECT_EQ(team->text(), toQString(hostileName()));
    EXPECT_TRUE(team->shortcut().isEmpty());
    EXPECT_FALSE(team->grab().isNull());
}

TEST_P(HostileNamesOnScreens, AreTextWhenTheyAreScored)
{
    onBoard([&] {
        board().showGameResults();
        board().mnuScoreSelections.click();
    });
    auto* const scores = host.find<ScoresScreen>(ScreenKind::Scores);
    ASSERT_NE(scores, nullptr);
    desk.runInside(*scores, [&] { scores->cmdOk.click(); });
    ASSERT_EQ(scores->msgScoreDisplay.rows.size(), 1U);
    examine(ScreenKind::Scores);
    EXPECT_FALSE(host.page(ScreenKind::Scores)->grab().isNull());
    const auto& table = *host.page(ScreenKind::Scores)->findChild<QTableView*>(QStringLiteral("msgScoreDisplay"));
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        const QModelIndex cell = table.model()->index(0, column);
        const QString tip = cell.data(Qt::ToolTipRole).toString();
        const QString seen = Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
        EXPECT_EQ(seen.simplified(), cell.data().toString().simplified()) << "column " << column;
    }
}

TEST_P(HostileNamesOnScreens, AreTextAmongTheReports)
{
    onBoard([&] { board().mnuReports.click(); });
    examine(ScreenKind::Reports);
}

TEST_P(HostileNamesOnScreens, AreTextInThePlayerList)
{
    onBoard([&] { board().mnuEditNames.click(); });
    examine(ScreenKind::Players);
}

TEST_P(HostileNamesOnScreens, AreTextInTheMail) { examineModal(ScreenKind::Email); }

TEST_P(HostileNamesOnScreens, AreTextInTheSetup)
{
    host.load(ScreenKind::Setup);
    examine(ScreenKind::Setup);
    const auto& setup = *host.find<SetupScreen>(ScreenKind::Setup);
    const Page& page = *host.page(ScreenKind::Setup);
    const auto line = [&page](const ui::Control& control) {
        return qobject_cast<QLineEdit*>(page.widgetOf(control))->text().toStdString();
    };
    const std::string shown = toQString(hostileName()).toStdString();
    for (std::size_t team = 0; team < setup.txtRegion.size(); team += 2) {
        EXPECT_EQ(line(setup.txtRegion[team]), shown) << team;
        EXPECT_EQ(line(setup.txtRegion[team + 1]), "Team " + std::to_string(team + 1));
    }
    for (std::size_t i = 0; i < setup.TxtInfo.size(); ++i)
        EXPECT_EQ(line(setup.TxtInfo[i]), shown) << i;
    for (std::size_t i = 0; i < setup.lblSeed.size(); i += 2)
        EXPECT_EQ(qobject_cast<QLabel*>(page.widgetOf(setup.lblSeed[i]))->text().toStdString(), shown) << i;
    for (const ui::TextBox* comment : {&setup.txtComment1, &setup.txtComment2}) {
        QString lines = toQString(hostileName());
        lines.replace(QLatin1Char{'|'}, QLatin1Char{'\n'}); // which means a line break in the file
        EXPECT_EQ(qobject_cast<QPlainTextEdit*>(page.widgetOf(*comment))->toPlainText().toStdString(),
                  lines.toStdString());
    }
}

TEST_P(HostileNamesOnScreens, AreTextAmongTheSeedsAndNumbersNever)
{
    host.load(ScreenKind::Setup);
    QTimer::singleShot(0, qApp, [&] {
        examine(ScreenKind::Seeds);
        auto& seeds = *host.find<SeedsScreen>(ScreenKind::Seeds);
        const Page& page = *host.page(ScreenKind::Seeds);
        for (std::size_t row = 0; row < kRowsPerRegion; row += 2) {
            EXPECT_EQ(qobject_cast<QLineEdit*>(page.widgetOf(seeds.txtSeed[row]))->text().toStdString(),
                      toQString(hostileName()).toStdString());
            EXPECT_EQ(seeds.lblRegion[row].text, hostileName());
        }
        desk.runInside(seeds, [&] { seeds.cmdComplete.click(); });
        EXPECT_EQ(platform.dialogs.shown.back().caption, "SEED Entry ERROR");
        desk.runInside(seeds, [&] { seeds.cmdCancel.click(); });
    });
    host.load(ScreenKind::Seeds);
    EXPECT_FALSE(host.isLoaded(ScreenKind::Seeds));
    EXPECT_EQ(host.find<SetupScreen>(ScreenKind::Setup)->lblSeed[0].text, hostileName());
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesOnScreens,
                         testing::ValuesIn(tallyhoop::test::hostileNames(tallyhoop::test::Place::Window)),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::qt
