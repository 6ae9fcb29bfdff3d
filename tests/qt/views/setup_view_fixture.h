// tests/qt/views/setup_view_fixture.h - the setup screen in a window, with a short list of team names.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "qt/views/setup_view.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace tallyhoop::qt {

class SetupViewTest : public ::testing::Test
{
protected:
    SetupViewTest()
    {
        files.put("NCAALIST.THS",
                  test::crlf({"*START*", "Akron", "Duke", "Duquesne", "Iowa", "Iowa St.", "Kansas", "*END*"}));
        view = std::make_unique<SetupView>(setup, desk);
        desk.runInside(setup, [this] { setup.load(); });
        view->resize(1366, 720);
        view->show();
        QApplication::setActiveWindow(view.get());
        QApplication::processEvents();
    }

    template <class Widget>
    Widget& widget(const ui::Control& control)
    {
        return *qobject_cast<Widget*>(view->widgetOf(control));
    }

    QLineEdit& team(std::size_t index) { return widget<QLineEdit>(setup.txtRegion[index]); }
    QListView& list() { return widget<QListView>(setup.lstTeamNames); }

    /// Presses a key where the focus is, as a keyboard does.
    void press(int key) { QTest::keyClick(view->focusWidget(), static_cast<Qt::Key>(key)); }
    void type(const QString& text) { QTest::keyClicks(view->focusWidget(), text); }

    /// An input method shows a text it is still composing; an empty one gives it up.
    void compose(const QString& text)
    {
        QInputMethodEvent event{text, {}};
        QApplication::sendEvent(view->focusWidget(), &event);
    }

    void commit(const QString& text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(view->focusWidget(), &event);
    }

    void pressRow(int row)
    {
        const QRect place = list().visualRect(list().model()->index(row, 0));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place.center());
    }

    test::ScratchFolder files;
    DataFolder folder = files.folder();
    test::FakePlatform computer;
    test::FakeScreens screens;
    Field field;
    SetupScreen setup{folder, computer.services, screens, field};
    Desk desk;
    std::unique_ptr<SetupView> view;
};

} // namespace tallyhoop::qt
