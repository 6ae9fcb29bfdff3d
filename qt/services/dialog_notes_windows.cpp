// qt/services/dialog_notes_windows.cpp - reads the notes, and writes them back.
#include "qt/services/dialog_notes.h"

#include <QSettings>

namespace tallyhoop::qt {

namespace {

const QLatin1String kOrganization{"QtProject"};
const QLatin1String kNotes{"FileDialog"};

} // namespace

DialogNotes::DialogNotes()
{
    QSettings settings{QSettings::UserScope, kOrganization};
    settings.beginGroup(kNotes);
    const QStringList keys = settings.allKeys();
    for (const QString& key : keys)
        m_before.insert(key, settings.value(key));
}

DialogNotes::~DialogNotes()
{
    QSettings settings{QSettings::UserScope, kOrganization};
    settings.beginGroup(kNotes);
    settings.remove({}); // all of them
    for (auto note = m_before.cbegin(); note != m_before.cend(); ++note)
        settings.setValue(note.key(), note.value());
}

} // namespace tallyhoop::qt
