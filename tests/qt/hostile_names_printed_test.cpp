// tests/qt/hostile_names_printed_test.cpp - hostile names on paper: the text of the PDF files is read back.
#include "hostile/hostile_names.h"

#include "app/wiring.h"
#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/setup_file.h"
#include "qt/desk.h"
#include "qt/poppler.h"
#include "qt/services/qt_printer.h"
#include "qt/text.h"
#include "screens/board/board_screen.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

using tallyhoop::test::HostileName;

/// Whether each of its characters has a shape on paper. Unassigned ones and controls have none.
bool hasShape(const HostileName& hostile)
{
    return std::ranges::all_of(hostile.text, [](char byte) {
        const QChar character = toQString({&byte, 1}).front();
        return character.isPrint() && character.category() != QChar::Other_Format;
    });
}

class HostileNamesPrinted : public testing::Test
{
protected:
    /// The text of each page of a PDF file, runs of blanks as one.
    QStringList pagesOf(const auto& printout) const
    {
        Desk desk;
        QtPrinter printer{desk};
        const std::filesystem::path pdf = scratch.path() / "paper.pdf";
        EXPECT_TRUE(printer.savePdf(printout, pdf));
        QStringList pages =
            test::saidByPoppler(QStringLiteral("pdftotext"), {QStringLiteral("-layout")}, pdf).split(QLatin1Char{'\f'});
        EXPECT_EQ(pages.takeLast(), QString{}) << "a page ends with a form feed";
        for (QString& page : pages)
            page = page.simplified();
        return pages;
    }

    tallyhoop::test::ScratchFolder scratch;
};

TEST_F(HostileNamesPrinted, AreALineOfAReport)
{
    ui::TextPrintout report{"<b>&%1", {}, {"Courier New", 10}, ui::Orientation::Portrait, 0};
    for (const HostileName& hostile : tallyhoop::test::hostileNames())
        for (const std::string& line :
             {"before " + hostile.kind, hostile.text, "after " + hostile.kind, std::string{"\f"}})
            report.lines.push_back(line);

    const QStringList pages = pagesOf(report);

    qsizetype page = 0;
    ASSERT_EQ(pages.size(), static_cast<qsizetype>(tallyhoop::test::hostileNames().size()) + 1);
    for (const HostileName& hostile : tallyhoop::test::hostileNames()) {
        const QString before = toQString("before " + hostile.kind);
        const QString after = toQString("after " + hostile.kind);
        EXPECT_TRUE(pages[page].startsWith(before)) << pages[page].toStdString();
        if (hostile.text.starts_with('\f')) { // starts a page and is not printed, as in every report
            EXPECT_EQ(pages[page++], before);
        }
        EXPECT_TRUE(pages[page].endsWith(after)) << pages[page].toStdString();
        if (hasShape(hostile) && hostile.text.size() <= 80) {
            EXPECT_EQ(pages[page], (before + u' ' + toQString(hostile.text) + u' ' + after).simplified());
        }
        ++page;
    }
}

TEST_F(HostileNamesPrinted, AreTeamsOfThePrintedBoard)
{
    tallyhoop::test::FakePlatform platform;
    SharedValues shared;
    tallyhoop::test::FakeScreens screens;
    Field field = defaultField();
    for (std::size_t i = 0; i < tallyhoop::test::hostileNames().size(); ++i)
        field.teams[allTeamRows()[i]] = tallyhoop::test::hostileNames()[i].text;
    field.finalized = "1";
    scratch.put(file_name::kSetup, setupFile(field));
    const DataFolder folder = scratch.folder();
    BoardScreen board{
        folder,
        platform.services,
        screens,
        {shared.field, shared.savedPlayer, shared.listedPlayer, shared.folderTroubleSaid, shared.droppedFiles}};
    board.load();

    const QStringList pages = pagesOf(board.printout());

    ASSERT_EQ(pages.size(), 1);
    EXPECT_TRUE(pages[0].contains(QStringLiteral("TEAM64"))) << "the last team";
    for (const HostileName& hostile : tallyhoop::test::hostileNames()) {
        constexpr qsizetype kSurelyFits = 8;
        if (hasShape(hostile)) {
            EXPECT_TRUE(pages[0].contains(toQString(hostile.text).left(kSurelyFits).simplified())) << hostile.kind;
        }
    }
}

} // namespace
} // namespace tallyhoop::qt
