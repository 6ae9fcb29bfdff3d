// tests/fakes/fake_screens.h - screens and a board that only remember what they were asked.
#pragma once

#include "screens/board_printouts.h"
#include "screens/open_selection.h"
#include "screens/screens.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace tallyhoop::test {

class FakeScreens : public Screens
{
public:
    std::vector<ScreenKind> loads;
    std::vector<std::string> news; ///< one for each load
    std::vector<ScreenKind> unloads;
    std::vector<ScreenKind> raised;
    std::set<ScreenKind> open;
    bool ended = false;
    std::function<void(ScreenKind)> whenLoaded; ///< what a modal screen does

    void load(ScreenKind kind, const std::string& said) override
    {
        loads.push_back(kind);
        news.push_back(said);
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

class FakeOpenSelection : public OpenSelection
{
public:
    std::filesystem::path file; ///< empty = none is open
    bool unsavedChanges = false;
    std::vector<std::filesystem::path> written;

    std::filesystem::path openFile() const override { return file; }
    bool holdsUnsavedChanges() const override { return unsavedChanges; }
    void selectionsWereWritten(std::span<const std::filesystem::path> files) override
    {
        written.insert(written.end(), files.begin(), files.end());
    }
};

class FakeBoard : public BoardPrintouts
{
public:
    std::vector<std::string> calls; ///< names of the operations, in order
    std::vector<std::filesystem::path> filesShown;
    ui::DrawingPrintout picture{"Smith_JS.THC", {ui::Drawing{}}, ui::Orientation::Landscape};

    ui::DrawingPrintout printout() const override { return picture; }
    void showGameResults() override { calls.emplace_back("showGameResults"); }
    void showScored(const std::filesystem::path& file) override
    {
        calls.emplace_back("showScored");
        filesShown.push_back(file);
    }
    void printForm() override { calls.emplace_back("printForm"); }

    bool unsavedResults = false;
    bool isLetGo = true; ///< what the person decides
    bool holdsUnsavedResults() const override { return unsavedResults; }
    bool mayBeLeft() override { return isAsked("mayBeLeft"); }
    bool mayShowGameResults() override { return isAsked("mayShowGameResults"); }

private:
    bool isAsked(const char* question)
    {
        if (unsavedResults)
            calls.emplace_back(question);
        return !unsavedResults || isLetGo;
    }
};

} // namespace tallyhoop::test
