// tests/qt/hostile_names_typed_test.cpp - whatever is pasted is text: every hostile name in a box of each kind, and the
// worst of all in every box of every window, whose layout does not change.
#include "qt/hostile_names_program.h"

#include "base/windows1252.h"
#include "qt/sample_screen.h"

#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
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
    std::vector<Pasted> all{
        {"RightToLeftOverride", QStringLiteral("Smith\u202EHCT.exe"), "Smith?HCT.exe", "Smith?HCT.exe"},
        {"RightToLeftMark", QStringLiteral("\u200FJones\u200F"), "?Jones?", "?Jones?"},
        {"RightToLeftIsolate", QStringLiteral("\u2066Clark\u2069 & Co"), "?Clark? & Co", "?Clark? & Co"},
        {"Hebrew", QStringLiteral("\u05E9\u05DC\u05D5\u05DD"), "????", "????"},
        {"Emoji", QStringLiteral("\U0001F3C0 ball"), "? ball", "? ball"},
        {"AccentInTwoPieces", QStringLiteral("Rene\u0301"), "Ren\xE9", "Ren\xE9"},
        {"Lines", QStringLiteral("one\ntwo\u2029three"), "one two three", "one\r\ntwo\r\nthree"},
    };
    for (const HostileName& hostile : tallyhoop::test::hostileNames())
        all.push_back({"File" + hostile.kind, toQString(hostile.text), hostile.text, hostile.text});
    return all;
}

void paste(QWidget& box, const QString& text)
{
    QApplication::clipboard()->setText(text);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QApplication::clipboard()->clear();
}

class HostileNamesPasted : public testing::TestWithParam<Pasted>
{
protected:
    test::Shown shown;
};

TEST_P(HostileNamesPasted, AreTextThatCanBeSaved)
{
    paste(*shown.page.name, GetParam().text);
    EXPECT_EQ(shown.screen.txtName.text, GetParam().line);
    EXPECT_EQ(fromQString(shown.page.name->text()), GetParam().line) << "the box shows something else";
    paste(*shown.page.notes, GetParam().text);
    EXPECT_EQ(shown.screen.txtNotes.text, GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Each, HostileNamesPasted, testing::ValuesIn(allPasted()),
                         [](const auto& values) { return values.param.kind; });

/// A text that shows whether a box is one of ours, and whether it keeps its place.
class HostileTextPastedEverywhere : public ProgramFullOf
{
protected:
    HostileTextPastedEverywhere() : ProgramFullOf{"Adams"} {}

    /// Boxes with rules of their own about what may be typed.
    static bool isChoosy(const ui::Control& box)
    {
        static const std::set<std::string> kPlayerFields{"txtName", "txtFileName", "txtEmail", "txtPhone"};
        return box.name.starts_with("txtRegion_") || box.name.starts_with("txtSeed_") ||
               kPlayerFields.contains(box.name);
    }

    void pasteInto(const ui::TextBox& box, QWidget& widget) const
    {
        paste(widget, QStringLiteral("<b>A&B\n\u202Etwo") + QString(1000, QLatin1Char{'W'}));
        const std::string rest = "?two" + std::string(1000, 'W');
        if (!isChoosy(box)) {
            EXPECT_EQ(box.text, (box.multiLine ? "<b>A&B\r\n" : "<b>A&B ") + rest) << box.name;
        }
        const auto* const line = qobject_cast<const QLineEdit*>(&widget);
        const QString held = line ? line->text() : static_cast<const QPlainTextEdit&>(widget).toPlainText();
        for (const QChar character : held)
            EXPECT_TRUE(byteOf(character.unicode()) && (box.multiLine || character != QLatin1Char{'\n'}))
                << box.name << " holds what cannot be saved";
    }

    /// Pastes into every box of the screen that a person can write into.
    /// @returns how many boxes there are
    int pasteEverywhere(ScreenKind kind)
    {
        desk.push();
        QApplication::processEvents();
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
        return boxes;
    }

    /// The places of the controls on their page.
    static std::map<std::string, QRect> places(const Page& page)
    {
        std::map<std::string, QRect> all;
        for (const ui::Control* control : page.screen().controls())
            if (const QWidget* widget = page.widgetOf(*control); widget && widget->isVisible())
                all[control->name] = widget->geometry();
        return all;
    }

    int pasteIntoModal(ScreenKind kind)
    {
        int boxes = 0;
        insideModal(kind, [&] { boxes = pasteEverywhere(kind); });
        return boxes;
    }
};

TEST_F(HostileTextPastedEverywhere, IsTextOnTheBoard)
{
    platform.dialogs.pick(*folder.pathOf(fileName));
    onBoard([&] { board().mnuOpenSelection.click(); });
    EXPECT_EQ(pasteEverywhere(ScreenKind::Board), 3);
}

TEST_F(HostileTextPastedEverywhere, IsTextAmongTheReports)
{
    host.load(ScreenKind::Reports);
    EXPECT_EQ(pasteEverywhere(ScreenKind::Reports), 1);
}

TEST_F(HostileTextPastedEverywhere, IsTextInThePlayerList)
{
    host.load(ScreenKind::Players);
    EXPECT_EQ(pasteEverywhere(ScreenKind::Players), 3);
}

TEST_F(HostileTextPastedEverywhere, IsTextInTheMail) { EXPECT_EQ(pasteIntoModal(ScreenKind::Email), 3); }

TEST_F(HostileTextPastedEverywhere, IsTextInTheEntryForm) { EXPECT_EQ(pasteIntoModal(ScreenKind::EntryForm), 1); }

TEST_F(HostileTextPastedEverywhere, IsTextInTheSetup)
{
    host.load(ScreenKind::Setup);
    EXPECT_EQ(pasteEverywhere(ScreenKind::Setup), 64 + 5 + 6 + 2);
}

TEST_F(HostileTextPastedEverywhere, IsTextAmongTheSeeds)
{
    host.load(ScreenKind::Setup);
    EXPECT_EQ(pasteIntoModal(ScreenKind::Seeds), 16);
}

} // namespace
} // namespace tallyhoop::qt
