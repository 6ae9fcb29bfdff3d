// tests/screens/reports/reports_screen_web_page_test.cpp - the pool's page saved and mailed: when, under which name,
// and what is said when it cannot be made.
#include "files/file_names.h"
#include "files/pool_files.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "output/pool_page_making.h"
#include "screens/reports/reports_screen_fixture.h"

#include <gmock/gmock.h>

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

struct ReportsWebPage : ReportsScreenTest {
    ReportsWebPage()
    {
        putFourPlayers(folder);
        folder.put(file_name::kSetup, setupFile(field));
        screen.load();
        screen.showState();
    }

    /// The page of the folder as it is, without prizes.
    std::string pageOfTheFolder() const
    {
        const Result<PoolPage> page =
            makePoolPage(openedPool(readPoolInSteps(dataFolder, goOn)), {}, ChanceKind::Alike, goOn, kQuickRoad);
        return page ? poolPage(*page) : page.failure().message;
    }

    void chooseDestination(Destination destination)
    {
        ui::selectOption(screen.optDestination, static_cast<std::size_t>(destination));
        screen.showState();
    }

    void letTheMailBeWritten()
    {
        sendFromTheDialog({.recipients = {"a@example.org"}, .subject = "The pool", .message = "Hello"});
    }

    std::vector<std::string> attached() const
    {
        std::vector<std::string> names;
        if (!platform.mail.sent.empty())
            for (const ui::Attachment& attachment : platform.mail.sent.front().attachments)
                names.push_back(attachment.file.filename().string());
        return names;
    }
};

TEST_F(ReportsWebPage, IsSavedUnderTheNameThatThePersonChooses)
{
    platform.dialogs.pick(folder.path() / "for everybody");
    screen.cmdWebPage.click();

    ASSERT_THAT(platform.dialogs.fileChoices, SizeIs(1));
    EXPECT_EQ(platform.dialogs.fileChoices[0].proposedName, "POOL.HTML");
    EXPECT_EQ(folder.get("for everybody.HTML"), pageOfTheFolder());
    EXPECT_THAT(folder.get("for everybody.HTML"), HasSubstr("\"AB, Adams\"")) << "a player of the folder";
    EXPECT_EQ(screen.news().text, "Saved for everybody.HTML.");
    EXPECT_THAT(platform.dialogs.shown, IsEmpty());
    EXPECT_FALSE(anyReportWritten());
    EXPECT_EQ(platform.progress.begun, platform.progress.ended);
}

TEST_F(ReportsWebPage, SaysThatItIsNotSavedWhenNoNameIsChosen)
{
    platform.dialogs.pick(std::nullopt);
    screen.cmdWebPage.click();
    EXPECT_EQ(screen.news().text, "Not saved.");
    EXPECT_FALSE(folder.has("POOL.HTML"));
}

TEST_F(ReportsWebPage, IsNotAskedForWhenThePersonStopsTheReading)
{
    platform.progress.cancelFromWork = 1;
    screen.cmdWebPage.click();
    EXPECT_THAT(platform.dialogs.fileChoices, IsEmpty());
    EXPECT_EQ(screen.news().text, "The web page was cancelled.");
}

TEST_F(ReportsWebPage, IsNotAskedForWhenThePersonStopsTheCalculation)
{
    platform.progress.cancelFromWork = 2;
    screen.cmdWebPage.click();
    EXPECT_THAT(platform.dialogs.fileChoices, IsEmpty());
    EXPECT_EQ(screen.news().text, "The web page was cancelled.");
}

TEST_F(ReportsWebPage, NamesTheSelectionsThatCannotBeRead)
{
    std::filesystem::remove(folder.path() / "Adams_AB.THC");
    std::filesystem::create_directory(folder.path() / "Adams_AB.THC");
    folder.put("Baker_C.THC", std::string(3'000'000, 'x'));
    platform.dialogs.pick(folder.path() / "POOL.HTML");
    screen.cmdWebPage.click();

    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("Baker_C.THC"));
    EXPECT_THAT(folder.get("POOL.HTML"), HasSubstr("1 player is missing: the selection cannot be read"));
}

TEST_F(ReportsWebPage, IsMadeWithoutThePrizesThatCannotBeRead)
{
    folder.put(file_name::kPrizes, "Item,Which,Value\r\nEntry fee,,ten\r\n");
    platform.dialogs.pick(folder.path() / "POOL.HTML");
    screen.cmdWebPage.click();

    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("PRIZES.CSV"));
    EXPECT_TRUE(folder.has("POOL.HTML"));
}

