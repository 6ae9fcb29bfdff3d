// cli/page.cpp - the page that shows the pool in a browser.
#include "base/text.h"
#include "cli/reading.h"
#include "cli/verbs.h"
#include "output/pool_page_making.h"

namespace tallyhoop::cli {

void page(Session& session, const PageOptions& options)
{
    const std::optional<OpenedPool> opened = openPool(session);
    if (!opened)
        return;
    const Result<PoolPage> made = makePoolPage(*opened, readPrizes(session), options.weights);
    if (!made) {
        session.fault(made.failure().message);
        return;
    }
    if (made->finalSheet && made->finalSheet->rows.empty())
        session.fault(joined(made->finalSheet->notes, " "));
    session.write(poolPage(*made));
}

} // namespace tallyhoop::cli
