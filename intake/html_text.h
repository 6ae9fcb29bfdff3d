// intake/html_text.h - the text of a mail that was sent as a web page only.
#pragma once

#include <string>
#include <string_view>

namespace tallyhoop {

/// Takes the text out of HTML plainly: tags are gone, those that begin a line begin one, entities are characters;
/// what is in the head, in scripts and in styles is left out. Cannot fail: what is no HTML is text.
/// @param utf8 the page
/// @returns UTF-8
std::string textOfHtml(std::string_view utf8);

} // namespace tallyhoop
