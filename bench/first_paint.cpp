// bench/first_paint.cpp - a Qt plugin that an unmodified program loads when a script asks Qt for it: once the widget of
// interest has been painted it prints the time and the peak memory, and ends the program.
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

QByteArray peakKilobytes()
{
    QFile status{QStringLiteral("/proc/self/status")};
    if (!status.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').constFirst();
    return {};
}

/// Seconds of the clock that every process of the computer shares.
double now() { return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count(); }

class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QString widgetName) : m_widgetName{std::move(widgetName)}
    {
        // The application object is still being made.
        QTimer::singleShot(0, this, [this] { qApp->installEventFilter(this); });
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && receiver->objectName() == m_widgetName && !m_seen) {
            m_seen = true;
            // The event is on its way only: when the loop comes round again the window has been painted and shown.
            QTimer::singleShot(0, this, [] {
                std::printf("%.6f %s\n", now(), peakKilobytes().constData());
                std::fflush(stdout);
                std::_Exit(0);
            });
        }
        return false;
    }

private:
    QString m_widgetName;
    bool m_seen = false;
};

class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "first_paint.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        return new FirstPaint{qEnvironmentVariable("TALLYHOOP_FIRST_PAINT_OF")};
    }
};

} // namespace

#include "first_paint.moc"
