// qt/services/preview_dialog.h - printouts as they will be printed, with a list to choose from when there are several.
#pragma once

#include "ui/printer.h"

#include <QPrintPreviewDialog>

class QMainWindow;
class QPrintPreviewWidget;
class QPrinter;
class QToolBar;

namespace tallyhoop::qt {

class PreviewDialog : public QPrintPreviewDialog
{
public:
    /// @param printer paper for the preview; its pages are turned as each printout wants them
    /// @param preview outlives the dialog
    PreviewDialog(QPrinter& printer, const ui::Preview& preview, QWidget* parent);

private:
    void addCommands(QToolBar& bar);
    void addList(QMainWindow& window, QPrintPreviewWidget& pages);
    void show(std::size_t printout);

    QPrinter& m_printer;
    const ui::Preview& m_preview;
    std::size_t m_shown = 0; ///< index of the printout that is shown
};

} // namespace tallyhoop::qt
