// qt/views/import_view.h - the page of the import: what to read above, the entries beside the bracket of one of them.
#pragma once

#include "qt/page.h"
#include "screens/import/import_screen.h"

namespace tallyhoop::qt {

class ImportView : public Page
{
    Q_OBJECT

public:
    ImportView(ImportScreen& import, Desk& desk);

private:
    QLayout* makeSources(ImportScreen& import);
    QLayout* makeList(ImportScreen& import);
    QLayout* makeEntry(ImportScreen& import);
    QLayout* makeSummary(ImportScreen& import);
};

} // namespace tallyhoop::qt
