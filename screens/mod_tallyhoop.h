// screens/mod_tallyhoop.h - what the screens share: one struct, handed to constructors, never a global.
#pragma once

#include "pool/pool_lines.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// What became of a pick.
enum class Verdict : std::int16_t {
    None = 0,
    Good = 1,     ///< decided, and right (also every first-round row whose text matches)
    Bad = 2,      ///< decided and wrong, or open and the team is out, or no pick
    Open = 3,     ///< not decided, and cannot earn points any longer
    Possible = 4, ///< not decided, and can still earn its points
};

/// The verdict on the bracket scored last.
struct ScoredVerdict {
    std::array<Verdict, 130> SlotStatus{};    ///< by slot 1..127
    std::vector<std::string> EliminatedTeams; ///< teams picked for a game they did not win, in order of their loss
};

/// How the last save of a player's selection ended.
enum class SaveKind : char {
    None = 0,
    SameName = 'C', ///< the opened file again under its own name
    NewFile = 'A',  ///< a new file, or the opened one under another name
    Replaced = 'O', ///< an existing file, after a confirmation
};

/// What the board remembers of the file on it.
struct SelectionFileState {
    std::filesystem::path OpenedFile; ///< the file last opened or saved; empty after New Selection and at start
};

/// What a save leaves for the player names screen: the player to enter in the list. Taken when that screen opens,
/// dropped when it closes or when the board turns to another selection.
struct PlayerHandOver {
    std::string LastPlayer; ///< name, comma, initials: "Smith,JS"
    std::filesystem::path file;
    SaveKind LastSaveKind = SaveKind::None;
};

/// The maintained team names while the setup screen is open.
struct TeamNames {
    std::vector<std::string> newNames; ///< typed while selecting was overridden, in the order typed
    bool changed = false;              ///< a name was added, changed or deleted
};

/// What the e-mail dialog leaves for the reports screen.
struct MailDraft {
    std::vector<std::string> recipients;
    std::string subject;
    std::string message;
    bool cancelled = false;
    bool emailAll = false; ///< the request: address every player
};

struct modTallyhoop {
    SetupLines setupLines{};
    std::string currentTitle; ///< the pool's title as read last
    SeedLabels seedLabels{};  ///< as the seed positions screen left them; what the setup writer saves
    SelectionLines selectionLines{};
    ScoredVerdict verdict;
    SelectionFileState selectionFile;
    std::optional<PlayerHandOver> handOver;
    TeamNames teamNames;
    MailDraft mailDraft;
    std::string notice; ///< for the status line of the screen that is loaded next, which takes it; mostly empty
};

} // namespace tallyhoop
