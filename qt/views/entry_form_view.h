// qt/views/entry_form_view.h - the entry form's dialog as the person sees it.
#pragma once

#include "qt/page.h"
#include "screens/entries/entry_form_screen.h"

namespace tallyhoop::qt {

class EntryFormView : public Page
{
public:
    EntryFormView(EntryFormScreen& form, Desk& desk);
};

} // namespace tallyhoop::qt
