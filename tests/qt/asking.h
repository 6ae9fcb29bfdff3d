// tests/qt/asking.h - acts on dialogs as a person does.
#pragma once

#include "qt/sample_screen.h"
#include "qt/services/qt_dialogs.h"

#include <QApplication>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace tallyhoop::qt::test {

/// Acts on the dialog that opens next.
template <class Kind>
void withNext(const std::function<void(Kind&)>& act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto* dialog = qobject_cast<Kind*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "another dialog is open, or none";
        act(*dialog);
    });
}

struct Asking : Shown {
    QtDialogs dialogs{desk};
};

} // namespace tallyhoop::qt::test
