// tests/screens/setup/setup_fixture.h - a setup screen in a folder of its own, worked by a person without windows.
#pragma once

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"
#include "screens/setup/setup_screen.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

namespace tallyhoop::test {

/// A list of nine teams in alphabetical order.
inline std::string smallTeamList()
{
    return crlf(
        {"*START*", "Akron", "Duke", "Duquesne", "Iowa", "Iowa St.", "Kansas", "LSU", "Ohio", "Texas", "*END*"});
}

/// The folder, the fakes and the screen. loaded() makes and loads it, after the test has put its files there.
class SetupFixture : public ::testing::Test
{
protected:
    ScratchFolder files;
    DataFolder folder = files.folder();
    FakePlatform computer;
    FakeScreens screens;
    Field field; ///< the open one
    std::unique_ptr<SetupScreen> made;

    FakeDialogs& dialogs() { return computer.dialogs; }

    SetupScreen& loaded()
    {
        if (!files.has("NCAALIST.THS"))
            files.put("NCAALIST.THS", smallTeamList());
        return loadedAsIs();
    }

    SetupScreen& loadedAsIs()
    {
        made = std::make_unique<SetupScreen>(folder, computer.services, screens, field);
        screens.open.insert(ScreenKind::Setup);
        made->load();
        settle();
        return *made;
    }

    /// Does what the windows do after each command: a moved focus is reported, first who lost it, then who got it, and
    /// the screen shows its state.
    void settle()
    {
        if (made->focused != m_reported) {
            if (m_reported != nullptr)
                made->lostFocus(*m_reported);
            m_reported = made->focused;
            if (m_reported != nullptr)
                made->gotFocus(*m_reported);
        }
        made->showState();
    }

    void focus(ui::Control& control)
    {
        made->focused = &control;
        settle();
    }

    /// @returns whether the screen dealt with the key
    bool press(ui::Key key)
    {
        const bool consumed = made->keyPressed(*made->focused, ui::KeyPress{key});
        settle();
        return consumed;
    }

    bool type(char character)
    {
        const bool consumed = made->keyPressed(*made->focused, ui::KeyPress{ui::Key::Character, character});
        settle();
        return consumed;
    }

    void type(std::string_view text)
    {
        for (const char character : text)
            type(character);
    }

    void click(ui::Command& command)
    {
        made->focused = &command;
        settle();
        command.click();
        settle();
    }

    /// The mouse presses a row of the list.
    void pressRow(int row)
    {
        focus(made->lstTeamNames);
        made->lstTeamNames.selected = row;
        made->lstTeamNames.pressed();
        settle();
    }

    /// Types into a box that takes any text.
    void edit(ui::TextBox& box, const std::string& text)
    {
        focus(box);
        box.text = text;
        if (box.edited)
            box.edited();
        settle();
    }

    /// @returns whether the screen dealt with the text
    bool paste(ui::TextBox& box, const std::string& text)
    {
        const bool dealtWith = made->pasted(box, text);
        settle();
        return dealtWith;
    }

    bool isOverridden() const { return !made->lstTeamNames.enabled; }
    bool isFinalizing() const { return !made->cmdFinalize.enabled; }

    std::vector<std::string> teams(std::size_t first, std::size_t count) const
    {
        std::vector<std::string> texts;
        for (std::size_t i = first; i < first + count; ++i)
            texts.push_back(made->txtRegion[i].text);
        return texts;
    }

private:
    ui::Control* m_reported = nullptr;
};

} // namespace tallyhoop::test
