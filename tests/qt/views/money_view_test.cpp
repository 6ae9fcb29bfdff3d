// tests/qt/views/money_view_test.cpp - does what is typed, chosen and ticked reach the screen of fees and prizes?
#include "qt/views/money_view.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "reports/four_players.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

OpenedPool poolOfFour()
{
    OpenedPool opened;
    opened.pool.field = defaultField();
    opened.pool.entries = test::fourPlayers();
    opened.pool.results = test::fourPlayersResults();
    return opened;
}

class MoneyViewTest : public testing::Test
{
protected:
    MoneyViewTest()
    {
        money.load();
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        desk.push();
    }

    template <class Widget>
    Widget& widget(const char* name) const
    {
        auto* const found = view.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    MoneyScreen money{folder, poolOfFour(), platform.services, screens};
    Desk desk;
    MoneyView view{money, desk};
};

TEST_F(MoneyViewTest, ShowsEveryControl) { EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{}); }

TEST_F(MoneyViewTest, CalculatesWhileSomebodyTypes)
{
    auto& fee = widget<QLineEdit>("txtEntryFee");
    EXPECT_TRUE(fee.hasFocus());
    QTest::keyClicks(&fee, QStringLiteral("10"));
    QTest::keyClicks(&widget<QLineEdit>("txtPrize_0"), QStringLiteral("75 %"));
    EXPECT_EQ(widget<QLabel>("lblAmount_0").text(), QStringLiteral("30.00"));
    EXPECT_EQ(widget<QLabel>("lblPurse").text(),
              QStringLiteral("Fees 40.00: kept back 0.00, prizes 30.00, left 10.00."));
    EXPECT_TRUE(money.unsaved);
}

TEST_F(MoneyViewTest, EnterSavesWhatIsTypedChosenAndTicked)
{
    auto& fee = widget<QLineEdit>("txtEntryFee");
    QTest::keyClicks(&fee, QStringLiteral("10"));
    widget<QRadioButton>("optTies_2").click();
    auto& players = widget<QTableView>("grdFees");
    players.setFocus();
    players.setCurrentIndex(players.model()->index(1, 1));
    QTest::keyClick(&players, Qt::Key_Space);
    fee.setFocus();
    QTest::keyClick(&fee, Qt::Key_Return);
    EXPECT_EQ(scratch.get("PRIZES.CSV"), test::crlf({"Item,Which,Value", "Entry fee,,10.00", "Kept back,,0.00",
                                                     "Ties,,Share", "Paid,Baker_C.THC,Yes"}));
}

} // namespace
} // namespace tallyhoop::qt
