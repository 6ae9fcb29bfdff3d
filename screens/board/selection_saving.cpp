// screens/board/selection_saving.cpp - which file is meant, and what is asked about a new, an existing or another name.
#include "screens/board/selection_saving.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "files/file_names.h"
#include "files/selection_file.h"
#include "files/settings_file.h"

#include <system_error>
#include <utility>

namespace tallyhoop {

namespace {

// Kept letter for letter.
constexpr const char* kNotFinalizedText =
    "The SETUP OPTION must be completed and FINALIZED before a Pool Selection can be saved!";
constexpr const char* kInitialsBlank = "Player Initails field is BLANK, this MUST be corrected!";
constexpr const char* kNameBlank = "Player Name field is BLANK, this MUST be corrected!";
constexpr const char* kPointsInvalid =
    "Final Game - you must enter a valid prediction (between 50 & 250) for the total score of this game";

const char* textOf(EntryFault fault)
{
    switch (fault) {
    case EntryFault::Initials:
        return kInitialsBlank;
    case EntryFault::Name:
        return kNameBlank;
    case EntryFault::FinalPoints:
        break;
    }
    return kPointsInvalid;
}

/// The file that a person means by a chosen name: with our extension, and an existing one in any case of letters.
std::filesystem::path meantFile(std::filesystem::path chosen)
{
    if (!endsWithFolded(shown(chosen.filename()), file_name::kSelectionExtension))
        chosen += file_name::kSelectionExtension;
    // A "?" may stand for any letter that our code page lacks: what is saved under such a name replaces no other file.
    const bool isShownWhole = shown(chosen.filename()).find('?') == std::string::npos;
    return isShownWhole ? findInAnyCase(chosen).value_or(chosen) : chosen;
}

enum class Enter { Agrees, Refuses };

bool confirms(ui::Dialogs& dialogs, std::string question, Enter enter = Enter::Agrees)
{
    return dialogs.show(
               {"", std::move(question), ui::Buttons::YesNo, ui::Icon::Question, {}, enter == Enter::Refuses}) ==
           ui::Answer::Yes;
}

bool isThere(const std::filesystem::path& file)
{
    std::error_code missing;
    return std::filesystem::exists(file, missing);
}

/// @returns "Demo Prophet (DP)", or the one of both that is there; nothing when the file holds nobody's name
std::optional<std::string> playerIn(const std::filesystem::path& file)
{
    const Entry entry = readSelectionFile(file, {}).value;
    const std::string name = withoutOuterBlanks(entry.name);
    const std::string initials = withoutOuterBlanks(entry.initials);
    if (name.empty() && initials.empty())
        return std::nullopt;
    if (name.empty() || initials.empty())
        return name + initials;
    return name + " (" + initials + ")";
}

/// The question about the two names does not say that one of the files would be lost.
bool confirmsLossOf(ui::Dialogs& dialogs, const std::filesystem::path& existing)
{
    const std::optional<std::string> player = playerIn(existing);
    return confirms(dialogs,
                    "There is a file of this name already:    " + shown(existing) + "\r\n" +
                        (player ? "It holds the selection of:    " + *player + "\r\n" : std::string{}) +
                        "\r\n"
                        "Do you want to replace that selection?",
                    Enter::Refuses);
}

void refuse(ui::Dialogs& dialogs, const char* text)
{
    dialogs.show({"", text, ui::Buttons::Ok, ui::Icon::Exclamation});
}

std::optional<SaveTarget> askAboutOpened(ui::Dialogs& dialogs, const DataFolder& folder,
                                         const std::filesystem::path& chosen, const std::filesystem::path& opened)
{
    if (isSameFile(chosen, opened))
        return SaveTarget{opened, SaveKind::SameName};
    if (demoModeIsOn(folder)) {
        refuse(dialogs, "You are not allowed to save a New File \r\n"
                        "Name when executing under DEMO Mode");
        return std::nullopt;
    }
    if (!confirms(dialogs, "You opened the file:    " + shown(opened) +
                               "\r\n"
                               "Now you are attempting to save this \r\n"
                               "  file under the name:    " +
                               shown(chosen) +
                               "\r\n\r\n"
                               "IS THIS CORRECT?"))
        return std::nullopt;
    if (isThere(chosen) && !confirmsLossOf(dialogs, chosen))
        return std::nullopt;
    return SaveTarget{chosen, SaveKind::NewFile};
}

std::optional<SaveTarget> askAboutNew(ui::Dialogs& dialogs, const DataFolder& folder,
                                      const std::filesystem::path& chosen)
{
    if (demoModeIsOn(folder)) {
        refuse(dialogs, "You are not allowed to save a New File \r\n"
                        "when executing under DEMO Mode");
        return std::nullopt;
    }
    if (!isThere(chosen))
        return SaveTarget{chosen, SaveKind::NewFile};
    if (!confirms(dialogs, "Do you want to replace the existing file ?\r\n" + shown(chosen), Enter::Refuses))
        return std::nullopt;
    return SaveTarget{chosen, SaveKind::Replaced};
}

} // namespace

ui::FileChoice selectionChoice(const DataFolder& folder, const char* caption, std::string proposedName)
{
    return {caption, "PoolSelections (*.THC)", "*.THC", folder.folder(), std::move(proposedName)};
}

std::optional<SaveTarget> askWhereToSave(ui::Dialogs& dialogs, const DataFolder& folder, const Entry& entry,
                                         const std::filesystem::path& opened)
{
    const auto chosen =
        dialogs.saveFile(selectionChoice(folder, "Save Selection", proposedFileName(entry.name, entry.initials)));
    if (!chosen)
        return std::nullopt;
    const std::filesystem::path meant = meantFile(*chosen);
    return opened.empty() ? askAboutNew(dialogs, folder, meant) : askAboutOpened(dialogs, folder, meant, opened);
}

void refuseUntilFinalized(ui::Dialogs& dialogs)
{
    dialogs.show({"INVALID REQUEST TO SAVE FILE", kNotFinalizedText, ui::Buttons::Ok, ui::Icon::Exclamation});
}

void refuseToSave(ui::Dialogs& dialogs, EntryFault fault)
{
    dialogs.show({"Required fields are BLANK or invalid", textOf(fault), ui::Buttons::Ok, ui::Icon::Exclamation});
}

} // namespace tallyhoop
