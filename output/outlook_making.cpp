// output/outlook_making.cpp - the work to its end, and the rows and words that belong to what it has found.
#include "output/outlook_making.h"

#include "pool/picks.h"
#include "pool/results.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tallyhoop {

Result<MadeOutlook> makeOutlook(const OpenedPool& opened, ChanceKind chances, const Step& step,
                                const OutlookLimits& limits)
{
    const Pool& pool = opened.pool;
    const Result<Payoffs>& payoffs = pool.field.payoffs.points();
    if (!payoffs)
        return payoffs.failure();
    const Bracket results = completedResults(pool.results.value_or(Entry{}), pool.field).picks;
    OutlookWork work{Contest{results, picksOf(pool.entries), *payoffs}, pool.field, chances, limits};
    while (!work.isDone() && work.fraction() < 1 && step())
        work.advance(step);

    MadeOutlook made;
    made.figures = work.figures();
    made.firsts = work.workedOut().firsts;
    made.basis = basisOf(chances, work.contest().games().size(), made.figures);
    made.heading = {pool.field.title, {}, basisInWords(made.basis)};
    std::ranges::move(unreadInWords(opened), std::back_inserter(made.heading.basis));
    made.rows = outlookRows(pool.entries, standingsBy(pool.entries, results, *payoffs), made.figures);
    sortRows(made.rows, {});
    return made;
}

} // namespace tallyhoop
