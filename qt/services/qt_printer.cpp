// qt/services/qt_printer.cpp - one printer for the whole session, set up by Qt's dialogs; a PDF is replaced as a whole.
#include "qt/services/qt_printer.h"

#include "files/replace_file.h"
#include "qt/paths.h"
#include "qt/print_pages.h"
#include "qt/services/paper.h"
#include "qt/services/preview_dialog.h"
#include "qt/services/question.h"
#include "qt/text.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <array>

namespace tallyhoop::qt {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr const char* kReportFont = "Courier New";
constexpr int kReportFontPoints = 10;
#ifdef _WIN32
constexpr bool kDialogIsForPrintersOnly = true; ///< Windows' own one; Qt's, which Linux has, can choose a file as well
#else
constexpr bool kDialogIsForPrintersOnly = false;
#endif

// Fonts with exactly its widths, which fontconfig substitutes for it.
bool reportFontIsThere()
{
    const QString resolved = QFontInfo{QFont{QLatin1String{kReportFont}, 10}}.family();
    const std::array faces{"Courier New", "Liberation Mono", "Cousine"};
    return std::ranges::any_of(faces, [&](const char* face) { return resolved == QLatin1String{face}; });
}

/// Whether this is a family of a fixed pitch, and not a name such as "Monospace" that means whatever there is.
bool isFixedPitch(const QString& family)
{
    return QFontDatabase::isFixedPitch(family) && QFontInfo{QFont{family}}.family() == family;
}

/// @returns the family to propose where the report font is missing: the desktop's own fixed-pitch one if it has any;
///          empty when no family is of a fixed pitch
QString fixedPitchFamily()
{
    const QString preferred = QFontInfo{QFontDatabase::systemFont(QFontDatabase::FixedFont)}.family();
    if (isFixedPitch(preferred))
        return preferred;
    const QStringList families = QFontDatabase::families();
    const auto fixed = std::ranges::find_if(families, isFixedPitch);
    return fixed == families.end() ? QString{} : *fixed;
}

QPageLayout::Orientation toQt(ui::Orientation orientation)
{
    return orientation == ui::Orientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

/// @param printerName empty = there is none
QPageSize paperIn(const QString& printerName)
{
    return paperOf(QPrinterInfo::printerInfo(printerName).defaultPageSize());
}

} // namespace

QtPrinter::QtPrinter(Desk& desk) : m_desk{desk} {}

QtPrinter::~QtPrinter() = default;

QPrinter& QtPrinter::printer()
{
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setResolution(kTwipsPerInch);
        m_printer->setCreator(QStringLiteral("Tallyhoop"));
        // Qt would take A4 whatever the printer holds.
        m_printer->setPageSize(paperIn(m_printer->printerName()));
    }
    return *m_printer;
}

std::vector<std::string> QtPrinter::fontNames()
{
    std::vector<std::string> names;
    const QStringList families = QFontDatabase::families();
    for (const QString& family : families)
        names.push_back(fromQString(family));
    if (std::ranges::find(names, kReportFont) == names.end() && reportFontIsThere())
        names.emplace_back(kReportFont);
    return names;
}

bool QtPrinter::choosePrinter()
{
    const Question question{m_desk};
    printer().setDocName({}); // or the dialog would name a file after the printout before
    const QString before = printer().printerName();
    const QPageSize paper = printer().pageLayout().pageSize();
    if (kDialogIsForPrintersOnly) {
        printer().setOutputFormat(QPrinter::NativeFormat); // the first one may have been installed meanwhile
        if (!isThere())
            return true; // so that printing says so; as if cancelled, nothing would
    }
    QPrintDialog dialog{&printer(), m_desk.windowForDialogs()};
    // Every printout is printed whole: no ranges.
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies);
    if (dialog.exec() != QDialog::Accepted) {
        goBackTo(before);
        return false;
    }
    // Another printer may hold other paper; what was chosen in the dialog holds.
    const QString now = printer().printerName();
    if (now != before && printer().pageLayout().pageSize() == paper)
        printer().setPageSize(paperIn(now));
    return true;
}

/// Forgets the file of a PDF, which the dialog notes even when it is cancelled.
/// @param printerName empty = there is none
void QtPrinter::goBackTo(const QString& printerName)
{
    printer().setOutputFileName({});
    if (printerName.isEmpty())
        return;
    printer().setOutputFormat(QPrinter::NativeFormat);
    printer().setPrinterName(printerName);
}

std::optional<ui::PrinterFont> QtPrinter::chooseFont()
{
    const Question question{m_desk};
    QFontDialog dialog{m_desk.windowForDialogs()};
    const QString fixedPitch = fixedPitchFamily();
    dialog.setOption(QFontDialog::DontUseNativeDialog);
    dialog.setOption(QFontDialog::MonospacedFonts, !fixedPitch.isEmpty());
    // After the options: only a change of the font makes the dialog list its families anew.
    dialog.setCurrentFont(
        QFont{fixedPitch.isEmpty() ? QFontInfo{QApplication::font()}.family() : fixedPitch, kReportFontPoints});
    if (dialog.exec() != QDialog::Accepted) {
        printer().setOutputFileName({}); // it was for the printout that is not wanted any more
        return std::nullopt;
    }
    const QFont font = dialog.selectedFont();
    return ui::PrinterFont{fromQString(font.family()), font.pointSizeF(), font.bold(), font.italic()};
}

int QtPrinter::pageWidthTwips(ui::Orientation orientation)
{
    QPageLayout layout = printer().pageLayout();
    layout.setOrientation(toQt(orientation));
    return printableWidthTwips(layout);
}

bool QtPrinter::isThere()
{
    // Without any printer Qt switches to PDF by itself, without a file name.
    return printer().outputFormat() != QPrinter::PdfFormat || !printer().outputFileName().isEmpty();
}

std::filesystem::path QtPrinter::outputFile()
{
    return printer().outputFormat() == QPrinter::PdfFormat ? toPath(printer().outputFileName())
                                                           : std::filesystem::path{};
}

Result<Done> QtPrinter::print(const ui::Printout& printout)
{
    QPrinter& device = printer();
    device.setDocName(toQString(ui::titleOf(printout)));
    // The dialog may have changed the orientation.
    device.setPageOrientation(orientationOf(printout));
    if (!isThere())
        return Failure{"No printer is installed."};
    if (device.outputFormat() == QPrinter::PdfFormat) {
        Result<Done> written = savePdf(printout, toPath(device.outputFileName()));
        device.setOutputFileName({}); // back to the printer: the next printout must not replace this file
        return written;
    }
    if (!paintPages(device, printout) || device.printerState() == QPrinter::Error)
        return Failure{"The printer " + fromQString(device.printerName()) + " does not take the pages."};
    return Done{};
}

Result<Done> QtPrinter::savePdf(const ui::Printout& printout, const std::filesystem::path& file)
{
    const QByteArray bytes = toPdf(printout, printer().pageLayout());
    if (bytes.isEmpty())
        return Failure{"The pages could not be made."};
    // In memory first: Qt does not notice a disk that is full.
    return replaceFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void QtPrinter::preview(const ui::Preview& preview)
{
    const Question question{m_desk};
    QPrinter shown{QPrinter::HighResolution};
    shown.setResolution(kTwipsPerInch);
    shown.setPageLayout(printer().pageLayout());
    PreviewDialog dialog{shown, preview, m_desk.windowForDialogs()};
    // The questions that its commands ask belong in front of it.
    const Desk::Modal above{m_desk, nullptr, &dialog};
    dialog.exec();
}

} // namespace tallyhoop::qt
