// cli/form.cpp - the page on which players fill in their brackets.
#include "cli/reading.h"
#include "cli/verbs.h"
#include "reports/entry_form/entry_form.h"

namespace tallyhoop::cli {

void form(Session& session, const FormOptions& options)
{
    const Field field = readField(session);
    if (field.isFinalized())
        session.write(entryFormPage(field, {options.organiser}));
    else
        session.fault("The field is not finalized yet: there is no entry form.");
}

} // namespace tallyhoop::cli
