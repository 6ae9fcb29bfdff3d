// tests/fakes/fake_screens.h - screens and a board that only remember what they were asked.
#pragma once

#include "screens/screens.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace tallyhoop::test {

class FakeScreens : public Screens
{
public:
    struct Load {
        ScreenKind kind;
        Opening opening;
        friend bool operator==(const Load&, const Load&) = default;
    };
    std::vector<Load> loads;
    std::vector<ScreenKind> unloads;
    std::vector<ScreenKind> raised;
    std::set<ScreenKind> open;
    bool ended = false;
    std::function<void(ScreenKind)> whenLoaded; ///< what a modal screen does

    void load(ScreenKind kind, Opening opening) override
    {
        loads.push_back({kind, opening});
        open.insert(kind);
        if (whenLoaded)
            whenLoaded(kind);
    }
    void unload(ScreenKind kind) override
    {
        unloads.push_back(kind);
        open.erase(kind);
    }
    bool isLoaded(ScreenKind kind) const override { return open.contains(kind); }
    void bringToFront(ScreenKind kind) override { raised.push_back(kind); }
    void endProgram() override { ended = true; }
};

class FakeBoard : public BracketBoard
{
public:
    explicit FakeBoard(modTallyhoop& state) : m_state{state} {}

    SelectionLines onBoard{}; ///< what captureBoard() copies
    Result<Payoffs> shownPayoffs{Payoffs{1, 2, 4, 8, 12, 16}};
    bool reportsEnabled = true;
    bool scoreDisplayOpen = false;
    std::vector<std::string> calls; ///< names of the operations, in order
    std::vector<std::filesystem::path> selectionsShown;
    ui::Drawing picture;

    void captureBoard() override
    {
        calls.emplace_back("captureBoard");
        m_state.selectionLines = onBoard;
    }
    Result<Payoffs> payoffs() const override { return shownPayoffs; }
    void MarkScores() override { calls.emplace_back("MarkScores"); }
    void ClearMarks() override { calls.emplace_back("ClearMarks"); }
    void setScoreDisplayOpen(bool open) override { scoreDisplayOpen = open; }
    void setReportsEnabled(bool enabled) override { reportsEnabled = enabled; }
    void EnterGameResults() override { calls.emplace_back("EnterGameResults"); }
    void ScoreSelections() override { calls.emplace_back("ScoreSelections"); }
    void PrintForm() override { calls.emplace_back("PrintForm"); }
    void showSelection(const std::filesystem::path& file) override
    {
        calls.emplace_back("showSelection");
        selectionsShown.push_back(file);
    }
    ui::Drawing drawing() const override { return picture; }

private:
    modTallyhoop& m_state;
};

} // namespace tallyhoop::test
