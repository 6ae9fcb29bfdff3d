// tests/screens/import/import_screen_reading_test.cpp - files, folders, pasted texts and drops become rows.
#include "intake/limits.h"
#include "screens/import/import_fixture.h"

namespace tallyhoop::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

using ImportReading = ImportTest;

TEST_F(ImportReading, ShowsAnEmptyListAndWhatToDo)
{
    open();
    EXPECT_EQ(screen->lblCounts.text, "Nothing is handed in yet.");
    EXPECT_THAT(screen->grdEntries.emptyNote, StartsWith("Choose files"));
    EXPECT_FALSE(screen->cmdReadText.enabled);
    EXPECT_FALSE(screen->cmdImport.enabled);
    EXPECT_FALSE(screen->cmdTickAll.enabled);
    EXPECT_FALSE(screen->txtSummary.visible);
    EXPECT_EQ(screen->helpTopic(), "import");
}

TEST_F(ImportReading, ReadsSeveralFilesAtOnce)
{
    open();
    choose({inbox.put("a.THC", saved(upperEntry())),
            inbox.put("b.eml", mailFrom("bo@example.org", upperEntry("Bo", "b", "51")))});
    EXPECT_THAT(platform.dialogs.fileChoices,
                ElementsAre(testing::Field(&ui::FileChoice::pattern, "*.THC *.EML *.TXT *.CSV")));
    EXPECT_THAT(screen->grdEntries.rows, ElementsAre(ElementsAre("ticked", "1", "Ann Smith", "AS", "Ann Smith_AS.THC",
                                                                 "63 of 63", "142", "a.THC", "New."),
                                                     ElementsAre("ticked", "2", "Bo", "b", "Bo_b.THC", "63 of 63", "51",
                                                                 "bo@example.org", "New.")));
    EXPECT_EQ(screen->lblCounts.text, "2 entries: 2 new.");
    EXPECT_EQ(screen->status, "2 of 2 ticked");
    EXPECT_EQ(screen->news().text, "2 entries: 2 new.");
    EXPECT_EQ(screen->focused, &screen->grdEntries);
    EXPECT_EQ(platform.progress.begun, platform.progress.ended);
}

TEST_F(ImportReading, ReadsAFolderByName)
{
    inbox.put("b.THC", saved(upperEntry("Bo", "B")));
    inbox.put("a.txt", formText(upperEntry("Al", "A")));
    inbox.put("readme.doc", "no entry");
    open();
    platform.dialogs.pick(inbox.path());
    click(screen->cmdChooseFolder);
    EXPECT_THAT(column(EntryColumn::Name), ElementsAre("Al", "Bo"));
}

TEST_F(ImportReading, SaysThatAFolderHasNothingToRead)
{
    open();
    platform.dialogs.pick(inbox.path());
    click(screen->cmdChooseFolder);
    EXPECT_THAT(screen->news().text, StartsWith("There is no file of the kinds that are read"));
}

TEST_F(ImportReading, TheNextChoiceBeginsWhereTheLastOneWas)
{
    open();
    choose({inbox.put("a.THC", saved(upperEntry()))});
    platform.dialogs.pick(std::nullopt);
    click(screen->cmdChooseFolder);
    ASSERT_EQ(platform.dialogs.fileChoices.size(), 2u);
    EXPECT_EQ(platform.dialogs.fileChoices[0].folder, pool.path());
    EXPECT_EQ(platform.dialogs.fileChoices[1].folder, inbox.path());
}

TEST_F(ImportReading, NothingHappensWhenNoFileIsChosen)
{
    open();
    choose({});
    platform.dialogs.pick(std::nullopt);
    click(screen->cmdChooseFolder);
    EXPECT_EQ(screen->news().text, "");
    EXPECT_THAT(screen->grdEntries.rows, IsEmpty());
}

TEST_F(ImportReading, ReadsManyEntriesFromAPastedText)
{
    open();
    paste("Hello,\n\n" + withEachLine("> ", formText(upperEntry("Al", "A"))) + "\nand\n" +
          formText(upperEntry("Bo", "B")));
    EXPECT_THAT(column(EntryColumn::Name), ElementsAre("Al", "Bo"));
    EXPECT_THAT(column(EntryColumn::Sender), ElementsAre("ann@example.org", "ann@example.org"));
    EXPECT_EQ(screen->txtPasted.text, "") << "a text that was read";
    EXPECT_FALSE(screen->cmdReadText.enabled);
}

TEST_F(ImportReading, KeepsATextOfWhichNothingCanBeImported)
{
    open();
    const std::string letter = "Dear organiser,\nI have no time.\n";
    paste(letter);
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("")) << "refused";
    EXPECT_EQ(screen->txtPasted.text, letter);
    EXPECT_TRUE(screen->cmdReadText.enabled) << "to be read again once it is mended";
}

