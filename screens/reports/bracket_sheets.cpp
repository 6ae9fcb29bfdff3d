// screens/reports/bracket_sheets.cpp - reads the results and the selections, scores them and draws them.
#include "screens/reports/bracket_sheets.h"

#include "files/settings_file.h"
#include "pool/scoring.h"
#include "screens/board/board_drawing.h"
#include "screens/board/board_files.h"
#include "screens/saving.h"
#include "ui/work.h"

namespace tallyhoop {

ui::DrawingPrintout BracketSheets::results() const
{
    const Entry results = BoardFiles{m_folder, m_platform}.readResults(m_field);
    const BoardPicture picture{m_field, results.picks, nullptr, demoModeIsOn(m_folder)};
    return {"Tournament Results", {drawBoard(picture, results, {})}, ui::Orientation::Landscape};
}

std::optional<ui::DrawingPrintout> BracketSheets::scored(std::span<const FolderFile> files) const
{
    const Result<Payoffs>& payoffs = m_field.payoffs.points();
    if (!payoffs) {
        showTrouble(m_platform.dialogs, payoffs.failure());
        return std::nullopt;
    }
    BoardFiles pool{m_folder, m_platform};
    const Entry results = pool.readResults(m_field);
    const bool demo = demoModeIsOn(m_folder);
    ui::DrawingPrintout printout;
    printout.title = files.size() == 1 ? files.front().name : "All Players";
    Work work{m_platform.progress, "Drawing the brackets", files.size()};
    for (const FolderFile& file : files) {
        const Entry entry = pool.read(file.path, m_field).value;
        const Result<PlayerScore> score = scoreEntry(entry, results.picks, *payoffs);
        if (!score) {
            showTrouble(m_platform.dialogs, score.failure());
            continue;
        }
        printout.drawings.push_back(drawBoard({m_field, entry.picks, &score->verdicts, demo}, entry,
                                              ShownScore{score->points, score->maxPoints}));
        if (!work.step())
            return std::nullopt;
    }
    if (printout.drawings.empty())
        return std::nullopt;
    return printout;
}

} // namespace tallyhoop
