// qt/services/qt_printer.cpp - one printer for the whole session, set up by Qt's dialogs; a PDF is replaced as a whole.
#include "qt/services/qt_printer.h"

#include "files/replace_file.h"
#include "qt/paths.h"
#include "qt/print_pages.h"
#include "qt/services/paper.h"
#include "qt/services/question.h"
#include "qt/text.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QScreen>
#include <algorithm>
#include <array>

namespace tallyhoop::qt {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr const char* kReportFont = "Courier New";
constexpr int kReportFontPoints = 10;

// Fonts with exactly its widths, which fontconfig substitutes for it.
bool reportFontIsThere()
{
    const QString resolved = QFontInfo{QFont{QLatin1String{kReportFont}, 10}}.family();
    const std::array faces{"Courier New", "Liberation Mono", "Cousine"};
    return std::ranges::any_of(faces, [&](const char* face) { return resolved == QLatin1String{face}; });
}

/// @returns the family to propose where the report font is missing: the desktop's own fixed-pitch one if it has any;
///          empty when no family is of a fixed pitch
QString fixedPitchFamily()
{
    const QString preferred = QFontInfo{QFontDatabase::systemFont(QFontDatabase::FixedFont)}.family();
    if (QFontDatabase::isFixedPitch(preferred))
        return preferred;
    const QStringList families = QFontDatabase::families();
    const auto fixed =
        std::ranges::find_if(families, [](const QString& family) { return QFontDatabase::isFixedPitch(family); });
    return fixed == families.end() ? QString{} : *fixed;
}

QPageLayout::Orientation toQt(ui::Orientation orientation)
{
    return orientation == ui::Orientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
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
        m_printer->setPageSize(paperOf(QPrinterInfo::printerInfo(m_printer->printerName())));
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
        printer().setPageSize(paperOf(QPrinterInfo::printerInfo(now)));
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

template <class Printout>
Result<Done> QtPrinter::printOut(const Printout& printout)
{
    QPrinter& device = printer();
    device.setDocName(toQString(printout.title));
    // The dialog may have changed the orientation.
    device.setPageOrientation(toQt(printout.orientation));
    if (device.outputFormat() == QPrinter::PdfFormat) {
        // Without any printer Qt switches to PDF by itself, without a file name.
        if (device.outputFileName().isEmpty())
            return Failure{"No printer is installed."};
        Result<Done> written = writePdf(printout, toPath(device.outputFileName()));
        device.setOutputFileName({}); // back to the printer: the next printout must not replace this file
        return written;
    }
    if (!paintPages(device, printout) || device.printerState() == QPrinter::Error)
        return Failure{"The printer " + fromQString(device.printerName()) + " does not take the pages."};
    return Done{};
}

template <class Printout>
Result<Done> QtPrinter::writePdf(const Printout& printout, const std::filesystem::path& file)
{
    const QByteArray bytes = toPdf(printout, printer().pageLayout());
    if (bytes.isEmpty())
        return Failure{"The pages could not be made."};
    // In memory first: Qt does not notice a disk that is full.
    return replaceFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

template <class Printout>
void QtPrinter::showPreview(const Printout& printout)
{
    const Question question{m_desk};
    QPrinter shown{QPrinter::HighResolution};
    shown.setResolution(kTwipsPerInch);
    shown.setPageLayout(printer().pageLayout());
    shown.setPageOrientation(toQt(printout.orientation));
    QWidget* parent = m_desk.windowForDialogs();
    QPrintPreviewDialog dialog{&shown, parent};
    dialog.setWindowTitle(QStringLiteral("Preview - ") + titleText(toQString(printout.title)));
    const auto actions = dialog.findChildren<QAction*>();
    for (QAction* action : actions)
        if (action->text() == QLatin1String{"Print"}) // it would print without our checks
            action->setVisible(false);
    // Qt gives its page number and its zoom no accessible name.
    for (QLineEdit* number : dialog.findChildren<QLineEdit*>())
        number->setAccessibleName(QStringLiteral("Page"));
    for (QComboBox* zoom : dialog.findChildren<QComboBox*>())
        zoom->setAccessibleName(QStringLiteral("Zoom"));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&printout](QPrinter* device) { static_cast<void>(paintPages(*device, printout)); });
    const QSize room = (parent ? parent->screen() : dialog.screen())->availableSize();
    dialog.resize(std::min(1000, room.width() - 60), std::min(900, room.height() - 60));
    dialog.exec();
}

Result<Done> QtPrinter::print(const ui::TextPrintout& printout) { return printOut(printout); }

Result<Done> QtPrinter::print(const ui::DrawingPrintout& printout) { return printOut(printout); }

Result<Done> QtPrinter::savePdf(const ui::TextPrintout& printout, const std::filesystem::path& file)
{
    return writePdf(printout, file);
}

Result<Done> QtPrinter::savePdf(const ui::DrawingPrintout& printout, const std::filesystem::path& file)
{
    return writePdf(printout, file);
}

void QtPrinter::preview(const ui::TextPrintout& printout) { showPreview(printout); }

void QtPrinter::preview(const ui::DrawingPrintout& printout) { showPreview(printout); }

} // namespace tallyhoop::qt
