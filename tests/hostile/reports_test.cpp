// tests/hostile/reports_test.cpp - reports and messages take every name as it is, and write nothing but their own
// files.
#include "hostile/hostile_names.h"

#include "files/player_names_file.h"
#include "screens/reports/reports_screen_fixture.h"

#include <algorithm>

namespace tallyhoop::test {
namespace {

class HostileNamesInReports : public ReportsScreenTest, public testing::WithParamInterface<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }

    /// The same bracket with this name for one of the teams, wherever that is.
    Bracket renamed(Bracket bracket) const
    {
        for (const Position position : allPositions())
            if (bracket.at(position) == teamName(kWest, 5))
                bracket.put(position, hostileName());
        return bracket;
    }

    /// The four players, one of whom bears the name, sends a team of the name on, and picked it as champion.
    void putPool()
    {
        for (Entry player : fourPlayers()) {
            player.picks = renamed(player.picks);
            if (player.fileName == "Clark_D.THC") {
                player.name = hostileName();
                player.initials = hostileName();
                player.picks.put(kChampion, hostileName());
                player.fileName = proposedFileName(hostileName(), hostileName());
            }
            ASSERT_TRUE(dataFolder.write(player.fileName, selectionFile(player)));
        }
        Entry results = fourPlayersResults();
        results.picks = renamed(results.picks);
        folder.put("TALLYHOOP.THS", selectionFile(results));
        folder.put("PLAYERNAMES.CSV", playerNamesFile(std::vector<PlayerRecord>{
                                          {hostileName(), hostileName(), hostileName(), hostileName()}}));
    }

    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const std::filesystem::directory_entry& entry : std::filesystem::directory_iterator{folder.path()})
            found.push_back(entry.path().filename().native());
        std::ranges::sort(found);
        return found;
    }

    /// Whether the layouts have room for it and none of their separators is in it.
    bool isOrdinary() const
    {
        return hostileName().size() <= 29 && hostileName().find_first_of(",;") == std::string::npos &&
               hostileName() != "   ";
    }
};

TEST_P(HostileNamesInReports, AreWrittenLetterForLetter)
{
    putPool();
    std::vector<std::string> expected = names();
    tickAll();
    create(kFile);

    // Nothing but report files has come, whatever the names say.
    for (const std::string& name : names()) {
        const bool report = name == "TEMPPRT.TXT" || (name.starts_with("RPTOPT") && name.ends_with(".TXT"));
        EXPECT_TRUE(report || std::erase(expected, name) == 1) << name;
    }
    EXPECT_TRUE(expected.empty()) << "a file of the pool is gone";

    if (!isOrdinary())
        return;
    EXPECT_TRUE(platform.dialogs.shown.empty());
    for (const char* report : {"RPTOPT1.TXT", "RPTOPT3.TXT", "RPTOPT4.TXT"})
        EXPECT_NE(folder.get(report).find(hostileName()), std::string::npos) << report;
    EXPECT_NE(folder.get("RPTOPT5.TXT").find(hostileName().substr(0, 14)), std::string::npos);
}

TEST_P(HostileNamesInReports, AreTheTitleAndNothingElse)
{
    putFourPlayers(folder);
    screen.txtReportTitle.text = hostileName();
    tickAll();
    create(kFile);
    EXPECT_NE(folder.get("RPTOPT1.TXT").find(hostileName()), std::string::npos);
    EXPECT_NE(folder.get("RPTOPT2.TXT").find(hostileName()), std::string::npos);
}

TEST_P(HostileNamesInReports, ReachTheMailProgramAsTheyAre)
{
    putFourPlayers(folder);
    tick({kListing});
    sendFromTheDialog({.recipients = {hostileName()}, .subject = hostileName(), .message = hostileName()});
    create(kEmail);
    ASSERT_EQ(platform.mail.sent.size(), 1u);
    const ui::MailMessage& sent = platform.mail.sent.front();
    EXPECT_EQ(sent.recipients, std::vector{hostileName()});
    EXPECT_EQ(sent.subject, hostileName());
    EXPECT_EQ(sent.body, hostileName() + std::string(10, ' '));
    ASSERT_EQ(sent.attachments.size(), 1u);
    EXPECT_EQ(sent.attachments.front().file, folder.path() / "RPTOPT2.TXT");
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesInReports, testing::ValuesIn(hostileNames()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::test
