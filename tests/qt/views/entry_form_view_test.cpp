// tests/qt/views/entry_form_view_test.cpp - does what is typed and pressed in the dialog reach the form?
#include "qt/views/entry_form_view.h"

#include "fakes/fake_platform.h"
#include "fakes/fake_screens.h"
#include "fakes/scratch_folder.h"

#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

namespace tallyhoop::qt {
namespace {

class EntryFormViewTest : public testing::Test
{
protected:
    EntryFormViewTest()
    {
        field.finalized = "1";
        form.load();
        view.show();
        view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
        desk.push();
    }

    test::ScratchFolder scratch;
    DataFolder folder{scratch.folder()};
    test::FakePlatform platform;
    test::FakeScreens screens;
    Field field = defaultField();
    MailDraft draft;
    std::string organiser;
    EntryFormScreen form{folder, platform.services, screens, EntryFormScreen::Shared{field, draft, organiser}};
    Desk desk;
    EntryFormView view{form, desk};
};

TEST_F(EntryFormViewTest, ShowsEveryControl) { EXPECT_EQ(view.controlsWithoutWidget(), std::vector<std::string>{}); }

TEST_F(EntryFormViewTest, EnterSavesTheFormWithTheTypedAddress)
{
    auto* const box = view.findChild<QLineEdit*>(QStringLiteral("txtOrganiser"));
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->hasFocus());
    platform.dialogs.pick(scratch.path() / "ENTRYFORM.HTML");
    QTest::keyClicks(box, QStringLiteral("org@example.org"));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_NE(scratch.get("ENTRYFORM.HTML").find("org@example.org"), std::string::npos);
    EXPECT_EQ(organiser, "org@example.org");
}

} // namespace
} // namespace tallyhoop::qt
