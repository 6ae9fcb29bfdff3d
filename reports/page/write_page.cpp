// reports/page/write_page.cpp - puts the data into the page's template.
#include "reports/page/page_json.h"
#include "reports/page/page_template.h"
#include "reports/web/web_page.h"

namespace tallyhoop {

std::string poolPage(const PoolPage& page)
{
    // The title's place is the first: what a pool calls "@TITLE@" follows it.
    return filled(filled(kPoolPageTemplate, "@POOL@", jsonOf(page)), "@TITLE@", htmlOf(page.title));
}

} // namespace tallyhoop
