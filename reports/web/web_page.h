// reports/web/web_page.h - texts in a page for the browser: only ever data, whatever is in them.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop {

/// Whether a byte of a text must not be in a page as it is: controls, and what could end a text or begin markup.
bool isEscapedInPage(unsigned char byte);

/// @returns a text as an element's content in UTF-8: markup as character references, controls as blanks
std::string htmlOf(std::string_view text);

/// @param place is in the page
/// @returns the page with a text at the first of these places
std::string filled(std::string_view page, std::string_view place, std::string_view text);

} // namespace tallyhoop
