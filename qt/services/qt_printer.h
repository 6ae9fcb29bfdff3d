// qt/services/qt_printer.h - printing, PDF and preview of printouts.
#pragma once

#include "qt/desk.h"
#include "ui/printer.h"

#include <QPageLayout>
#include <memory>

class QPrinter;

namespace tallyhoop::qt {

class QtPrinter : public ui::Printer
{
public:
    explicit QtPrinter(Desk& desk);
    ~QtPrinter() override;
    QtPrinter(const QtPrinter&) = delete;
    QtPrinter& operator=(const QtPrinter&) = delete;

    /// The installed families, and "Courier New" when that name resolves to a font of its widths.
    std::vector<std::string> fontNames() override;
    bool choosePrinter() override;
    std::optional<ui::PrinterFont> chooseFont() override;
    int pageWidthTwips(ui::Orientation orientation) override;

    bool isThere() override;
    std::filesystem::path outputFile() override;

    /// A printout to a PDF file, chosen in the printer's dialog, is written whole or not at all;
    /// that choice is for one printout.
    Result<Done> print(const ui::Printout& printout) override;
    Result<Done> savePdf(const ui::Printout& printout, const std::filesystem::path& file) override;
    void preview(const ui::Preview& preview) override;

    /// The printer as last chosen.
    QPrinter& printer();

private:
    void goBackTo(const QString& printerName);

    Desk& m_desk;
    std::unique_ptr<QPrinter> m_printer; ///< made when first needed
};

} // namespace tallyhoop::qt