TEST_F(ImportReading, ForgetsATextOfWhichSomethingCanBeImported)
{
    open();
    paste(formText(upperEntry("Al", "A")) + "\n" + formText(upperEntry("", "B")));
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("ticked", "")) << "the second has no name";
    EXPECT_EQ(screen->txtPasted.text, "") << "what is wrong is said in the list";
}

TEST_F(ImportReading, KeepsATextWhoseReadingWasStopped)
{
    open();
    platform.progress.cancelAt = 1;
    paste(formText(upperEntry()));
    EXPECT_EQ(screen->txtPasted.text, formText(upperEntry()));
    EXPECT_THAT(screen->grdEntries.rows, IsEmpty());
}

TEST_F(ImportReading, ATextOfMoreThanAMegabyteIsNotTaken)
{
    open();
    EXPECT_FALSE(screen->pasted(screen->txtPasted, std::string(kMostBytesHandedIn, 'x')));
    screen->txtPasted.text = "x";
    EXPECT_TRUE(screen->pasted(screen->txtPasted, std::string(kMostBytesHandedIn, 'x')));
    EXPECT_THAT(screen->news().text, HasSubstr("1 MB"));
}

TEST_F(ImportReading, ReadsWhatWasDroppedOntoTheBoard)
{
    dropped = {inbox.put("a.THC", saved(upperEntry()))};
    open();
    EXPECT_THAT(column(EntryColumn::Name), ElementsAre("Ann Smith"));
    EXPECT_THAT(dropped, IsEmpty()) << "it would be read once more";
}

TEST_F(ImportReading, ReadsWhatIsDroppedOntoTheScreen)
{
    open();
    EXPECT_TRUE(screen->takesFiles());
    screen->filesDropped({inbox.put("a.THC", saved(upperEntry())), inbox.path()});
    screen->showState();
    EXPECT_THAT(column(EntryColumn::Name), ElementsAre("Ann Smith", "Ann Smith")) << "the file, and its folder";
    EXPECT_THAT(column(EntryColumn::Words), ElementsAre("New. The same as row 2.", "New."));
}

TEST_F(ImportReading, AddsToTheListAndGoesToTheFirstNewEntry)
{
    open();
    paste(formText(upperEntry("Al", "A")));
    paste(formText(upperEntry("Bo", "B")));
    EXPECT_THAT(column(EntryColumn::Name), ElementsAre("Al", "Bo"));
    EXPECT_EQ(screen->lblEntry.text, "Row 2: Bo");
    EXPECT_EQ(screen->news().text, "1 entry was added. 2 entries: 2 new.");
}

TEST_F(ImportReading, StoppingWhileFilesAreReadAddsNothing)
{
    open();
    paste(formText(upperEntry("Al", "A")));
    platform.progress.cancelAt = 1;
    choose({inbox.put("a.THC", saved(upperEntry())), inbox.put("b.THC", saved(upperEntry("Bo", "B")))});
    EXPECT_THAT(column(EntryColumn::Name), ElementsAre("Al"));
    EXPECT_EQ(platform.progress.begun, 2) << "the text was looked at, the files only read";
    EXPECT_EQ(screen->news().text, "Stopped: nothing was added to the list.");
}

TEST_F(ImportReading, StoppingWhileEntriesAreComparedAddsNothing)
{
    open();
    platform.progress.cancelFromWork = 2; // the first one reads
    choose({inbox.put("a.THC", saved(upperEntry())), inbox.put("b.THC", saved(upperEntry("Bo", "B")))});
    EXPECT_THAT(screen->grdEntries.rows, IsEmpty());
    EXPECT_EQ(screen->news().text, "Stopped: nothing was added to the list.");
}

TEST_F(ImportReading, WhatIsNoEntryIsARefusedRow)
{
    open();
    choose({inbox.put("letter.txt", "Dear organiser,\r\nI have no time.\r\n")});
    EXPECT_THAT(column(EntryColumn::Tick), ElementsAre("")) << "no box";
    EXPECT_THAT(column(EntryColumn::Sender), ElementsAre("letter.txt"));
    EXPECT_EQ(screen->lblEntry.text, "Row 1: letter.txt");
    EXPECT_THAT(screen->txtDetails.text, StartsWith("Refused:\r\n- "));
    EXPECT_FALSE(screen->cmdImport.enabled);
}

TEST_F(ImportReading, EmptyingTheListChangesNoFile)
{
    open();
    paste(formText(upperEntry()));
    click(screen->cmdEmptyList);
    EXPECT_THAT(screen->grdEntries.rows, IsEmpty());
    EXPECT_EQ(screen->lblEntry.text, "No entry is chosen");
    EXPECT_EQ(screen->focused, &screen->cmdChooseFiles);
    EXPECT_THAT(folder.files(file_name::kSelectionExtension), IsEmpty());
}

} // namespace
} // namespace tallyhoop::test
