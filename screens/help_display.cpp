// screens/help_display.cpp - one message when the help cannot be shown.
#include "screens/help_display.h"

#include "files/file_names.h"

namespace tallyhoop {

namespace {

constexpr const char* kProblemCaption = "** Help File Problem **";
constexpr const char* kProblemText = "Trouble loading the help file, make sure that \r\n"
                                     "TALLYHOOP.HLP is present in the same directory \r\n"
                                     "as the application program.";

} // namespace

void showHelp(const DataFolder& folder, const ui::Platform& platform, const std::string& topic)
{
    const auto file = folder.pathOf(file_name::kHelp);
    if (!file || !platform.help.show(*file, topic))
        platform.dialogs.show({kProblemCaption, kProblemText, ui::Buttons::Ok, ui::Icon::Critical});
}

} // namespace tallyhoop
