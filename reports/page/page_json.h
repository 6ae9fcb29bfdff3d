// reports/page/page_json.h - what the pool's page shows, as JSON.
#pragma once

#include "reports/page/pool_page.h"

#include <string>

namespace tallyhoop {

/// @returns JSON in ASCII without "<", ">" and "&", so that it can be inside of a script element of a page
std::string jsonOf(const PoolPage& page);

} // namespace tallyhoop
