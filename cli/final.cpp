// cli/final.cpp - the text of the final sheet, or its figures.
#include "base/lines.h"
#include "cli/json.h"
#include "cli/reading.h"
#include "cli/verbs.h"
#include "output/final_sheet_making.h"

namespace tallyhoop::cli {

void finalSheet(Session& session, const FinalOptions& options)
{
    const std::optional<OpenedPool> opened = openPool(session);
    if (!opened)
        return;
    const Read<Prizes> prizes = readPrizes(session);
    const Result<FinalSheet> made = makeFinalSheet(*opened, prizes.value.table, prizes.trouble);
    if (!made)
        session.fault(made.failure().message);
    else if (options.asJson)
        session.write(finalJson(opened->pool.field.title, *made, opened->pool.entries));
    else
        session.writeText(fileOf(finalSheetLines(opened->pool.field.title, *made)));
}

} // namespace tallyhoop::cli
