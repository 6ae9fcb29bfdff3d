// model/file_messages.h - what the person is told when a data file could not be written.
#pragma once

#include "ui/dialogs.h"

#include <string>
#include <string_view>

namespace tallyhoop {

/// The last line of the message below, for the files that the program itself names.
inline constexpr std::string_view kCheckSpace = " Check for adequate space in the Application Directory";

/// @param shownPath the file's full path as text
/// @param advice    the message's last line
inline ui::Message writingTrouble(std::string_view shownPath, std::string_view advice)
{
    std::string text = "There is a problem writing file: ";
    text += shownPath;
    text += "\r\n";
    text += advice;
    return {"** ERROR IN WRITING FILE **", text, ui::Buttons::Ok, ui::Icon::Critical};
}

} // namespace tallyhoop
