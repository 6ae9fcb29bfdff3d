// tests/qt/weapons_test.cpp - every screen over a pool full of such names: they are shown, and nothing else happens.
#include "weapons/weapons.h"

#include "app/wiring.h"
#include "bracket/frmPoolMain.h"
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "model/file_names.h"
#include "model/player_names_file.h"
#include "model/selection_file.h"
#include "model/setup_file.h"
#include "scoring/frmPoolMisc.h"
#include "ui/qt/main_frame.h"
#include "ui/qt/screen_host.h"
#include "ui/qt/services/outgoing_mail.h"
#include "ui/qt/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QByteArray>
#include <QLabel>
#include <QTextDocumentFragment>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace tallyhoop::qt {
namespace {

using test::Weapon;

/// The program with a pool whose title, regions, teams, seeds, comments and players all bear one name.
class WeaponsOnScreens : public testing::TestWithParam<Weapon>
{
protected:
    WeaponsOnScreens()
    {
        putPool();
        registerScreens(host, folder, platform.services, state);
        frame.resize(1200, 800);
        frame.show();
        host.load(ScreenKind::Board);
    }

    const std::string& weapon() const { return GetParam().text; }

    void putPool()
    {
        SetupLines setup = defaultSetupLines();
        for (std::size_t i = 0; i < 64; ++i)
            setup.at(i) = i % 2 == 0 ? weapon() : "Team " + std::to_string(i);
        for (const std::size_t line : {64, 65, 66, 67, 68, 75, 91, 92})
            setup.at(line) = weapon();
        setup[setup_line::kFinalized] = "1";
        scratch.put(file_name::kSetup, setupFile(setup));

        SelectionLines lines;
        for (int i = 0; i < kPositions; ++i)
            lines.at(static_cast<std::size_t>(i) + 1) = i % 2 == 0 ? weapon() : "Team " + std::to_string(i);
        lines[selection_line::kName] = weapon();
        lines[selection_line::kInitials] = weapon();
        lines[selection_line::kFinalPoints] = "150";
        EXPECT_TRUE(folder.write(fileName, selectionFile(lines)));
        scratch.put(file_name::kResults, selectionFile(lines));
        scratch.put(file_name::kPlayerNames,
                    playerNamesFile(std::vector<PlayerRecord>{{weapon(), weapon(), weapon(), weapon()}}));
    }

    /// Looks at every widget of a screen.
    void examine(ScreenKind kind)
    {
        desk.push();
        QApplication::processEvents();
        Page* const page = host.page(kind);
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(page->windowTitle().remove(QStringLiteral("[*]")),
                  toQString(page->screen().caption).remove(QStringLiteral("[*]")));
        for (const QLabel* label : page->findChildren<QLabel*>()) {
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
                << label->objectName().toStdString() << " would show markup";
        }
        for (const QAbstractButton* button : page->findChildren<QAbstractButton*>()) {
            EXPECT_TRUE(button->shortcut().isEmpty() || !button->text().contains(toQString(weapon())))
                << button->objectName().toStdString() << " has a mnemonic that comes from a name";
        }
        for (const QAction* action : page->findChildren<QAction*>()) {
            EXPECT_FALSE(weapon().size() > 3 && action->text().contains(toQString(weapon())))
                << action->objectName().toStdString();
        }
        examineToolTips(*page);
    }

    void examineToolTips(const Page& page)
    {
        for (const ui::Control* control : page.screen().controls()) {
            const QWidget* widget = page.widgetOf(*control);
            if (widget == nullptr || control->toolTip.empty())
                continue;
            const QString tip = widget->toolTip();
            const QString seen = Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
            EXPECT_EQ(seen.simplified(), toLines(control->toolTip).simplified()) << control->name;
        }
    }

    void examineModal(ScreenKind kind)
    {
        QTimer::singleShot(0, qApp, [&] {
            examine(kind);
            desk.runInside(*host.screen(kind), [&] { host.unload(kind); });
        });
        host.load(kind);
        EXPECT_FALSE(host.isLoaded(kind));
    }

