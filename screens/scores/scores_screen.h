// screens/scores/scores_screen.h - every player's score in a table that is sorted by dragging its headings.
#pragma once

#include "files/data_folder.h"
#include "pool/field.h"
#include "pool/scoring.h"
#include "screens/scores/score_table.h"
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
    /// @param results  those on the board, saved or not
    /// @param marked   receives the score of the player chosen here, whose picks the board marks; nothing while none is
    ///                 chosen
    ScoresScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, const Field& field,
                 const Bracket& results, std::optional<PlayerScore>& marked);

    std::string helpTopic() const override;
    void showState() override;
    void load() override;
    void closeRequested() override;
    void unloading() override;

    ui::Command cmdOk{this, "cmdOk", "&Calculate Totals Based on Results Displayed", [this] { calculate(); }};
    ui::Command cmdBestFirst{this, "cmdBestFirst", "&Best First", [this] { bestFirst(); }};
    ui::Command cmdPrint{this, "cmdPrint", "&Print", [this] { print(); }};
    ui::Command cmdPreview{this, "cmdPreview", "Pre&view", [this] { preview(); }};
    ui::Command cmdSavePdf{this, "cmdSavePdf", "Save as P&DF", [this] { savePdf(); }};
    ui::Command cmdCopy{this, "cmdCopy", "C&opy", [this] { copy(); }};
    ui::Command cmdExit{this, "cmdExit", "E&xit", [this] { exit(); }};
    ui::Label lblInformation{this, "lblInformation",
                             "Select a Heading Column and drag to another position to change sequence"};
    ui::Grid msgScoreDisplay{this, "msgScoreDisplay"}; ///< a row per player once the scores are calculated
    ui::ListBox filList{this, "filList"};              ///< hidden: the selection files of the program's folder

private:
    void calculate();
    void bestFirst();
    void print();
    void preview();
    void savePdf();

    /// @returns nothing when the person cancelled the font dialog
    std::optional<ui::TextPrintout> printout() const;
    void copy();
    void exit();

    /// @returns a row per player; nothing when the person cancelled
    std::optional<std::vector<ListedScore>> scoreEverybody(const Payoffs& payoffs);

    /// @returns nothing after the failure was shown
    std::optional<PlayerScore> scoreSelection(const FolderFile& file, const Read<Entry>& selection,
                                              const Payoffs& payoffs);

    void listFiles();
    void showTable(std::vector<ListedScore> rows);
    void cellClicked(std::size_t row, std::size_t column);
    void headingDropped(std::optional<std::size_t> target);
    const FolderFile* fileMeantBy(std::size_t row, std::size_t column) const;
    void markPicksOf(const FolderFile& file);

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    Screens& m_screens;
    const Field& m_field;
    const Bracket& m_results;
    std::optional<PlayerScore>& m_marked;
    std::vector<FolderFile> m_files; ///< what filList lists
    ScoreTable m_table;
};

} // namespace tallyhoop
