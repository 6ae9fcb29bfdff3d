// screens/board/board_screen.h - the bracket board: a player's prediction or the real results, and the program's menus.
//
// board_screen.cpp        loading, showing, moving teams, undo
// board_screen_keys.cpp   keys and focus
// board_screen_files.cpp  New, Open, Save, game results, scoring, printing
#pragma once

#include "files/data_folder.h"
#include "screens/board/board_files.h"
#include "screens/board/board_history.h"
#include "screens/board/board_menus.h"
#include "screens/board/bracket_panel.h"
#include "screens/board/player_strip.h"
#include "screens/board/recent_selections.h"
#include "screens/board_printouts.h"
#include "screens/hand_overs.h"
#include "screens/open_selection.h"
#include "screens/screens.h"
#include "ui/platform.h"
#include "ui/screen.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

enum class MouseButton { Left, Right };

class BoardScreen : public ui::Screen,
                    public BracketPanel,
                    public PlayerStrip,
                    public BoardMenus,
                    public BoardPrintouts,
                    public OpenSelection,
                    private BoardCommands
{
public:
    /// What the board shares with other screens; everything outlives it.
    struct Shared {
        Field& field;                            ///< the open field, read again when the board is loaded
        std::optional<SavedPlayer>& savedPlayer; ///< left for the player list
        std::optional<PlayerScore>&
            listedPlayer;        ///< of the player chosen in the list of scores, whose picks are marked
        bool& folderTroubleSaid; ///< that the folder cannot be written is said once, not whenever a board is loaded
        std::vector<std::filesystem::path>& droppedFiles; ///< left for the import
    };

    BoardScreen(const DataFolder& folder, const ui::Platform& platform, Screens& screens, const Shared& shared);

    // What happens on the bracket.
    void pressPosition(Position position, MouseButton button);
    void dropOnPosition(Position position);
    void pressBackground();

    /// Whether the drag that is under way may end here; false when none is.
    bool mayDropOn(Position position) const;
    bool isDragging() const { return m_drag.has_value(); }

    /// @pre isDragging()
    const std::string& draggedTeam() const { return m_drag->team; }

    /// The drag ended beside the labels.
    void cancelDrag() { m_drag.reset(); }

    /// What the board holds: a player's picks, or the results.
    const Bracket& bracket() const { return m_bracket; }

    // BoardPrintouts
    ui::DrawingPrintout printout() const override;
    void showGameResults() override;
    void showScored(const std::filesystem::path& file) override;
    void printForm() override;
    bool holdsUnsavedResults() const override { return m_resultsMode && unsaved; }
    bool mayBeLeft() override;
    bool mayShowGameResults() override;

    // OpenSelection
    std::filesystem::path openFile() const override { return m_resultsMode ? std::filesystem::path{} : m_openedFile; }
    bool holdsUnsavedChanges() const override { return unsaved; }
    void selectionsWereWritten(std::span<const std::filesystem::path> files) override;

    // Screen
    bool takesFiles() const override { return m_shared.field.isFinalized(); }
    void filesDropped(const std::vector<std::filesystem::path>& files) override;
    std::string helpTopic() const override;
    void showState() override;
    void load() override;
    void unloading() override;
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override;
    void gotFocus(ui::Control& control) override;

private:
    /// A press that may become a drag.
    struct Drag {
        Position source{};
        std::string team; ///< who was there when it was pressed
    };

    // BoardCommands
    void newSelection() override;
    void openSelection() override;
    void saveSelection() override;
    void previewForm() override;
    void undo() override;
    void redo() override;
    void scoreSelections() override;
    void enterGameResults() override;
    void selectHighSeeds() override;
    void openRecent(std::size_t index) override;
    void openNeighbour(int step) override;
    void openFolder() override;
    void backUpPool() override;
    void exportSelections() override;

    // Showing.
    BoardPicture picture() const;
    const Verdicts* shownVerdicts() const;
    BoardState state() const;
    FieldLock fieldLock() const;
    std::string documentName() const;
    std::string whatToDo() const;
    Entry typed() const;
    std::string thisSelection() const;

    // Changing.
    void loadBoard();
    void showEntry(Entry entry);
    void beginUnmarked();
    void setResultsMode(bool on);
    void change(const Bracket& after);
    void wasChanged();
    bool keyOnPosition(Position position, const ui::KeyPress& press);
    void advance(Position position);
    void pickWinner(Position place, std::size_t side);
    void goBack(Position place);
    void moveOnTo(Position place);
    BoardSnapshot snapshot() const;
    void restore(const BoardSnapshot& board);

    // Files.
    bool showSelection(const std::filesystem::path& file);
    void showInstead(const std::function<void()>& show);
    void replaceBoard(const std::function<void()>& show);
    bool fieldIsStillFinal();
    bool mayBeReplaced();
    bool keepResults();
    bool mayBeSaved();
    bool trySaving();
    bool saveResults();
    bool saveSelectionIn(const std::filesystem::path& file, SaveKind kind);
    bool save(const std::filesystem::path& file);
    void markPicks();
    void unmarkPicks();
    void leaveScoreList() { m_screens.unload(ScreenKind::Scores); }

    const DataFolder& m_folder;
    const ui::Platform& m_platform;
    Screens& m_screens;
    Shared m_shared;

    Bracket m_bracket;
    std::optional<Verdicts> m_verdicts; ///< on the picks, while they are marked
    Bracket m_results;                  ///< that they were marked with
    std::optional<ShownScore> m_score;  ///< of the picks, when they were last scored
    std::filesystem::path m_openedFile; ///< opened or saved last; empty after New Selection and at the start
    bool m_resultsMode = false;         ///< the board holds the results
    bool m_resultsThere = false;        ///< a results file was there when it was last looked for
    bool m_selectionsThere = false;     ///< likewise a selection
    bool m_demo = false;

    std::optional<Drag> m_drag;
    std::optional<Position> m_pickedByKey; ///< the game that 1 or 2 filled in, when that was the board's last change
    BoardHistory m_history;
    RecentSelections m_recent;
    int m_sheet = 0; ///< counts the boards that New began
    BoardFiles m_files{m_folder, m_platform};
};

} // namespace tallyhoop
