// qt/services/question.h - guards a modal dialog: before it screens show their latest state; while it is open, commands
// are dropped and the pointer is the ordinary one.
#pragma once

#include "qt/desk.h"

#include <QApplication>
#include <QCursor>

namespace tallyhoop::qt {

class Question
{
public:
    explicit Question(Desk& desk) : m_shown{desk}, m_modal{desk}, m_busy{QApplication::overrideCursor() != nullptr}
    {
        if (m_busy)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~Question()
    {
        if (m_busy)
            QApplication::restoreOverrideCursor();
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;

private:
    struct Shown {
        explicit Shown(Desk& desk) { desk.beforeModal(); }
    };

    Shown m_shown;
    Desk::Modal m_modal;
    bool m_busy;
};

} // namespace tallyhoop::qt
