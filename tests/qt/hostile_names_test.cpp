// tests/qt/hostile_names_test.cpp - every screen with a pool full of hostile names: they are shown, and nothing else
// happens.
#include "qt/hostile_names_program.h"

#include "qt/services/outgoing_mail.h"
#include "screens/scores/scores_screen.h"
#include "screens/setup/seeds_screen.h"
#include "screens/setup/setup_screen.h"

#include <QByteArray>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>
#include <map>

namespace tallyhoop::qt {
namespace {

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
        board().enterGameResults();
        board().mnuScoreSelections.click();
    });
    auto* const scores = host.find<ScoresScreen>(ScreenKind::Scores);
    ASSERT_NE(scores, nullptr);
    desk.runInside(*scores, [&] { scores->cmdOk.click(); });
    ASSERT_EQ(scores->msgScoreDisplay.rows.size(), 1U);
    examine(ScreenKind::Scores);
    EXPECT_FALSE(host.page(ScreenKind::Scores)->grab().isNull());
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

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesOnScreens, testing::ValuesIn(test::hostileNames()),
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

class HostileNamesInMail : public testing::TestWithParam<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }

    OutgoingMail mail() const
    {
        return outgoing({.recipients = {hostileName(), "a@example.org"},
                         .subject = hostileName(),
                         .body = hostileName(),
                         .placeholders = 0,
                         .attachments = {{"/pool of one's own,'/RPTOPT1.TXT", 0}}});
    }
};

TEST_P(HostileNamesInMail, ReachThunderbirdAsOneArgumentUnchanged)
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

TEST_P(HostileNamesInMail, ReachXdgEmailAsOneAddressAndNeverAsAnOption)
{
    const OutgoingMail sent = mail();
    const std::vector<std::string> arguments = xdgEmailArguments(sent);
    ASSERT_EQ(arguments.size(), 4u);
    EXPECT_EQ(arguments[0], "--utf8");
    EXPECT_EQ(arguments[1], "--attach");
    EXPECT_EQ(arguments[2], "/pool of one's own,'/RPTOPT1.TXT");
    const std::string& address = arguments[3];
    EXPECT_TRUE(address.starts_with("mailto:"));
    EXPECT_EQ(address.find_first_of(" \"'`$;|<>\\\n\r"), std::string::npos) << "a shell would interpret it";
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

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesInMail, testing::ValuesIn(test::hostileNames()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::qt
