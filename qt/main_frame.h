// qt/main_frame.h - the main frame: holds one page at a time and names what is open in its title.
#pragma once

#include <QMainWindow>
#include <functional>

class QStackedWidget;

namespace tallyhoop::qt {

class Page;

class MainFrame : public QMainWindow
{
    Q_OBJECT

public:
    MainFrame();

    /// Opens the frame: maximised on a small screen, at a comfortable size on a large one.
    void open();

    /// The page is shown in front of the others; the caller of removePage() owns it again.
    void addPage(Page& page);
    void removePage(Page& page);
    void showPage(Page& page);
    Page* visiblePage() const;

    /// Shows the visible screen's document and its unsaved state in the title.
    void refreshTitle();

    /// The person wants to close the frame; it stays open unless this ends the program.
    std::function<void()> closeWanted;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QStackedWidget* m_stack;
};

} // namespace tallyhoop::qt
