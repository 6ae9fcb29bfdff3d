// reports/page/page_template.h - the pool's page without a pool; the build makes it of its parts.
#pragma once

#include <string_view>

namespace tallyhoop {

/// HTML in UTF-8 with two places to fill: "@TITLE@" is text, "@POOL@" is JSON inside a script element.
extern const std::string_view kPoolPageTemplate;

} // namespace tallyhoop