TEST_F(ReportsWebPage, SaysWhyThereIsNone)
{
    Field faulty = field;
    faulty.payoffs = PayoffTexts{{"1", "2", "40000", "8", "12", "16"}};
    folder.put(file_name::kSetup, setupFile(faulty));
    screen.cmdWebPage.click();

    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_EQ(platform.dialogs.shown[0].caption, "Tallyhoop - frmPoolReports, Save as Web Page");
    EXPECT_EQ(platform.dialogs.shown[0].icon, ui::Icon::Critical);
    EXPECT_THAT(platform.dialogs.fileChoices, IsEmpty());
}

TEST_F(ReportsWebPage, IsSaidToBeWithoutItsFinalSheet)
{
    Entry adams = fourPlayers().front();
    adams.finalPoints = "99999"; // far above 16 bits
    folder.put(adams.fileName, selectionFile(adams));
    platform.dialogs.pick(folder.path() / "POOL.HTML");
    screen.cmdWebPage.click();
    EXPECT_THAT(screen.news().text, StartsWith("Saved POOL.HTML. There is no final sheet. "));
    EXPECT_THAT(screen.news().text, HasSubstr("Adams_AB.THC"));
}

TEST_F(ReportsWebPage, NeedsAPlayer)
{
    for (const Entry& player : fourPlayers())
        std::filesystem::remove(folder.path() / player.fileName);
    screen.cmdWebPage.click();

    EXPECT_THAT(platform.dialogs.fileChoices, IsEmpty());
    EXPECT_EQ(screen.news().text, "There is no selection yet that the web page could show.");
}

TEST_F(ReportsWebPage, CanBeAttachedToWhatIsMailed)
{
    for (const auto& [destination, can] :
         {std::pair{kPrinter, false}, {kFile, false}, {kEmail, true}, {kEmailAll, true}}) {
        chooseDestination(destination);
        EXPECT_EQ(screen.chkWebPage.enabled, can) << destination;
    }
}

TEST_F(ReportsWebPage, IsAttachedAfterTheReports)
{
    letTheMailBeWritten();
    tickAll();
    screen.chkWebPage.ticked = true;
    create(kEmail);

    EXPECT_THAT(attached(), ElementsAre("RPTOPT1.TXT", "RPTOPT2.TXT", "RPTOPT3.TXT", "RPTOPT4.TXT", "RPTOPT5.TXT",
                                        "RPTOPT6.TXT", "RPTOPT7.TXT", "POOL.HTML"));
    const ui::MailMessage& message = platform.mail.sent.at(0);
    EXPECT_EQ(message.attachments.back().position, message.body.size() - 1) << "each has a place of its own";
    EXPECT_EQ(folder.get("POOL.HTML"), pageOfTheFolder());
}

TEST_F(ReportsWebPage, IsMailedByItself)
{
    letTheMailBeWritten();
    screen.chkWebPage.ticked = true;
    create(kEmailAll);

    EXPECT_THAT(platform.dialogs.shown, IsEmpty()) << "no report needs to be ticked";
    EXPECT_THAT(attached(), ElementsAre("POOL.HTML"));
    EXPECT_TRUE(requested.toEverybody);
}

TEST_F(ReportsWebPage, StaysAwayFromFilesAndPrinter)
{
    tick({kListing});
    screen.chkWebPage.ticked = true;
    create(kFile);
    create(kPrinter);
    EXPECT_FALSE(folder.has("POOL.HTML"));
}

TEST_F(ReportsWebPage, HoldsTheMessageBackWhenItIsNotThere)
{
    letTheMailBeWritten();
    tick({kListing});
    screen.chkWebPage.ticked = true;
    std::filesystem::create_directories(folder.path() / "POOL.HTML" / "full");
    create(kEmail);

    EXPECT_THAT(platform.mail.sent, IsEmpty());
    ASSERT_THAT(platform.dialogs.shown, SizeIs(1));
    EXPECT_THAT(platform.dialogs.shown[0].text, HasSubstr("POOL.HTML could not be written."));
    EXPECT_EQ(screen.news().text, "Written to the program's folder: RPTOPT2.TXT.");
}

TEST_F(ReportsWebPage, HoldsTheMessageBackWhenThePersonStopsIt)
{
    letTheMailBeWritten();
    screen.chkWebPage.ticked = true;
    platform.progress.cancelFromWork = 1;
    create(kEmail);

    EXPECT_THAT(platform.mail.sent, IsEmpty());
    EXPECT_EQ(screen.news().text, "The web page was cancelled.");
}

} // namespace
} // namespace tallyhoop::test
