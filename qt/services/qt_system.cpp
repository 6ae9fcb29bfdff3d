// qt/services/qt_system.cpp - starts programs and keeps their output, reads the clock, shows progress of long work.
#include "qt/services/qt_system.h"

#include "qt/paths.h"
#include "qt/text.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QProgressDialog>
#include <QUrl>
#include <system_error>

namespace tallyhoop::qt {

namespace {

constexpr qint64 kRefresh = 50; ///< milliseconds between two updates of the progress window

Failure failureOf(std::errc reason)
{
    return Failure{fromQString(QString::fromStdString(std::make_error_code(reason).message()))};
}

#ifdef Q_OS_LINUX
/// @returns whether the system can start a file: a program for this kind of processor, as ours is, or a script
bool isProgram(const std::filesystem::path& path)
{
    constexpr qsizetype kKind = 6;       // the first bytes of a program: mark, width and byte order
    constexpr qsizetype kProcessor = 18; // two bytes
    const auto beginning = [](const QString& name) {
        QFile file{name};
        return file.open(QIODevice::ReadOnly) ? file.read(kProcessor + 2) : QByteArray{};
    };
    const QByteArray theirs = beginning(fromPath(path));
    if (theirs.startsWith("#!"))
        return true;
    const QByteArray ours = beginning(QStringLiteral("/proc/self/exe"));
    return theirs.size() == kProcessor + 2 && theirs.left(kKind) == ours.left(kKind) &&
           theirs.mid(kProcessor) == ours.mid(kProcessor);
}
#else
bool isProgram(const std::filesystem::path&) { return true; }
#endif

} // namespace

QtPrograms::QtPrograms() = default;

QtPrograms::~QtPrograms() = default;

Result<Done> QtPrograms::check(const std::filesystem::path& program)
{
    const QFileInfo file{fromPath(program)};
    if (!file.exists())
        return failureOf(std::errc::no_such_file_or_directory);
    if (file.isDir())
        return failureOf(std::errc::is_a_directory);
    if (!file.isExecutable())
        return failureOf(std::errc::permission_denied);
    if (!file.isFile() || !isProgram(program)) // whose beginning a pipe would keep us waiting for
        return failureOf(std::errc::executable_format_error);
    return Done{};
}

Result<Done> QtPrograms::start(const std::filesystem::path& program)
{
    if (auto ready = check(program); !ready)
        return ready;
    // An absolute path: the system must not search for it anywhere else.
    const QFileInfo file{fromPath(program)};
    m_started = std::make_unique<StartedProgram>();
    m_started->setProgram(file.absoluteFilePath());
    m_started->setWorkingDirectory(file.absolutePath());
    m_started->setStandardInputFile(QProcess::nullDevice());
    m_started->setStandardOutputFile(QProcess::nullDevice());
#ifdef Q_OS_WIN
    constexpr unsigned long kNoWindow = 0x08000000;
    m_started->setCreateProcessArgumentsModifier(
        [](QProcess::CreateProcessArguments* arguments) { arguments->flags |= kNoWindow; });
#endif
    m_started->start(QIODevice::ReadOnly);
    if (m_started->waitForStarted())
        return Done{};
    Failure failure{fromQString(m_started->errorString())};
    m_started.reset();
    return failure;
}

std::optional<Result<Done>> QtPrograms::waitForEnd(std::chrono::milliseconds atMost)
{
    if (!m_started)
        return std::nullopt;
    if (m_started->state() != QProcess::NotRunning && !m_started->waitForFinished(static_cast<int>(atMost.count())))
        return std::nullopt;
    if (m_started->exitStatus() == QProcess::NormalExit && m_started->exitCode() == 0)
        return Done{};
    const QString errors = QString::fromUtf8(m_started->readAllStandardError()).trimmed();
    return Failure{errors.isEmpty() ? "It ended without saying why." : withCrLf(fromQString(errors))};
}

void QtPrograms::stop()
{
    if (!m_started || m_started->state() == QProcess::NotRunning)
        return;
    m_started->kill();
    m_started->waitForFinished();
}

Result<Done> QtPrograms::openFolder(const std::filesystem::path& folder)
{
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(fromPath(folder))))
        return Done{};
    return Failure{"No program was found that shows folders."};
}

std::chrono::year_month_day QtClock::today() const
{
    const QDate date = QDate::currentDate();
    return {std::chrono::year{date.year()}, std::chrono::month{static_cast<unsigned>(date.month())},
            std::chrono::day{static_cast<unsigned>(date.day())}};
}

std::chrono::local_seconds QtClock::now() const
{
    const QDateTime moment = QDateTime::currentDateTime(); // read once, because midnight may pass between two calls
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
        QtProgress::end();
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
