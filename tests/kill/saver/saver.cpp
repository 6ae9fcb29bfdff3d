// tests/kill/saver/saver.cpp - a Qt plugin that makes the unmodified program save, so that a test can kill it
// meanwhile.
//
// It takes orders from one descriptor, a line each, and reports on another:
//   once N      saves round N, reports "saved"
//   loop N      saves round N, N+1, ... until the program is killed
//   fork N      the same in a child of the program, which reports "child PID" and, when it has ended, "gone STATUS"
//   forkone N K saves round N in a child that kills itself at its K-th call about a file; reports as with "fork"
// Before the first order it reports "ready"; every message box, at any time, as "box TITLE".
#include "hands.h"
#include "writers.h"

#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <cstdio>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace saver {
namespace {

/// Stops a program from painting. Qt distributes large areas among threads, which a forked child does not have: it
/// would wait for them for ever.
class Blindfold : public QObject
{
public:
    Blindfold() { QApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest;
    }
};

class Saver : public QObject
{
public:
    explicit Saver(const Writer& writer)
        : m_writer{writer},
          m_orders{::fdopen(qEnvironmentVariableIntValue("TALLYHOOP_SAVER_ORDERS"), "r")},
          m_reports{qEnvironmentVariableIntValue("TALLYHOOP_SAVER_REPORTS")}
    {
        connect(&m_watch, &QTimer::timeout, this, &Saver::look);
        m_watch.start(0);
    }

private:
    void report(const QString& what) const
    {
        const QByteArray line = what.toUtf8() + '\n';
        if (::write(m_reports, line.constData(), static_cast<std::size_t>(line.size())) != line.size()) {
            ::_exit(1);
        }
    }

    void look()
    {
        answerFrontBox(mark(m_round), qEnvironmentVariable("TALLYHOOP_SAVER_OPENS"),
                       [this](const QString& title) { report(QStringLiteral("box ") + title); });
        const bool quiet = QApplication::activeModalWidget() == nullptr && isVisible("lblTitle");
        m_quiet = quiet ? m_quiet + 1 : 0;
        constexpr int kQuietLooks = 5; // all messages of start-up have been shown
        if (!m_started && m_quiet == kQuietLooks) {
            m_started = true;
            // Not from here: a timer does not fire while its slot is running, so boxes would not be answered.
            QTimer::singleShot(0, this, &Saver::obey);
        }
    }

    void obey()
    {
        m_writer.prepare();
        report(QStringLiteral("ready"));
        char line[80];
        while (m_orders != nullptr && std::fgets(line, sizeof line, m_orders) != nullptr) {
            int call = 0;
            if (std::sscanf(line, "once %d", &m_round) == 1) {
                save();
                report(QStringLiteral("saved"));
            } else if (std::sscanf(line, "loop %d", &m_round) == 1) {
                saveForEver();
            } else if (std::sscanf(line, "forkone %d %d", &m_round, &call) == 2) {
                inChild([this, call] {
                    armKiller(call);
                    save();
                });
            } else if (std::sscanf(line, "fork %d", &m_round) == 1) {
                inChild([this] { saveForEver(); });
            }
        }
        ::_exit(0); // there are no more orders
    }

    void save()
    {
        m_writer.save(m_round);
        QApplication::processEvents();
    }

    [[noreturn]] void saveForEver()
    {
        for (;; ++m_round) {
            save();
        }
    }

    template <class Act>
    void inChild(Act act)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            const Blindfold blindfold;
            act();
            ::_exit(0);
        }
        report(QStringLiteral("child %1").arg(child));
        int status = 0;
        ::waitpid(child, &status, 0);
        report(QStringLiteral("gone %1").arg(status));
    }

    /// The function is in the preloaded library that wraps the system's calls.
    static void armKiller(int call)
    {
        using Arm = void (*)(int);
        const auto arm = reinterpret_cast<Arm>(::dlsym(RTLD_DEFAULT, "tallyhoopKillAtCall"));
        if (arm == nullptr) {
            qFatal("saver: the killer is not loaded");
        }
        arm(call);
    }

    const Writer& m_writer;
    std::FILE* m_orders;
    int m_reports;
    int m_round = 0;
    int m_quiet = 0;
    bool m_started = false;
    QTimer m_watch;
};

} // namespace

class SaverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "saver.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        const Writer* writer = findWriter(qEnvironmentVariable("TALLYHOOP_SAVER"));
        return writer == nullptr ? nullptr : new Saver(*writer);
    }
};

} // namespace saver

#include "saver.moc"
