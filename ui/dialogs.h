// ui/dialogs.h - how a command asks the person: modal questions as plain synchronous calls.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop::ui {

enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No, More };

/// A message box. The text is plain; its lines are separated by CR LF.
struct Message {
    std::string caption; ///< empty = the application's title
    std::string text;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    std::string helpTopic = {};    ///< where F1 leads while it is shown; empty = to the topic of the current screen
    bool refusalIsDefault = false; ///< Enter answers No or Cancel: the other answer loses something
    std::string moreButton = {};   ///< the caption of a further button, which answers More; empty = none

    friend bool operator==(const Message&, const Message&) = default;
};

/// An input box.
struct Question {
    std::string caption;
    std::string prompt;
    std::string proposal; ///< what is in the box at first
};

/// A file dialog.
struct FileChoice {
    std::string caption;
    std::string filterName; ///< as shown, such as "PoolSelections (*.THC)"
    std::string pattern;    ///< such as "*.THC", or several with blanks between them, matched in any case
    std::filesystem::path folder;
    std::string proposedName; ///< a bare name; empty = none
};

class Dialogs
{
public:
    virtual ~Dialogs() = default;

    /// Shows a message and waits. Escape and the close button give Cancel or No, Ok when there is only Ok.
    virtual Answer show(const Message& message) = 0;

    /// Asks for one line of text. @returns what was typed; empty when cancelled
    virtual std::string ask(const Question& question) = 0;

    /// @returns nothing when cancelled
    virtual std::optional<std::filesystem::path> openFile(const FileChoice& choice) = 0;

    /// Asks for any number of files. @returns nothing when cancelled
    virtual std::vector<std::filesystem::path> openFiles(const FileChoice& choice) = 0;

    /// Never asks about replacing a file: commands have their own question. @returns nothing when cancelled
    virtual std::optional<std::filesystem::path> saveFile(const FileChoice& choice) = 0;

    /// @param folder where the dialog begins. @returns nothing when cancelled
    virtual std::optional<std::filesystem::path> chooseFolder(const std::string& caption,
                                                              const std::filesystem::path& folder) = 0;

    /// Shows the program's about box and waits.
    /// @param folder where the pool is
    virtual void about(const std::filesystem::path& folder) = 0;
};

} // namespace tallyhoop::ui
