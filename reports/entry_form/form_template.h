// reports/entry_form/form_template.h - the page of the entry form without a field; the build makes it of its parts.
#pragma once

#include <string_view>

namespace tallyhoop {

/// HTML in UTF-8 with two places to fill: "@TITLE@" is text, "@FIELD@" is JSON inside a script element.
extern const std::string_view kEntryFormTemplate;

} // namespace tallyhoop
