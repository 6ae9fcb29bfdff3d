// tests/intake/entry_readers_test.cpp - files and mails as they come in.
#include "intake/entry_readers.h"

#include "base/windows1252.h"
#include "files/selection_file.h"
#include "intake/entry_table.h"
#include "intake/field_2000.h"
#include "intake/mail_reading.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

using test::formText;
using test::upperEntry;
using testing::ElementsAre;
using testing::IsEmpty;

EntryReaders mailReaders() { return {test::field2000(), partsOfMail}; }

std::vector<HandedIn> readNamed(std::string name, std::string bytes)
{
    return mailReaders().read({std::move(name), std::move(bytes), 1000});
}

/// The file that a save on the board makes of an entry.
std::string savedFile(Entry entry)
{
    entry.initials = upperCase(entry.initials);
    return selectionFile(entry);
}

std::string singleRefusal(const std::vector<HandedIn>& read)
{
    return read.size() == 1 && read[0].refusals.size() == 1 ? read[0].refusals[0] : "none, or several";
}

const std::string kHeaders = "From: Ann <ann@home.example>\r\nDate: Thu, 1 Jan 1970 00:01:00 +0000\r\n";

TEST(EntryReaders, KnowTheirFiles)
{
    EXPECT_TRUE(EntryReaders::isRead("a.thc"));
    EXPECT_TRUE(EntryReaders::isRead("A.Eml"));
    EXPECT_TRUE(EntryReaders::isRead("A.TXT"));
    EXPECT_TRUE(EntryReaders::isRead("A.csv"));
    EXPECT_FALSE(EntryReaders::isRead("A.THS"));
    EXPECT_EQ(singleRefusal(readNamed("A.PNG", "x")),
              "Files of this kind are not read: only *.THC, *.EML, *.TXT and *.CSV.");
}

TEST(EntryReaders, ReadSelections)
{
    const std::vector<HandedIn> read = readNamed("x.THC", savedFile(upperEntry()));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry("Ann Smith", "AS"));
    EXPECT_THAT(read[0].refusals, IsEmpty());
    EXPECT_EQ(read[0].origin, (Origin{"x.THC", "", 1, 1000}));
}

TEST(EntryReaders, SayWhatIsWrongWithASelection)
{
    const std::string file = savedFile(upperEntry());
    EXPECT_EQ(singleRefusal(readNamed("x.THC", file + "more\r\n")), "The file has more than 131 lines.");
    EXPECT_EQ(singleRefusal(readNamed("x.THC", "Arizona\r\n")), "The file has fewer than 131 lines.");
    EXPECT_FALSE(readNamed("x.THC", "Arizona\r\n")[0].isLegible);
    EXPECT_EQ(singleRefusal(readNamed("x.THC", test::replaced(file, "*END*", "*end*"))),
              "Line 131 of the file is not the end marker.");
    EXPECT_EQ(singleRefusal(readNamed("x.THC", "")), "The file has fewer than 131 lines.");
}

TEST(EntryReaders, ReadTexts)
{
    const std::vector<HandedIn> read =
        readNamed("x.TXT", formText(upperEntry("Ann", "a")) + formText(upperEntry("Bob", "b")));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[1].entry, upperEntry("Bob", "b"));
    EXPECT_EQ(singleRefusal(readNamed("x.TXT", "Hello")), "There is no entry in this file.");
    EXPECT_EQ(readNamed("Ann_AS.THC.txt", savedFile(upperEntry()))[0].entry, upperEntry("Ann Smith", "AS"))
        << "a selection that was renamed";
}

TEST(EntryReaders, ReadPastedText)
{
    EXPECT_EQ(mailReaders().readPasted(test::exampleText())[0].entry.name, "Zo\xE9 O\x92Neil");
    EXPECT_EQ(mailReaders().readPasted(fromUtf8(test::exampleText()))[0].entry.name, "Zo\xE9 O\x92Neil");
    EXPECT_EQ(mailReaders().readPasted(test::exampleText())[0].origin, Origin{});
    EXPECT_EQ(singleRefusal(mailReaders().readPasted("")), "There is no entry in this text.");
    EXPECT_EQ(singleRefusal(mailReaders().readPasted(std::string((1u << 20) + 1, ' '))),
              "The text is larger than 1 MB.");
}

