// screens/saving.cpp - the texts, and the check whether somebody else has changed the file.
#include "screens/saving.h"

#include "files/player_names_file.h"
#include "screens/help_topics.h"

namespace tallyhoop {

namespace {

ui::Message writingTrouble(std::string_view shownPath, std::string_view advice)
{
    return {"** ERROR IN WRITING FILE **",
            "There is a problem writing file: " + std::string{shownPath} + "\r\n" + std::string{advice},
            ui::Buttons::Ok, ui::Icon::Critical};
}

ui::Message changedMeanwhile(std::string_view shownPath)
{
    return {"** FILE HAS BEEN CHANGED **",
            "Another program has changed the file: " + std::string{shownPath} +
                "\r\nsince it was opened or last saved here.\r\n"
                " \r\n"
                "If you continue, the changes of the other program will be lost..\r\n"
                " \r\n"
                "Do you want to replace the file?",
            ui::Buttons::YesNo, ui::Icon::Question};
}

} // namespace

bool saveFile(ui::Dialogs& dialogs, KnownFiles& known, const std::filesystem::path& file, std::string_view bytes,
              std::string_view shownPath, std::string_view advice)
{
    if (known.wouldUndoChanges(file, bytes) && dialogs.show(changedMeanwhile(shown(file))) != ui::Answer::Yes)
        return false;
    if (known.replace(file, bytes))
        return true;
    dialogs.show(writingTrouble(shownPath, advice));
    return false;
}

bool saveDataFile(ui::Dialogs& dialogs, KnownFiles& known, const DataFolder& folder, std::string_view name,
                  std::string_view bytes)
{
    return saveFile(dialogs, known, folder.pathTo(name), bytes, folder.shownPathOf(name),
                    " Check for adequate space in the Application Directory");
}

void showReadingTrouble(ui::Dialogs& dialogs, const std::filesystem::path& file)
{
    dialogs.show({"** ERROR IN OPENING FILE - ReadSelections Routine **",
                  "There is a problem opening: " + shown(file) + "\r\n\r\n The program will attempt to continue ......",
                  ui::Buttons::Ok, ui::Icon::Critical});
}

void showTrouble(ui::Dialogs& dialogs, const Failure& failure)
{
    dialogs.show({"", failure.message, ui::Buttons::Ok, ui::Icon::Critical});
}

bool playerListIsSound(ui::Dialogs& dialogs, const DataFolder& folder)
{
    const Result<Done> checked = checkPlayerNames(folder);
    if (!checked)
        dialogs.show({"** ERROR Found in PLAYERNAMES.CSV file **", checked.failure().message, ui::Buttons::Ok,
                      ui::Icon::Critical, help_topic::kRepair});
    return static_cast<bool>(checked);
}

} // namespace tallyhoop
