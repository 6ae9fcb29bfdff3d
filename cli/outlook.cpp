// cli/outlook.cpp - the report that the outlook's screen saves, or its figures.
#include "base/lines.h"
#include "cli/json.h"
#include "cli/reading.h"
#include "cli/verbs.h"

namespace tallyhoop::cli {

void outlook(Session& session, const OutlookOptions& options)
{
    const std::optional<OpenedPool> opened = openPool(session);
    if (!opened)
        return;
    const Result<MadeOutlook> made = makeOutlook(*opened, options.weights);
    if (!made)
        session.fault(made.failure().message);
    else if (options.asJson)
        session.write(outlookJson(*made, opened->pool.entries));
    else
        session.writeText(fileOf(outlookLines(made->heading, made->rows)));
}

} // namespace tallyhoop::cli
