// tests/kill/saver/hands.cpp - finds a visible widget by its name and uses it as a person would.
#include "hands.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <array>

namespace saver {
namespace {

[[noreturn]] void giveUp(const QString& what) { qFatal("saver: %s", qPrintable(what)); }

QWidget* visibleWidget(const QString& name)
{
    const QWidgetList widgets = QApplication::allWidgets();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&](const QWidget* widget) {
        return widget->objectName() == name && widget->isVisible();
    });
    return found == widgets.end() ? nullptr : *found;
}

template <class Kind>
Kind& reachable(const char* name)
{
    auto* widget = qobject_cast<Kind*>(visibleWidget(QString::fromLatin1(name)));
    if (widget == nullptr || !widget->isEnabled()) {
        giveUp(QStringLiteral("there is no usable widget ") + QLatin1String(name));
    }
    return *widget;
}

void press(const QMessageBox& box)
{
    for (const auto wanted : {QMessageBox::Yes, QMessageBox::Ok}) {
        if (QAbstractButton* button = box.button(wanted); button != nullptr) {
            button->click();
            return;
        }
    }
    giveUp(QStringLiteral("nothing to press in ") + box.windowTitle());
}

/// Saves the entry form once for each text. Not from here: saving asks for a file, which is answered from here.
void saveEntryForm(const QString& text)
{
    const QString address = text + QStringLiteral("@example.org");
    if (reachable<QLineEdit>("txtOrganiser").text() == address) {
        return; // being saved
    }
    type("txtOrganiser", address);
    QTimer::singleShot(0, [] {
        click("cmdSave");
        click("cmdClose");
    });
}

} // namespace

void choose(const char* entry)
{
    for (const QWidget* widget : QApplication::allWidgets()) {
        for (QAction* action : widget->actions()) {
            if (action->objectName() == QLatin1String(entry) && action->isEnabled() && action->isVisible()) {
                action->trigger();
                return;
            }
        }
    }
    giveUp(QStringLiteral("there is no usable menu entry ") + QLatin1String(entry));
}

void click(const char* button) { reachable<QAbstractButton>(button).click(); }

void type(const char* box, const QString& text)
{
    auto& edit = reachable<QLineEdit>(box);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, text);
}

void drop(const char* onto, const QString& file)
{
    auto& widget = reachable<QWidget>(onto);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    const QPoint middle = widget.rect().center();
    QDragEnterEvent entered(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &entered);
    QDropEvent dropped(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &dropped);
    if (!dropped.isAccepted()) {
        giveUp(QStringLiteral("nothing can be dropped onto ") + QLatin1String(onto));
    }
    QApplication::processEvents();
}

bool isVisible(const char* name) { return visibleWidget(QString::fromLatin1(name)) != nullptr; }

void answerFrontBox(const QString& text, const QString& file, const std::function<void(const QString&)>& report)
{
    QWidget* front = QApplication::activeModalWidget();
    if (front == nullptr || !front->isVisible()) {
        return;
    }
    if (auto* choice = qobject_cast<QFileDialog*>(front); choice != nullptr) {
        if (choice->acceptMode() == QFileDialog::AcceptOpen) {
            choice->selectFile(file);
        }
        QMetaObject::invokeMethod(choice, "accept");
        return;
    }
    if (auto* line = qobject_cast<QInputDialog*>(front); line != nullptr) {
        line->setTextValue(text);
        line->accept();
        return;
    }
    if (auto* box = qobject_cast<QMessageBox*>(front); box != nullptr) {
        report(box->windowTitle());
        press(*box);
        return;
    }
    if (isVisible("txtOrganiser")) {
        saveEntryForm(text);
        return;
    }
    if (isVisible("cmdSend")) {
        type("txtSubject", text);
        click("cmdSend");
    }
}

} // namespace saver
