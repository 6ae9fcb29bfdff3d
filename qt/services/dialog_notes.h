// qt/services/dialog_notes.h - the notes that Qt's file dialog keeps in Windows' registry.
#pragma once

#ifdef _WIN32
#include <QMap>
#include <QString>
#include <QVariant>
#endif

namespace tallyhoop::qt {

/// Qt's dialog notes which folders were visited, and reads it back in every program made with Qt. This program keeps
/// nothing outside its folder: while one of these lives a dialog may come and go, then the notes are again what they
/// were. Elsewhere Qt keeps them in files, whose place the program sets.
class DialogNotes
{
public:
    DialogNotes(const DialogNotes&) = delete;
    DialogNotes& operator=(const DialogNotes&) = delete;
#ifdef _WIN32
    DialogNotes();
    ~DialogNotes();

private:
    QMap<QString, QVariant> m_before;
#else
    DialogNotes() = default;
    ~DialogNotes() = default;
#endif
};

} // namespace tallyhoop::qt
