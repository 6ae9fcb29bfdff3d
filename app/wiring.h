// app/wiring.h - which class each screen is, and what it is handed.
#pragma once

#include "files/data_folder.h"
#include "pool/field.h"
#include "pool/scoring.h"
#include "qt/screen_host.h"
#include "screens/hand_overs.h"
#include "ui/platform.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// What outlives a screen. Nobody gets all of it: each value is handed to the screens that need it.
struct SharedValues {
    Field field;                                       ///< the open field
    std::optional<SavedPlayer> savedPlayer;            ///< from the board to the player list
    std::optional<PlayerScore> listedPlayer;           ///< from the list of scores to the board
    bool folderTroubleSaid = false;                    ///< that the folder cannot be written is said once
    MailDraft mailDraft;                               ///< between the e-mail dialog and those who open it
    std::string organiser{};                           ///< the e-mail address in the entry form, as it was entered last
    std::vector<std::filesystem::path> droppedFiles{}; ///< from the board to the import
};

/// Lets the host make every screen. All arguments must outlive the host's screens.
void wireScreens(qt::ScreenHost& host, qt::Desk& desk, const DataFolder& folder, const ui::Platform& platform,
                 SharedValues& shared);

} // namespace tallyhoop