TEST(EntryReaders, ReadSelectionsThatAnotherProgramSavedAgain)
{
    const std::string file = savedFile(upperEntry("Zo\xE9 O\x92Neil \x80", "z\xF1"));
    const Entry expected = upperEntry("Zo\xE9 O\x92Neil \x80", "Z\xD1");
    EXPECT_EQ(readNamed("x.THC", file)[0].entry, expected);
    EXPECT_EQ(mailReaders().readPasted(toUtf8(file)).at(0).entry, expected) << "the clipboard is UTF-8";
    EXPECT_EQ(readNamed("x.TXT", toUtf8(file)).at(0).entry, expected);
    EXPECT_EQ(readNamed("x.TXT", "\xEF\xBB\xBF" + toUtf8(file)).at(0).entry, expected);
    EXPECT_EQ(readNamed("x.THC", "\xEF\xBB\xBF" + toUtf8(file)).at(0).entry, expected);
    EXPECT_EQ(readNamed("x.THC", test::utf16Of(file)).at(0).entry, expected) << "Notepad's \"Unicode\"";
    EXPECT_EQ(readNamed("x.TXT", test::utf16Of(file)).at(0).entry, expected);
    EXPECT_EQ(readNamed("x.TXT", test::utf16Of(fromUtf8(test::exampleText()))).at(0).entry.name, "Zo\xE9 O\x92Neil");
}

TEST(EntryReaders, RefuseASelectionWithALetterThatFilesCannotHold)
{
    const std::string file = savedFile(upperEntry("?ukasz", "L"));
    const std::string text = test::replaced(file, "?ukasz", "\xC5\x81ukasz");
    EXPECT_EQ(singleRefusal(mailReaders().readPasted(text)),
              "Line 129 of the file has a letter that the program's files cannot hold, at place 1: \"?ukasz\".");
    EXPECT_EQ(singleRefusal(readNamed("x.THC", "\xEF\xBB\xBF" + text)),
              "Line 129 of the file has a letter that the program's files cannot hold, at place 1: \"?ukasz\".");
    EXPECT_THAT(mailReaders().readPasted(file).at(0).refusals, IsEmpty()) << "a question mark is one of theirs";
}

TEST(EntryReaders, ReadTables)
{
    const std::vector<Entry> entries{upperEntry(), upperEntry("Bob", "B")};
    const std::vector<HandedIn> read = readNamed("x.CSV", entryTable(entries, test::field2000()));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[1].entry, upperEntry("Bob", "B"));
}

TEST(EntryReaders, ReadTablesThatWerePasted)
{
    const std::vector<Entry> entries{upperEntry(), upperEntry("Bob", "B")};
    const std::string table = entryTable(entries, test::field2000());
    ASSERT_EQ(mailReaders().readPasted(table).size(), 2u);
    EXPECT_EQ(mailReaders().readPasted(table)[1].entry, upperEntry("Bob", "B"));
    std::string cells = "Ann Smith\tas\t142"; // as a spreadsheet's copy has them
    for (const Position position : gamePositions())
        cells += '\t' + test::upperTeamsWin().at(position);
    ASSERT_EQ(mailReaders().readPasted(cells + "\r\n").size(), 1u);
    EXPECT_EQ(mailReaders().readPasted(cells)[0].entry, upperEntry());
    EXPECT_EQ(mailReaders().readPasted(cells)[0].origin.number, 1);
    EXPECT_EQ(readNamed("x.TXT", cells).at(0).entry, upperEntry());
    EXPECT_EQ(singleRefusal(mailReaders().readPasted("a,b\n1\t2\n")), "There is no entry in this text.");
}

TEST(EntryReaders, ReadMails)
{
    const std::vector<HandedIn> read = readNamed("x.EML", kHeaders + "\r\n" + formText(upperEntry(), ""));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry());
    EXPECT_EQ(read[0].email, "ann@home.example");
    EXPECT_EQ(read[0].origin, (Origin{"x.EML", "ann@home.example", 1, 60})) << "the mail's date, not the file's";
}

TEST(EntryReaders, ReadMailsThatArePagesOnly)
{
    const std::string page = "<div>" + test::replaced(formText(upperEntry()), "\n", "</div>\n<div>") + "</div>";
    const std::vector<HandedIn> read =
        readNamed("x.EML", kHeaders + "Content-Type: text/html; charset=utf-8\r\n\r\n" + page);
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry());
}

