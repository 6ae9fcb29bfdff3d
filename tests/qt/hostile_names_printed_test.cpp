// tests/qt/hostile_names_printed_test.cpp - hostile names on paper: the text of the PDF files is read back.
#include "hostile/hostile_names.h"

#include "app/wiring.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "qt/hostile_names_program.h"
#include "qt/paths.h"
#include "qt/services/qt_printer.h"

#include <QProcess>
#include <algorithm>

namespace tallyhoop::qt {
namespace {

class HostileNamesPrinted : public testing::TestWithParam<HostileName>
{
protected:
    const std::string& hostileName() const { return GetParam().text; }

    /// Whether each of its characters has a shape on paper. Unassigned ones and controls have none.
    bool hasShape() const
    {
        return std::ranges::all_of(hostileName(), [](char byte) {
            const QChar character = toQString({&byte, 1}).front();
            return character.isPrint() && character.category() != QChar::Other_Format;
        });
    }

    QString saved(const auto& printout) const
    {
        Desk desk;
        QtPrinter printer{desk};
        EXPECT_TRUE(printer.savePdf(printout, pdf));
        return said(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), fromPath(pdf), QStringLiteral("-")});
    }

    static QString said(const QString& program, const QStringList& arguments)
    {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << program.toStdString() << " (poppler-utils) is needed";
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    int pages() const
    {
        const QStringList about = said(QStringLiteral("pdfinfo"), {fromPath(pdf)}).split(QLatin1Char{'\n'});
        for (const QString& line : about)
            if (line.startsWith(QStringLiteral("Pages:")))
                return line.mid(6).toInt();
        return 0;
    }

    test::ScratchFolder scratch;
    const std::filesystem::path pdf = scratch.path() / "paper.pdf";
};

TEST_P(HostileNamesPrinted, AreALineOfAReport)
{
    const QString text = saved(ui::TextPrintout{hostileName(),
                                                {"the line before", hostileName(), "the line after", "\f", "page two"},
                                                {"Courier New", 10},
                                                ui::Orientation::Portrait,
                                                0});
    EXPECT_TRUE(text.contains(QStringLiteral("the line before")));
    EXPECT_TRUE(text.contains(QStringLiteral("the line after")));
    EXPECT_TRUE(text.contains(QStringLiteral("page two")));
    // A line that begins with a form feed starts a page and is not printed, as in every report.
    EXPECT_EQ(pages(), hostileName().starts_with('\f') ? 3 : 2);
    if (hasShape() && hostileName().size() <= 80) {
        EXPECT_TRUE(text.simplified().contains(toQString(hostileName()).simplified())) << text.toStdString();
    }
}

TEST_P(HostileNamesPrinted, AreTeamsOfThePrintedBoard)
{
    test::FakePlatform platform;
    SharedValues shared;
    test::FakeScreens screens;
    Field field = defaultField();
    field.teams[TeamRow{0}] = hostileName();
    field.finalized = "1";
    scratch.put(file_name::kSetup, setupFile(field));
    const DataFolder folder = scratch.folder();
    BoardScreen board{folder, platform.services, screens, {shared.field, shared.savedPlayer, shared.listedVerdicts}};
    board.load();
    const QString text = saved(ui::DrawingPrintout{hostileName(), board.drawing(), ui::Orientation::Landscape});
    EXPECT_EQ(pages(), 1);
    EXPECT_TRUE(text.contains(QStringLiteral("TEAM2"))) << "the next team";
    if (hasShape()) {
        constexpr qsizetype kSurelyFits = 8;
        EXPECT_TRUE(text.simplified().contains(toQString(hostileName()).left(kSurelyFits).simplified()))
            << text.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesPrinted, testing::ValuesIn(test::hostileNames()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::qt
