// tests/qt/weapons_program.h - the program over a pool full of names that somebody chose to do harm with.
#pragma once

#include "app/wiring.h"
#include "fakes/fake_platform.h"
#include "fakes/scratch_folder.h"
#include "files/file_names.h"
#include "files/player_names_file.h"
#include "files/selection_file.h"
#include "files/setup_file.h"
#include "qt/main_frame.h"
#include "qt/screen_host.h"
#include "qt/text.h"
#include "screens/board/board_screen.h"
#include "weapons/weapons.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTextDocumentFragment>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tallyhoop::qt {

using test::Weapon;

/// The program with a pool whose title, regions, teams, seeds, comments and players all bear one name.
class WeaponsOnScreens : public testing::TestWithParam<Weapon>
{
protected:
    WeaponsOnScreens()
    {
        putPool();
        registerScreens(host, folder, platform.services, state);
        frame.resize(1200, 800);
        frame.show();
        host.load(ScreenKind::Board);
    }

    const std::string& weapon() const { return GetParam().text; }

    void putPool()
    {
        SetupLines setup = defaultSetupLines();
        for (std::size_t i = 0; i < 64; ++i)
            setup.at(i) = i % 2 == 0 ? weapon() : "Team " + std::to_string(i);
        for (const std::size_t line : {64, 65, 66, 67, 68, 91, 92})
            setup.at(line) = weapon();
        for (std::size_t row = 0; row < kRowsPerRegion; row += 2)
            setup.at(setup_line::kSeed + row) = weapon();
        setup[setup_line::kFinalized] = "1";
        scratch.put(file_name::kSetup, setupFile(setup));

        SelectionLines lines;
        for (int i = 0; i < kPositions; ++i)
            lines.at(static_cast<std::size_t>(i) + 1) = i % 2 == 0 ? weapon() : "Team " + std::to_string(i);
        lines[selection_line::kName] = weapon();
        lines[selection_line::kInitials] = weapon();
        lines[selection_line::kFinalPoints] = "150";
        EXPECT_TRUE(folder.write(fileName, selectionFile(lines)));
        scratch.put(file_name::kResults, selectionFile(lines));
        scratch.put(file_name::kPlayerNames,
                    playerNamesFile(std::vector<PlayerRecord>{{weapon(), weapon(), weapon(), weapon()}}));
    }

    /// Looks at every widget of a screen.
    void examine(ScreenKind kind)
    {
        desk.push();
        QApplication::processEvents();
        Page* const page = host.page(kind);
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(page->windowTitle().remove(QStringLiteral("[*]")),
                  toQString(page->screen().caption).remove(QStringLiteral("[*]")));
        for (const QLabel* label : page->findChildren<QLabel*>()) {
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
                << label->objectName().toStdString() << " would show markup";
        }
        for (const QAbstractButton* button : page->findChildren<QAbstractButton*>()) {
            EXPECT_TRUE(button->shortcut().isEmpty() || !button->text().contains(toQString(weapon())))
                << button->objectName().toStdString() << " has a mnemonic that comes from a name";
        }
        for (const QAction* action : page->findChildren<QAction*>()) {
            EXPECT_FALSE(weapon().size() > 3 && action->text().contains(toQString(weapon())))
                << action->objectName().toStdString();
        }
        examineToolTips(*page);
    }

    void examineToolTips(const Page& page)
    {
        for (const ui::Control* control : page.screen().controls()) {
            const QWidget* widget = page.widgetOf(*control);
            if (widget == nullptr || control->toolTip.empty())
                continue;
            const QString tip = widget->toolTip();
            const QString seen = Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
            EXPECT_EQ(seen.simplified(), toLines(control->toolTip).simplified()) << control->name;
        }
    }

    void examineModal(ScreenKind kind)
    {
        QTimer::singleShot(0, qApp, [&] {
            examine(kind);
            desk.runInside(*host.screen(kind), [&] { host.unload(kind); });
        });
        host.load(kind);
        EXPECT_FALSE(host.isLoaded(kind));
    }

    BoardScreen& board() { return *host.find<BoardScreen>(ScreenKind::Board); }
    void onBoard(const std::function<void()>& command) { desk.runInside(board(), command); }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    const std::string fileName = proposedFileName(weapon(), weapon());
    test::FakePlatform platform;
    modTallyhoop state;
    MainFrame frame;
    Desk desk{&frame};
    ScreenHost host{desk, frame};
};

} // namespace tallyhoop::qt
