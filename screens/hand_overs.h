// screens/hand_overs.h - the few values that one screen leaves for another.
#pragma once

#include "pool/scoring.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

/// How the last save of a player's selection ended.
enum class SaveKind {
    SameName, ///< the opened file again under its own name
    NewFile,  ///< a new file, or the opened one under another name
    Replaced, ///< an existing file, after a confirmation
};

/// What a save on the board leaves for the player list: the player to enter there. Taken when that screen opens,
/// dropped when it closes or when the board turns to another selection.
struct SavedPlayer {
    std::string name; ///< name, comma, initials: "Smith,JS"
    std::filesystem::path file;
    SaveKind kind = SaveKind::NewFile;
};

/// What a person has written for a message.
struct MailText {
    std::vector<std::string> recipients; ///< addresses in the order added
    std::string subject;
    std::string message;
};

/// @returns what board and list of scores say of the player whose picks are marked
inline std::string markedPlayer(const PlayerScore& score)
{
    return "Marked: " + score.fileName + ", " + std::to_string(score.points) + " of " + std::to_string(score.maxPoints);
}

/// What a message carries.
enum class MailKind {
    Reports,
    EntryForm, ///< the page on which players fill in their brackets
};

/// What a screen asks of the e-mail dialog, and what that leaves for it.
struct MailDraft {
    MailKind kind = MailKind::Reports;
    bool toEverybody = false; ///< the request: address every player
    MailText proposal{};      ///< the request: subject and message to begin with
    bool cancelled = false;
    std::vector<std::string> recipients;
    std::string subject;
    std::string message;
    std::optional<MailText> unsent{}; ///< what no mail program has taken: the dialog shows it again
};

} // namespace tallyhoop
