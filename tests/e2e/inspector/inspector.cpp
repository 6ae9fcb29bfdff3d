// tests/e2e/inspector/inspector.cpp - a Qt plugin that the unmodified program loads for a test. It listens on a port of
// this machine and answers each line of JSON with a line of JSON about what is on the screen.
#include "describe.h"
#include "inject.h"

#include <QApplication>
#include <QClipboard>
#include <QGenericPlugin>
#include <QJsonDocument>
#include <QSaveFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QWindow>

namespace inspector {
namespace {

/// Counts the events that have reached the program, so that a test can wait until its own press or key has arrived.
class EventCounter : public QObject
{
public:
    using QObject::QObject;
    QJsonObject counts() const
    {
        return {{QStringLiteral("presses"), m_presses},
                {QStringLiteral("releases"), m_releases},
                {QStringLiteral("moves"), m_moves},
                {QStringLiteral("keys"), m_keys}};
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
            ++m_keys; // a shortcut's key is only the first of the two; a release may go to a window just closed
        }
        if (receiver->isWindowType()) { // once for each event, before it is handed on to a widget
            m_presses +=
                event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick ? 1 : 0;
            m_releases += event->type() == QEvent::MouseButtonRelease ? 1 : 0;
            m_moves += event->type() == QEvent::MouseMove ? 1 : 0;
        }
        if (event->type() == QEvent::Show && !event->spontaneous()) {
            noteArrival(*receiver, false);
        } else if (event->type() == QEvent::WindowActivate) {
            noteArrival(*receiver, true);
        }
        return false;
    }

private:
    static void noteArrival(QObject& receiver, bool hasArrived)
    {
        const auto* widget = qobject_cast<QWidget*>(&receiver);
        if (widget != nullptr && widget->isWindow()) {
            receiver.setProperty(kHasArrived, hasArrived);
        }
    }

    int m_presses = 0;
    int m_releases = 0;
    int m_moves = 0;
    int m_keys = 0;
};

class Inspector : public QObject
{
public:
    explicit Inspector(const QString& portFile)
    {
        // The application object is still being made: filter and listen once it is there.
        QTimer::singleShot(0, this, [this, portFile] {
            QApplication::instance()->installEventFilter(&m_counter);
            connect(&m_server, &QTcpServer::newConnection, this, &Inspector::greet);
            if (m_server.listen(QHostAddress::LocalHost)) {
                announcePort(portFile);
            }
        });
    }

private:
    /// The file is there with the whole number in it, or not at all.
    void announcePort(const QString& portFile)
    {
        QSaveFile file(portFile);
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray::number(m_server.serverPort()));
        file.commit();
    }

    void greet()
    {
        QTcpSocket* caller = m_server.nextPendingConnection();
        connect(caller, &QTcpSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QTcpSocket::readyRead, this, [this, caller] {
            while (caller->canReadLine()) {
                const QJsonObject request = QJsonDocument::fromJson(caller->readLine()).object();
                caller->write(QJsonDocument(answer(request)).toJson(QJsonDocument::Compact) + '\n');
                caller->flush();
            }
        });
    }

    QJsonObject answer(const QJsonObject& request)
    {
        const QString ask = request.value(QLatin1String("ask")).toString();
        const QString name = request.value(QLatin1String("name")).toString();
        if (ask == QLatin1String("windows")) {
            return {{QStringLiteral("windows"), describeWindows()}};
        }
        if (ask == QLatin1String("modal")) {
            return describeModal();
        }
        if (ask == QLatin1String("action")) {
            return describeAction(name);
        }
        if (ask == QLatin1String("actions")) {
            return {{QStringLiteral("names"), actionNames()}};
        }
        if (ask == QLatin1String("counts")) {
            return m_counter.counts();
        }
        if (ask == QLatin1String("clipboard")) {
            if (request.contains(QLatin1String("text"))) {
                QApplication::clipboard()->setText(request.value(QLatin1String("text")).toString());
            }
            return {{QStringLiteral("text"), QApplication::clipboard()->text()}};
        }
        if (ask == QLatin1String("inject")) {
            // Later: the event may open a box that does not return before the test has answered it.
            QTimer::singleShot(0, this, [request] { inject(request); });
            return {};
        }
        return aboutWidget(ask, name, request);
    }

    static QJsonObject aboutWidget(const QString& ask, const QString& name, const QJsonObject& request)
    {
        QWidget* widget = findWidget(name);
        if (widget == nullptr) {
            return {{QStringLiteral("found"), false}};
        }
        if (ask == QLatin1String("table")) {
            return describeTable(widget);
        }
        if (ask == QLatin1String("grab")) {
            return {{QStringLiteral("found"), widget->grab().save(request.value(QLatin1String("path")).toString())}};
        }
        return describeWidget(widget);
    }

    QTcpServer m_server;
    EventCounter m_counter;
};

} // namespace

class InspectorPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "inspector.json")

public:
    QObject* create(const QString&, const QString&) override
    {
        const QString portFile = qEnvironmentVariable("TALLYHOOP_INSPECTOR_PORT_FILE");
        return portFile.isEmpty() ? nullptr : new Inspector(portFile);
    }
};

} // namespace inspector

#include "inspector.moc"
