// qt/services/qt_system.h - the small services: other programs, the date, the clipboard, long work.
#pragma once

#include "qt/desk.h"
#include "qt/services/started_program.h"
#include "ui/platform.h"

#include <QElapsedTimer>
#include <memory>
#include <optional>

class QProgressDialog;

namespace tallyhoop::qt {

class QtPrograms : public ui::Programs
{
public:
    QtPrograms();
    ~QtPrograms() override;
    QtPrograms(const QtPrograms&) = delete;
    QtPrograms& operator=(const QtPrograms&) = delete;

    Result<Done> check(const std::filesystem::path& program) override;
    Result<Done> start(const std::filesystem::path& program) override;
    std::optional<Result<Done>> waitForEnd(std::chrono::milliseconds atMost) override;
    void stop() override;
    Result<Done> openFolder(const std::filesystem::path& folder) override;

private:
    std::unique_ptr<StartedProgram> m_started;
};

class QtClock : public ui::Clock
{
public:
    std::chrono::year_month_day today() const override;
    std::chrono::local_seconds now() const override;
};

class QtClipboard : public ui::Clipboard
{
public:
    void put(const std::string& text) override;
};

/// Shows a busy pointer at once, and after half a second a window with a bar and a Cancel button.
class QtProgress : public ui::Progress
{
public:
    /// @param patience milliseconds of work before the window opens
    explicit QtProgress(Desk& desk, int patience = 500);
    ~QtProgress() override;
    QtProgress(const QtProgress&) = delete;
    QtProgress& operator=(const QtProgress&) = delete;

    void begin(const std::string& what, int steps) override;
    bool advance(int stepsDone) override;
    void end() override;

private:
    void openWindow();

    Desk& m_desk;
    int m_patience;
    QElapsedTimer m_since;
    std::string m_what;
    int m_steps = 0;
    int m_nesting = 0;
    qint64 m_lastLook = 0; ///< milliseconds since begin()
    std::unique_ptr<QProgressDialog> m_window;
    std::optional<Desk::Modal> m_modal;
};

} // namespace tallyhoop::qt
