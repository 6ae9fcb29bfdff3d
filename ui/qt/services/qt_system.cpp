#include "ui/qt/services/qt_system.h"

#include "ui/qt/paths.h"
#include "ui/qt/text.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QProgressDialog>
#include <system_error>

namespace tallyhoop::qt {

namespace {

constexpr qint64 kRefresh = 50; ///< milliseconds between two looks at it

Failure failureOf(std::errc reason)
{
    return Failure{fromQString(QString::fromStdString(std::make_error_code(reason).message()))};
}

} // namespace

Result<Done> QtPrograms::check(const std::filesystem::path& program)
{
    const QFileInfo file{fromPath(program)};
    if (!file.exists())
        return failureOf(std::errc::no_such_file_or_directory);
    if (file.isDir())
        return failureOf(std::errc::is_a_directory);
    if (!file.isExecutable())
        return failureOf(std::errc::permission_denied);
    return Done{};
}

Result<Done> QtPrograms::start(const std::filesystem::path& program)
{
    if (auto ready = check(program); !ready)
        return ready;
    // An absolute path: the system must not look for it anywhere else.
    const QFileInfo file{fromPath(program)};
    QProcess process;
    process.setProgram(file.absoluteFilePath());
    process.setWorkingDirectory(file.absolutePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
#ifdef Q_OS_WIN
    constexpr unsigned long kNoWindow = 0x08000000;
    process.setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= kNoWindow; });
#endif
    if (!process.startDetached())
        return Failure{fromQString(process.errorString())};
    return Done{};
}

std::chrono::year_month_day QtClock::today() const
{
    const QDate date = QDate::currentDate();
    return {std::chrono::year{date.year()}, std::chrono::month{static_cast<unsigned>(date.month())},
            std::chrono::day{static_cast<unsigned>(date.day())}};
}

std::chrono::local_seconds QtClock::now() const
{
    const QDateTime moment = QDateTime::currentDateTime(); // asked once: midnight must not come in between
    const QDate date = moment.date();
    const std::chrono::year_month_day day{std::chrono::year{date.year()},
                                          std::chrono::month{static_cast<unsigned>(date.month())},
                                          std::chrono::day{static_cast<unsigned>(date.day())}};
    return std::chrono::local_days{day} + std::chrono::seconds{moment.time().msecsSinceStartOfDay() / 1000};
}

void QtClipboard::put(const std::string& text) { QApplication::clipboard()->setText(toLines(text)); }

QtProgress::QtProgress(Desk& desk, int patience) : m_desk{desk}, m_patience{patience} {}

QtProgress::~QtProgress()
{
    if (m_nesting > 0) {
        m_nesting = 1;
        end();
    }
}

void QtProgress::begin(const std::string& what, int steps)
{
    if (m_nesting++ > 0)
        return; // work inside longer work shares its window
    m_what = what;
    m_steps = steps;
    m_since.start();
    m_lastLook = 0;
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

bool QtProgress::advance(int stepsDone)
{
    if (m_nesting == 0 || m_nesting > 1)
        return !m_window || !m_window->wasCanceled();
    const qint64 now = m_since.elapsed();
    if (!m_window && now >= m_patience)
        openWindow();
    if (!m_window)
        return true;
    if (now - m_lastLook >= kRefresh) {
        m_lastLook = now;
        m_window->setValue(stepsDone); // a modal progress window processes events here
    }
    return !m_window->wasCanceled();
}

void QtProgress::openWindow()
{
    m_desk.beforeModal();
    m_modal.emplace(m_desk);
    m_window = std::make_unique<QProgressDialog>(m_desk.windowForDialogs());
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(toLines(m_what));
    m_window->setLabel(label);
    m_window->setWindowTitle(QStringLiteral("Tallyhoop"));
    m_window->setWindowModality(Qt::ApplicationModal);
    m_window->setAutoReset(false);
    m_window->setAutoClose(false);
    m_window->setMinimumDuration(0);
    m_window->setRange(0, m_steps);
    m_window->show();
    QApplication::changeOverrideCursor(Qt::BusyCursor);
}

void QtProgress::end()
{
    if (m_nesting == 0 || --m_nesting > 0)
        return;
    m_window.reset();
    m_modal.reset();
    QApplication::restoreOverrideCursor();
}

} // namespace tallyhoop::qt