TEST(EntryReaders, TakeAnEntryOnceThatAMailBringsTwice)
{
    const std::string text = formText(upperEntry());
    const std::string mail = kHeaders +
                             "Content-Type: multipart/mixed; boundary=o\r\n\r\n"
                             "--o\r\nContent-Type: multipart/alternative; boundary=i\r\n\r\n"
                             "--i\r\nContent-Type: text/plain\r\n\r\n" +
                             text + "\r\n--i\r\nContent-Type: text/html\r\n\r\n<p>" + text +
                             "\r\n--i--\r\n"
                             "--o\r\nContent-Type: application/octet-stream; name=\"Ann Smith_as.THC\"\r\n\r\n" +
                             savedFile(upperEntry()) + "\r\n--o--\r\n";
    EXPECT_EQ(readNamed("x.EML", mail).size(), 1u);
}

TEST(EntryReaders, ReadWhatIsAttached)
{
    const std::string mail = kHeaders +
                             "Content-Type: multipart/mixed; boundary=o\r\n\r\n--o\r\n\r\nsee attachment\r\n"
                             "--o\r\nContent-Disposition: attachment; filename=\"..\\\\..\\\\x.thc\"\r\n\r\n" +
                             savedFile(upperEntry()) + "\r\n--o--\r\n";
    const std::vector<HandedIn> read = readNamed("x.EML", mail);
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry("Ann Smith", "AS"));
    EXPECT_EQ(read[0].email, "ann@home.example");
    EXPECT_EQ(read[0].origin.file, "x.EML");
    EXPECT_THAT(read[0].refusals, IsEmpty());
}

TEST(EntryReaders, ReadMailsAttachedToMailsAFewTimesOver)
{
    std::string mail = kHeaders + "\r\n" + formText(upperEntry());
    const auto wrap = [](const std::string& inside) {
        return "From: boss@example.org\r\nContent-Type: application/octet-stream; name=\"f.eml\"\r\n\r\n" + inside;
    };
    mail = wrap(wrap(mail));
    ASSERT_EQ(readNamed("x.EML", mail).size(), 1u);
    EXPECT_EQ(readNamed("x.EML", mail)[0].entry, upperEntry());
    EXPECT_EQ(singleRefusal(readNamed("x.EML", wrap(mail))), "Mails are attached to mails too many times over.");
}

TEST(EntryReaders, SayWhatOfAMailIsTooDeepToBeRead)
{
    std::string mail = kHeaders;
    for (int i = 0; i < 25; ++i) {
        const std::string boundary = "b" + std::to_string(i);
        mail += "Content-Type: multipart/mixed; boundary=" + boundary + "\r\n\r\n--" + boundary + "\r\n";
        if (i == 0)
            mail += "\r\n" + formText(upperEntry()) + "\r\n--" + boundary + "\r\n";
    }
    const std::vector<HandedIn> read = readNamed("x.EML", mail + "\r\n" + formText(upperEntry("Bob", "b")));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].entry, upperEntry());
    EXPECT_THAT(read[1].refusals,
                ElementsAre("Parts of the mail are inside one another more than 20 times over: they are not read."));
    EXPECT_EQ(read[1].origin.sender, "ann@home.example");
}

TEST(EntryReaders, ReadWhatIsAttachedWithoutAName)
{
    const std::string headers = kHeaders + "Content-Type: application/octet-stream\r\n\r\n";
    const std::vector<HandedIn> read = readNamed("x.EML", headers + savedFile(upperEntry()));
    ASSERT_EQ(read.size(), 1u);
    EXPECT_EQ(read[0].entry, upperEntry("Ann Smith", "AS"));
    EXPECT_EQ(read[0].email, "ann@home.example");
    EXPECT_EQ(singleRefusal(readNamed("x.EML", headers + "x")),
              "There is no entry in this mail. Attached: a file without a name.");
}

TEST(EntryReaders, SayWhatAMailWithoutEntryBringsInstead)
{
    EXPECT_EQ(singleRefusal(readNamed("x.EML", kHeaders + "\r\nHello\r\n")), "There is no entry in this mail.");
    EXPECT_EQ(singleRefusal(readNamed("x.EML", kHeaders + "Content-Type: text/html; name=ENTRYFORM.HTML\r\n\r\n<p>")),
              "There is no entry in this mail. Attached: \"ENTRYFORM.HTML\".");
}

TEST(EntryReaders, RefuseAnAttachmentThatIsTooLarge)
{
    const std::string large(1'100'000, 'x');
    EXPECT_EQ(singleRefusal(readNamed("x.TXT", large)), "The file is larger than 1 MB.");
}

} // namespace
} // namespace tallyhoop
