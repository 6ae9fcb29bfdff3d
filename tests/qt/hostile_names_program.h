// tests/qt/hostile_names_program.h - the program with a pool full of hostile names.
#pragma once

#include "app/wiring.h"
#include "base/text.h"
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "hostile/hostile_names.h"
#include "qt/main_frame.h"
#include "qt/screen_host.h"
#include "qt/text.h"
#include "screens/board/board_screen.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tallyhoop::qt {

using tallyhoop::test::HostileName;

/// The program with a pool whose title, regions, teams, seeds, comments and players all have one name.
class ProgramFullOf : public testing::Test
{
protected:
    explicit ProgramFullOf(std::string name) : m_name{std::move(name)}
    {
        putPool();
        wireScreens(host, desk, folder, platform.services, shared);
        frame.resize(1366, 708);
        frame.show();
        host.load(ScreenKind::Board);
    }

    const std::string& hostileName() const { return m_name; }

    void putPool()
    {
        const auto teamOrHostileName = [this](int i) {
            return i % 2 == 0 ? hostileName() : "Team " + std::to_string(i);
        };
        Field field = defaultField();
        for (const TeamRow row : allTeamRows())
            field.teams[row] = teamOrHostileName(index(row));
        field.title = hostileName();
        field.regionTitles.fill(hostileName());
        field.comment1 = field.comment2 = decodeLineBreaks(hostileName());
        for (std::size_t row = 0; row < kRowsPerRegion; row += 2)
            field.seeds.at(row) = hostileName();
        field.finalized = "1";
        scratch.put(file_name::kSetup, setupFile(field));

        Entry entry{{}, hostileName(), hostileName(), "150", {}};
        for (const Position position : allPositions())
            entry.picks.put(position, teamOrHostileName(index(position)));
        EXPECT_TRUE(folder.write(fileName, selectionFile(entry)));
        scratch.put(file_name::kResults, selectionFile(entry));
        scratch.put(file_name::kPlayerNames, playerNamesFile(std::vector<PlayerRecord>{
                                                 {hostileName(), hostileName(), hostileName(), hostileName()}}));
    }

    /// Checks every widget of a screen.
    void examine(ScreenKind kind)
    {
        desk.push();
        QApplication::processEvents();
        Page* const page = host.page(kind);
        ASSERT_NE(page, nullptr);
        for (const QLabel* label : page->findChildren<QLabel*>()) {
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
                << label->objectName().toStdString() << " would show markup";
        }
        for (const QAbstractButton* button : page->findChildren<QAbstractButton*>()) {
            EXPECT_TRUE(button->shortcut().isEmpty() || !button->text().contains(toQString(hostileName())))
                << button->objectName().toStdString() << " has a mnemonic that comes from a name";
        }
        for (const QAction* action : page->findChildren<QAction*>()) {
            // The recent selections are named in the menu, where a single "&" would make a mnemonic.
            const bool mayBeNamed = action->objectName().startsWith(QStringLiteral("mnuRecentFile_")) &&
                                    hostileName().find('&') == std::string::npos;
            EXPECT_FALSE(hostileName().size() > 3 && !mayBeNamed && action->text().contains(toQString(hostileName())))
                << action->objectName().toStdString();
        }
    }

    /// Opens a modal screen, acts and leaves it.
    void insideModal(ScreenKind kind, const std::function<void()>& act)
    {
        QTimer::singleShot(0, qApp, [&] {
            act();
            desk.runInside(*host.screen(kind), [&] { host.unload(kind); });
        });
        host.load(kind);
        EXPECT_FALSE(host.isLoaded(kind));
    }

    void examineModal(ScreenKind kind)
    {
        insideModal(kind, [&] { examine(kind); });
    }

    BoardScreen& board() { return *host.find<BoardScreen>(ScreenKind::Board); }
    void onBoard(const std::function<void()>& command) { desk.runInside(board(), command); }

private:
    std::string m_name;

protected:
    tallyhoop::test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    const std::string fileName = proposedFileName(hostileName(), hostileName());
    tallyhoop::test::FakePlatform platform;
    SharedValues shared;
    MainFrame frame;
    Desk desk{&frame};
    ScreenHost host{desk, frame};
};

} // namespace tallyhoop::qt
