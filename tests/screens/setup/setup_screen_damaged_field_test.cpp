// tests/screens/setup/setup_screen_damaged_field_test.cpp - a field that was not read whole is not lost.
#include "files/setup_file.h"
#include "screens/setup/setup_fixture.h"

namespace tallyhoop::test {
namespace {

class SetupWithDamagedField : public SetupFixture
{
protected:
    const std::string backup = "Backup 2001-03-05 101530"; // the moment of the fake clock

    /// Real teams, so that the status says nothing about the teams.
    static Field realField()
    {
        Field real = defaultField();
        for (const TeamRow row : allTeamRows())
            real.teams[row] = "Real " + std::to_string(static_cast<int>(row) + 1);
        return real;
    }

    /// Opens the setup on this file, without a message, and saves another title.
    void saveOver(const std::string& bytes)
    {
        files.put("POOLSTART.THS", bytes);
        SetupScreen& screen = loaded();
        EXPECT_TRUE(dialogs().shown.empty());
        screen.TxtInfo[0].text = "Another title";
        screen.mnuSaveStartingField.click();
    }

    void expectKept(const std::string& bytes)
    {
        EXPECT_EQ(files.get(backup + "/POOLSTART.THS"), bytes);
        ASSERT_EQ(dialogs().shown.size(), 1u);
        EXPECT_NE(dialogs().shown.front().text.find((files.path() / backup).string()), std::string::npos);
        EXPECT_EQ(readField(folder).value.title, "Another title");
    }
};

TEST_F(SetupWithDamagedField, AFileWithFarTooManyLinesIsKeptBeforeItIsReplaced)
{
    std::string bytes = setupFile(realField());
    for (int line = 0; line < 7; ++line) // 101 lines after the start marker would do
        bytes += "appended\r\n";
    saveOver(bytes);
    expectKept(bytes);
}

TEST_F(SetupWithDamagedField, AFileThatIsFarTooLargeIsKeptBeforeItIsReplaced)
{
    Field real = realField();
    real.title = std::string(1u << 20, 'x');
    saveOver(setupFile(real));
    expectKept(setupFile(real));
}

TEST_F(SetupWithDamagedField, ACommentThatIsFarTooLongIsShownInPartAndKeptBeforeItIsReplaced)
{
    Field real = realField();
    real.comment2 = std::string(500'000, 'x');
    saveOver(setupFile(real));
    EXPECT_EQ(made->txtComment2.text, std::string(32'000, 'x')) << "what takes no time to show";
    expectKept(setupFile(real));
}

TEST_F(SetupWithDamagedField, ASoundFieldIsReplacedWithoutAWord)
{
    saveOver(setupFile(realField()));
    EXPECT_FALSE(files.has(backup));
    EXPECT_TRUE(dialogs().shown.empty());
}

TEST_F(SetupWithDamagedField, AFileWithAsManyLinesAsTheFormatAllowsIsReplacedWithoutAWord)
{
    std::string bytes = setupFile(realField());
    for (int line = 0; line < 5; ++line) // the field and its end marker are 95 lines after the start marker
        bytes += "appended\r\n";
    saveOver(bytes + "*END*\r\n"); // 101
    EXPECT_FALSE(files.has(backup));
    EXPECT_TRUE(dialogs().shown.empty());
    EXPECT_EQ(made->txtRegion[TeamRow{0}].text, "Real 1");
}

TEST_F(SetupWithDamagedField, TheStatusSaysSoUntilItIsSaved)
{
    Field real = realField();
    real.comment1 = std::string(32'001, 'x');
    files.put("POOLSTART.THS", setupFile(real));
    SetupScreen& screen = loaded();
    EXPECT_EQ(screen.status,
              "There are no unsaved changes.  The field could not be read whole; a save keeps the old file.");
    screen.mnuSaveStartingField.click();
    settle();
    EXPECT_EQ(screen.status, "There are no unsaved changes.");
}

} // namespace
} // namespace tallyhoop::test
