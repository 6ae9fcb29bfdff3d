// tests/qt/hostile_names_typed_test.cpp - hostile names pasted into every box of every window: each is text, and the
// window's layout does not change.
#include "qt/hostile_names_program.h"

#include "base/windows1252.h"
#include "demo/sample_pool.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace tallyhoop::qt {
namespace {

/// What a person pastes, and what a box has to hold afterwards.
struct Pasted {
    std::string kind;
    QString text;
    std::string line;  ///< in a box of one line
    std::string lines; ///< in a box of several
};

void PrintTo(const Pasted& pasted, std::ostream* out) { *out << pasted.kind; }

std::vector<Pasted> allPasted()
{
    using namespace std::string_literals;
    std::vector<Pasted> all{
        {"RightToLeftOverride", QStringLiteral("Smith\u202EHCT.exe"), "Smith?HCT.exe", "Smith?HCT.exe"},
        {"RightToLeftMark", QStringLiteral("\u200FJones\u200F"), "?Jones?", "?Jones?"},
        {"RightToLeftIsolate", QStringLiteral("\u2066Clark\u2069 & Co"), "?Clark? & Co", "?Clark? & Co"},
        {"Hebrew", QStringLiteral("\u05E9\u05DC\u05D5\u05DD"), "????", "????"},
        {"Emoji", QStringLiteral("\U0001F3C0 ball"), "? ball", "? ball"},
        {"AccentInTwoPieces", QStringLiteral("Rene\u0301"), "Ren\xE9", "Ren\xE9"},
        {"Lines", QStringLiteral("one\ntwo\u2029three"), "one two three", "one\r\ntwo\r\nthree"},
    };
    for (const HostileName& hostile : test::hostileNames())
        all.push_back({"File" + hostile.kind, toQString(hostile.text), hostile.text, hostile.text});
    return all;
}

/// Boxes with rules of their own about what may be typed.
bool isChoosy(const ui::Control& box)
{
    static const std::set<std::string> kPlayerFields{"txtName", "txtFileName", "txtEmail", "txtPhone"};
    return box.name.starts_with("txtRegion_") || box.name.starts_with("txtSeed_") || kPlayerFields.contains(box.name);
}

class HostileNamesPasted : public testing::TestWithParam<Pasted>
{
protected:
    HostileNamesPasted()
    {
        EXPECT_TRUE(demo::installSamplePool(folder));
        wireScreens(host, desk, folder, platform.services, shared);
        frame.resize(1366, 708);
        frame.show();
        host.load(ScreenKind::Board);
        QApplication::clipboard()->setText(GetParam().text);
    }
    ~HostileNamesPasted() override { QApplication::clipboard()->clear(); }

    static QString textOf(const QWidget& widget)
    {
        if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
            return line->text();
        return qobject_cast<const QPlainTextEdit*>(&widget)->document()->toRawText();
    }

    void pasteInto(const ui::TextBox& box, QWidget& widget)
    {
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
        if (!isChoosy(box)) {
            EXPECT_EQ(box.text, box.multiLine ? GetParam().lines : GetParam().line) << box.name;
        }
        for (const QChar character : textOf(widget)) {
            const bool ends = box.multiLine && character == QChar::ParagraphSeparator;
            EXPECT_TRUE(ends || byteOf(character.unicode())) << box.name << " holds what cannot be saved";
            EXPECT_TRUE(box.multiLine || (character != QLatin1Char{'\n'} && character != QLatin1Char{'\r'}))
                << box.name << " holds a line break";
        }
    }

    /// Pastes into every box of the screen that a person can write into.
    /// @returns how many boxes there are
    int pasteEverywhere(ScreenKind kind)
    {
        const Page& page = *host.page(kind);
        const QRect before = page.window()->geometry();
        const auto placesBefore = places(page);
        int boxes = 0;
        for (ui::Control* control : page.screen().controls()) {
            const auto* box = dynamic_cast<ui::TextBox*>(control);
            QWidget* const widget = page.widgetOf(*control);
            if (box == nullptr || widget == nullptr || !widget->isVisible() || !widget->isEnabled() || box->locked)
                continue;
            ++boxes;
            pasteInto(*box, *widget);
        }
        QApplication::processEvents();
        EXPECT_TRUE(host.isLoaded(kind));
        EXPECT_EQ(page.window()->geometry(), before);
        EXPECT_EQ(places(page), placesBefore);
        EXPECT_FALSE(page.window()->grab().isNull());
        for (const QLabel* label : page.findChildren<QLabel*>())
            EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
                << label->objectName().toStdString() << " would show markup";
        return boxes;
    }

    /// The places of the controls on their page.
    static std::map<std::string, std::array<int, 4>> places(const Page& page)
    {
        std::map<std::string, std::array<int, 4>> all;
        for (const ui::Control* control : page.screen().controls())
            if (const QWidget* widget = page.widgetOf(*control); widget && widget->isVisible())
                all[control->name] = {widget->x(), widget->y(), widget->width(), widget->height()};
        return all;
    }

    int pasteIntoModal(ScreenKind kind)
    {
        int boxes = 0;
        QTimer::singleShot(0, qApp, [&] {
            boxes = pasteEverywhere(kind);
            desk.runInside(*host.screen(kind), [&] { host.unload(kind); });
        });
        host.load(kind);
        return boxes;
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    SharedValues shared;
    MainFrame frame;
    Desk desk{&frame};
    ScreenHost host{desk, frame};
};

TEST_P(HostileNamesPasted, AreTextOnTheBoard)
{
    auto& board = *host.find<BoardScreen>(ScreenKind::Board);
    platform.dialogs.pick(scratch.path() / "Demo Prophet_DP.THC");
    desk.runInside(board, [&] { board.mnuOpenSelection.click(); });
    EXPECT_EQ(pasteEverywhere(ScreenKind::Board), 3);
}

TEST_P(HostileNamesPasted, AreTextAmongTheReports)
{
    host.load(ScreenKind::Reports);
    EXPECT_EQ(pasteEverywhere(ScreenKind::Reports), 1);
}

TEST_P(HostileNamesPasted, AreTextInThePlayerList)
{
    host.load(ScreenKind::Players);
    EXPECT_EQ(pasteEverywhere(ScreenKind::Players), 3);
}

TEST_P(HostileNamesPasted, AreTextInTheMail) { EXPECT_EQ(pasteIntoModal(ScreenKind::Email), 3); }

TEST_P(HostileNamesPasted, AreTextInTheSetup)
{
    host.load(ScreenKind::Setup);
    EXPECT_EQ(pasteEverywhere(ScreenKind::Setup), 64 + 5 + 6 + 2);
}

TEST_P(HostileNamesPasted, AreTextAmongTheSeeds)
{
    host.load(ScreenKind::Setup);
    EXPECT_EQ(pasteIntoModal(ScreenKind::Seeds), 16);
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesPasted, testing::ValuesIn(allPasted()),
                         [](const auto& values) { return values.param.kind; });

} // namespace
} // namespace tallyhoop::qt
