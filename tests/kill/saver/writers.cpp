// tests/kill/saver/writers.cpp - presses and typing for each file, different in every round.
#include "writers.h"

#include "hands.h"

#include <QApplication>
#include <QFile>
#include <QSaveFile>
#include <array>
#include <string>

namespace saver {
namespace {

void nothing() {}

void saveSetup(int round)
{
    type("TxtInfo_0", mark(round));
    type("TxtInfo_4", mark(round));
    choose("mnuSaveStartingField");
}

void saveBoard(int round)
{
    constexpr int kLeast = 100;
    type("txtFinalPoints", QString::number(kLeast + round % kLeast));
    choose("mnuSaveSelection");
}

void addPlayer(int round)
{
    choose("mnuEditNames");
    type("txtName", mark(round));
    click("cmdAdd");
}

void addTeam(int /*round*/)
{
    choose("mnuSetupOptions");
    click("cmdAddName"); // the box that asks for it is answered with the round's mark
    choose("mnuEnd");
}

/// Puts the bracket of the sample pool's player into a file, with a total that differs from round to round.
/// @param name empty = the player's own
void putSelection(const QString& path, const QByteArray& name, int round)
{
    constexpr int kLeast = 100;
    constexpr int kName = 4; // from the end: total, end marker, and nothing after its line end
    constexpr int kTotal = 3;
    QFile known(QApplication::applicationDirPath() + QStringLiteral("/Demo Prophet_DP.THC"));
    QSaveFile put(path);
    if (!known.open(QIODevice::ReadOnly) || !put.open(QIODevice::WriteOnly)) {
        qFatal("saver: no selection can be made");
    }
    QByteArrayList lines = known.readAll().split('\n');
    const auto lineFromEnd = [&lines](int count) -> QByteArray& { return lines[lines.size() - count]; };
    if (!name.isEmpty()) {
        lineFromEnd(kName) = name + '\r';
    }
    lineFromEnd(kTotal) = QByteArray::number(kLeast + round % kLeast) + '\r';
    put.write(lines.join('\n'));
    put.commit();
}

/// A new player: the selection is written, and the player list.
void importSelection(int round)
{
    const QString handedIn = QApplication::applicationDirPath() + QStringLiteral("/../handed-in.THC");
    putSelection(handedIn, "Evans", round);
    drop("grdEntries", handedIn);
    click("cmdTickAll"); // late: the pool has results
    click("cmdImport");
}

void exportSelections(int round)
{
    putSelection(QApplication::applicationDirPath() + QStringLiteral("/Demo Prophet_DP.THC"), {}, round);
    choose("mnuExportSelections");
}

void saveWebPage(int round)
{
    putSelection(QApplication::applicationDirPath() + QStringLiteral("/Demo Prophet_DP.THC"), {}, round);
    click("cmdWebPage");
}

/// Damages the list, so that the program makes an annotated copy.
void damagePlayerList(int round)
{
    QFile intact(QApplication::applicationDirPath() + QStringLiteral("/intact.csv"));
    QSaveFile list(QApplication::applicationDirPath() + QStringLiteral("/PLAYERNAMES.CSV"));
    if (!intact.open(QIODevice::ReadOnly) || !list.open(QIODevice::WriteOnly)) {
        qFatal("saver: the player list cannot be damaged");
    }
    list.write(intact.readAll() + mark(round).toLatin1() + "\r\n");
    list.commit();
    choose("mnuEditNames");
    click("cmdCancel");
}

template <char Report, char Destination>
void prepareReport()
{
    choose("mnuReports");
    click((std::string("chkOptions_") + Report).c_str());
    click((std::string("optDestination_") + Destination).c_str());
}

void makeReport(int round)
{
    type("txtReportTitle", mark(round));
    click("cmdPrintSelections");
}

/// Each round names other chances in the report.
void saveOutlook(int round)
{
    constexpr int kKinds = 3;
    click(("optChances_" + std::to_string(round % kKinds)).c_str());
    click("cmdSaveReport");
}

/// An amount of three digits, another one in each round.
QString amountOf(int round)
{
    constexpr int kLeast = 100;
    return QString::number(kLeast + round % kLeast);
}

void savePrizes(int round)
{
    type("txtEntryFee", amountOf(round));
    click("cmdSave");
}

void saveFinalSheet(int round)
{
    type("txtPrize_0", amountOf(round));
    click("cmdFinalSheet");
}

const std::array<Writer, 25> kWriters{{
    {"nothing", nothing, [](int) {}},
    {"setup", [] { choose("mnuSetupOptions"); }, saveSetup},
    {"results", [] { choose("mnuGameResults"); }, saveBoard},
    {"selection", [] { choose("mnuOpenSelection"); }, saveBoard},
    {"players", nothing, addPlayer},
    {"annotated", nothing, damagePlayerList},
    {"teams", nothing, addTeam},
    {"import", [] { choose("mnuImport"); }, importSelection},
    {"table", nothing, exportSelections},
    {"entryform", nothing, [](int) { choose("mnuEntryForm"); }}, // the dialog is answered with the round's mark
    {"report1", prepareReport<'0', '1'>, makeReport},
    {"report2", prepareReport<'1', '1'>, makeReport},
    {"report3", prepareReport<'2', '1'>, makeReport},
    {"report4", prepareReport<'3', '1'>, makeReport},
    {"report5", prepareReport<'4', '1'>, makeReport},
    {"report6", prepareReport<'5', '1'>, makeReport},
    {"report7", prepareReport<'6', '1'>, makeReport},
    {"outlook", [] { choose("mnuOutlook"); }, saveOutlook},
    {"prizes", [] { choose("mnuMoney"); }, savePrizes},
    {"final", [] { choose("mnuMoney"); }, saveFinalSheet},
    {"webpage", [] { choose("mnuReports"); }, saveWebPage},
    {"message", prepareReport<'1', '3'>, makeReport},
    {"pdf", [] { choose("mnuReports"); }, [](int) { click("cmdSaveBoardPdf"); }},
    {"backup", nothing, [](int) { choose("mnuDemoSet"); }},
    {"copy", nothing, [](int) { choose("mnuBackUp"); }},
}};

} // namespace

const Writer* findWriter(const QString& name)
{
    for (const Writer& writer : kWriters) {
        if (name == QLatin1String(writer.name)) {
            return &writer;
        }
    }
    return nullptr;
}

QString mark(int round)
{
    constexpr int kLengths = 7;
    return QStringLiteral("MARK%1").arg(round, 6, 10, QLatin1Char('0')) + QString(round % kLengths, QLatin1Char('x'));
}

} // namespace saver
