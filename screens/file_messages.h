// screens/file_messages.h - what the person is told and asked about writing a data file.
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

/// The question before a file is replaced that somebody else has changed.
/// @param shownPath the file's full path as text
inline ui::Message changedMeanwhile(std::string_view shownPath)
{
    std::string text = "Another program has changed the file: ";
    text += shownPath;
    text += "\r\nsince it was opened or last saved here.\r\n"
            " \r\n"
            "If you continue, the changes of the other program will be lost..\r\n"
            " \r\n"
            "Do you want to replace the file?";
    return {"** FILE HAS BEEN CHANGED **", text, ui::Buttons::YesNo, ui::Icon::Question};
}

} // namespace tallyhoop
