// cli/page.cpp - the page that shows the pool in a browser.
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
    if (const std::string why = whyNoFinalSheet(*made); !why.empty())
        session.fault(why);
    session.write(poolPage(*made));
}

} // namespace tallyhoop::cli
