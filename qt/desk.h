// qt/desk.h - everything a person does passes through the desk, which keeps screens (values) and pages (widgets) in
// sync.
//
// A command is run between a pull and a push: what the person typed, ticked, selected or focused goes into the models
// of all attached pages; after the command every screen derives its controls from its state, and every field that
// differs is shown, on all pages, for a command may change other screens too.
#pragma once

#include "ui/screen.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tallyhoop::qt {

class Page;

class Desk : public QObject
{
    Q_OBJECT

public:
    /// @param frame the main frame: parent of dialogs when the running screen has no visible window
    explicit Desk(QWidget* frame = nullptr);
    ~Desk() override;
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    void setFrame(QWidget* frame) { m_frame = frame; }

    /// Runs what a person asked a screen for. Dropped while another command runs or something else is modal: a message
    /// box, or a modal screen that is not this one. An exception that escapes is shown in a critical message box.
    void run(ui::Screen& screen, const std::function<void()>& command);

    /// The same for what the program itself does with a screen inside a command (loading, unloading): never dropped.
    void runInside(ui::Screen& screen, const std::function<void()>& command);

    /// @param screen nullptr = the frame itself (its close button)
    /// @returns whether an action of the person may reach it now
    bool accepts(const ui::Screen* screen) const;

    bool isRunning() const { return m_depth > 0; }

    /// Shows everything as the models have it. Called before every modal question.
    void beforeModal();

    /// Pulls and pushes without a command, such as when a page comes to the front.
    void push();

    /// @returns the window of the running screen, or the one it has opened, as the parent of dialogs; the frame when
    /// that is not visible
    QWidget* windowForDialogs() const;

    /// While one exists, commands of other screens are dropped. For message boxes (no screen) and modal screens.
    class Modal
    {
    public:
        /// @param window the parent of dialogs meanwhile; nullptr = as before
        explicit Modal(Desk& desk, const ui::Screen* screen = nullptr, QWidget* window = nullptr);
        ~Modal();
        Modal(const Modal&) = delete;
        Modal& operator=(const Modal&) = delete;

    private:
        Desk& m_desk;
    };

    /// A page attaches itself when it is made and detaches when it is destroyed.
    void attach(Page& page);
    void detach(Page& page);

    /// Takes an unloaded screen: its page is detached and hidden at once; page first, then model are destroyed once the
    /// outermost command has returned. @param page the page, or the window that holds it
    void park(std::unique_ptr<QWidget> page, std::unique_ptr<ui::Screen> screen);

    /// Destroys what is parked, unless a command is running. Called automatically after the outermost command, and at
    /// the end of the program.
    void clearParked();

    /// Called after every push, such as for the frame's title.
    std::function<void()> pushed;

    /// Shows this help topic, for F1 in places without a help menu.
    std::function<void(const std::string& topic)> helpWanted;

    /// @returns the help topic of the screen that asks a modal question now; empty when none is running
    std::string runningTopic() const { return m_running.empty() ? std::string{} : m_running.back()->helpTopic(); }

private:
    struct Parked {
        std::unique_ptr<QWidget> page;
        std::unique_ptr<ui::Screen> screen;
    };
    struct OpenModal {
        const ui::Screen* screen;
        int depth;       ///< of the commands that were running when it opened
        QWidget* window; ///< the parent of dialogs while it is open; nullptr = that of the running screen
    };

    void execute(ui::Screen& screen, const std::function<void()>& command);
    void guarded(const std::function<void()>& command);
    void showFailure(const QString& reason);
    void pull();
    void reportFocus(const ui::Screen& screen);
    Page* pageOf(const ui::Screen& screen) const;

    QPointer<QWidget> m_frame;
    std::vector<Page*> m_pages;
    std::vector<const ui::Screen*> m_running;
    std::vector<OpenModal> m_modals;
    std::vector<Parked> m_parked;
    int m_depth = 0;
    bool m_pushing = false;
    bool m_clearingSoon = false;
};

} // namespace tallyhoop::qt
