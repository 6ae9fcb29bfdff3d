// screens/scores/scores_screen.h - the score display: every player's score in a table that is sorted by dragging its
// headings.
#pragma once

#include "files/data_folder.h"
#include "screens/mod_tallyhoop.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

class ScoresScreen : public ui::Screen
{
public:
    ScoresScreen(const DataFolder& folder, const ui::Platform& platform, modTallyhoop& state, Screens& screens,
                 BracketBoard& board);

    std::string helpTopic() const override;
    void load() override;
    void closeRequested() override;
    void unloading() override;

    ui::Command cmdOk{this, "cmdOk", "&Calculate Totals Based on Results Displayed", [this] { calculate(); }};
    ui::Command cmdPrint{this, "cmdPrint", "&Print", [this] { print(); }};
    ui::Command cmdCopy{this, "cmdCopy", "C&opy", [this] { copy(); }};
    ui::Command cmdExit{this, "cmdExit", "E&xit", [this] { exit(); }};
    ui::Label lblInformation{this, "lblInformation",
                             "Select a Heading Column and drag to another position to change sequence"};
    ui::Grid msgScoreDisplay{this, "msgScoreDisplay"}; ///< a row per player once the scores are calculated
    ui::ListBox filList{this, "filList"};              ///< hidden: the selection files of the program's folder

private:
    using Rows = std::vector<std::vector<std::string>>;

    void calculate();
    void print();
    void copy();
    void exit();

    /// @returns a row per player; nothing when the person cancelled
    std::optional<Rows> scoreEverybody(const std::vector<FolderFile>& files, const Payoffs& payoffs);

    void listFiles();
    void showTable(Rows rows);
    void cellClicked(std::size_t row, std::size_t column);
    void headingDropped(std::optional<std::size_t> target);
    void markSelection(const std::string& fileName);
    void showFailure(const Failure& failure);

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    modTallyhoop& m_state;
    Screens& m_screens;
    BracketBoard& m_board;
    std::vector<FolderFile> m_files; ///< what filList lists
};

} // namespace tallyhoop