    frmPoolMain& board() { return *host.find<frmPoolMain>(ScreenKind::Board); }
    void onBoard(const std::function<void()>& command) { desk.runInside(board(), command); }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    const std::string fileName = proposedFileName(weapon(), weapon());
    test::FakePlatform platform;
    modTallyhoop state;
    MainFrame frame;
    Desk desk{&frame};
    ScreenHost host{desk, frame};
};

TEST_P(WeaponsOnScreens, AreTextOnTheBoard)
{
    onBoard([&] { board().showSelection(scratch.path() / *folder.pathOf(fileName)); });
    examine(ScreenKind::Board);
    auto* const team = qobject_cast<QAbstractButton*>(host.page(ScreenKind::Board)->widgetOf(board().lblRegion[0]));
    ASSERT_NE(team, nullptr);
    EXPECT_EQ(team->text(), toQString(weapon()));
    EXPECT_TRUE(team->shortcut().isEmpty());
    EXPECT_FALSE(team->grab().isNull());
}

TEST_P(WeaponsOnScreens, AreTextWhenTheyAreScored)
{
    onBoard([&] {
        board().EnterGameResults();
        board().ScoreSelections();
    });
    auto* const scores = host.find<frmPoolMisc>(ScreenKind::ScoreDisplay);
    ASSERT_NE(scores, nullptr);
    desk.runInside(*scores, [&] { scores->cmdOk.click(); });
    ASSERT_EQ(scores->msgScoreDisplay.rows.size(), 1U);
    examine(ScreenKind::ScoreDisplay);
    EXPECT_FALSE(host.page(ScreenKind::ScoreDisplay)->grab().isNull());
}

TEST_P(WeaponsOnScreens, AreTextAmongTheReports)
{
    onBoard([&] { board().mnuReports.click(); });
    examine(ScreenKind::Reports);
}

TEST_P(WeaponsOnScreens, AreTextInThePlayerList)
{
    onBoard([&] { board().mnuEditNames.click(); });
    examine(ScreenKind::PlayerNames);
}

TEST_P(WeaponsOnScreens, AreTextInTheMail) { examineModal(ScreenKind::EMail); }

TEST_P(WeaponsOnScreens, AreTextInTheSetup)
{
    host.load(ScreenKind::Setup);
    examine(ScreenKind::Setup);
}

INSTANTIATE_TEST_SUITE_P(Each, WeaponsOnScreens, testing::ValuesIn(test::weapons()),
                         [](const auto& values) { return values.param.kind; });

/// What a client finds in its composing argument: a value in apostrophes is taken as it is and ends at an apostrophe
/// before a comma or the end; a bare value ends at a comma and is percent-decoded.
std::map<std::string, std::string> composed(const std::string& argument)
{
    std::map<std::string, std::string> found;
    for (std::size_t at = 0; at < argument.size();) {
        const std::size_t equals = argument.find('=', at);
        if (equals == std::string::npos)
            break;
        const std::string key = argument.substr(at, equals - at);
        EXPECT_FALSE(found.contains(key)) << key;
        if (argument.compare(equals + 1, 1, "'") == 0) {
            const std::size_t end = std::min(argument.find("',", equals + 2), argument.size() - 1);
            found[key] = argument.substr(equals + 2, end - equals - 2);
            at = end + 2;
        } else {
            const std::size_t end = std::min(argument.find(',', equals), argument.size());
            found[key] = QByteArray::fromPercentEncoding(
                             QByteArray::fromStdString(argument.substr(equals + 1, end - equals - 1)))
                             .toStdString();
            at = end + 1;
        }
    }
    return found;
}

class WeaponsInMail : public testing::TestWithParam<Weapon>
{
protected:
    const std::string& weapon() const { return GetParam().text; }

    OutgoingMail mail() const
    {
        return outgoing({.recipients = {weapon(), "a@example.org"},
                         .subject = weapon(),
                         .body = weapon(),
                         .placeholders = 0,
                         .attachments = {{"/pool of one's own,'/RPTOPT1.TXT", 0}}});
    }
};

TEST_P(WeaponsInMail, ReachThunderbirdAsOneArgumentThatSaysJustThat)
{
    const OutgoingMail sent = mail();
    const std::vector<std::string> arguments = thunderbirdArguments(sent);
    ASSERT_EQ(arguments.size(), 2u);
    EXPECT_EQ(arguments[0], "-compose");
    const std::map<std::string, std::string> found = composed(arguments[1]);
    EXPECT_EQ(found.size(), 5u);
    EXPECT_EQ(found.at("to"), sent.recipients[0] + ",a@example.org");
    EXPECT_EQ(found.at("subject"), sent.subject);
    EXPECT_EQ(found.at("body"), sent.body);
    EXPECT_EQ(found.at("format"), "text");
    EXPECT_EQ(found.at("attachment"), "file:///pool%20of%20one%27s%20own%2C%27/RPTOPT1.TXT");
}

TEST_P(WeaponsInMail, ReachXdgEmailAsOneAddressAndNeverAsAnOption)
{
    const OutgoingMail sent = mail();
    const std::vector<std::string> arguments = xdgEmailArguments(sent);
    ASSERT_EQ(arguments.size(), 4u);
    EXPECT_EQ(arguments[0], "--utf8");
    EXPECT_EQ(arguments[1], "--attach");
    EXPECT_EQ(arguments[2], "/pool of one's own,'/RPTOPT1.TXT");
    const std::string& address = arguments[3];
    EXPECT_TRUE(address.starts_with("mailto:"));
    EXPECT_EQ(address.find_first_of(" \"'`$;|<>\\\n\r"), std::string::npos) << "a shell would see it";
    const std::size_t subject = address.find("?subject=");
    const std::size_t body = address.find("&body=");
    ASSERT_NE(body, std::string::npos);
    const auto decoded = [&](std::size_t from, std::size_t to) {
        return QByteArray::fromPercentEncoding(QByteArray::fromStdString(address.substr(from, to - from)))
            .toStdString();
    };
    EXPECT_EQ(decoded(7, subject), sent.recipients[0] + ",a@example.org");
    EXPECT_EQ(decoded(subject + 9, body), sent.subject);
    EXPECT_EQ(decoded(body + 6, address.size()), sent.body);
}

INSTANTIATE_TEST_SUITE_P(Each, WeaponsInMail, testing::ValuesIn(test::weapons()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::qt
