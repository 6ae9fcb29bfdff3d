// qt/services/mail_programs.cpp - starting, watching and leaving alone.
#include "qt/services/mail_programs.h"

#include <QStandardPaths>
#include <QStringList>
#include <algorithm>
#include <unistd.h>
#include <utility>

namespace tallyhoop::qt {

namespace {

constexpr int kAnswerMilliseconds = 5000;         ///< what a small tool of the desktop may take
constexpr std::size_t kLongestArgument = 131'072; ///< bytes of one argument with its final zero: Linux has this limit

QStringList asQt(const std::vector<std::string>& utf8)
{
    QStringList list;
    for (const std::string& text : utf8)
        list << QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return list;
}

bool fitsCommandLine(const std::vector<std::string>& arguments)
{
    return std::ranges::all_of(arguments, [](const std::string& text) { return text.size() < kLongestArgument; });
}

/// A process that is not ended together with ours, neither by its terminal nor by a pipe that nobody reads.
std::unique_ptr<StartedProgram> onItsOwn(const char* program, const std::vector<std::string>& arguments)
{
    auto process = std::make_unique<StartedProgram>();
    process->setProgram(installedProgram(program));
    process->setArguments(asQt(arguments));
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { ::setsid(); });
    return process;
}

} // namespace

QString installedProgram(const char* name) { return QStandardPaths::findExecutable(QString::fromLatin1(name)); }

std::string answerOf(const char* tool, const QStringList& arguments)
{
    const QString path = installedProgram(tool);
    if (path.isEmpty())
        return {};
    QProcess process;
    process.start(path, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(kAnswerMilliseconds) || process.exitCode() != 0)
        return {};
    return process.readAllStandardOutput().trimmed().toStdString();
}

MailPrograms::MailPrograms(std::chrono::milliseconds patience) : m_patience{patience} {}

std::optional<Failure> MailPrograms::run(const char* program, const std::vector<std::string>& arguments)
{
    std::erase_if(m_running, [](const auto& process) { return process->state() == QProcess::NotRunning; });
    if (!fitsCommandLine(arguments))
        return Failure{"The message is too long for the command line of a mail program."};
    std::unique_ptr<StartedProgram> process = onItsOwn(program, arguments);
    process->start(QIODevice::NotOpen);
    if (!process->waitForStarted())
        return Failure{std::string{program} + " could not be started."};
    if (process->state() != QProcess::NotRunning && !process->waitForFinished(static_cast<int>(m_patience.count()))) {
        m_running.push_back(std::move(process));
        return std::nullopt;
    }
    if (process->exitStatus() != QProcess::NormalExit)
        return Failure{std::string{program} + " has crashed."};
    if (process->exitCode() != 0)
        return Failure{std::string{program} + " ended with the error " + std::to_string(process->exitCode()) + "."};
    return std::nullopt;
}

} // namespace tallyhoop::qt
