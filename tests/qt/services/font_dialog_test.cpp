// tests/qt/services/font_dialog_test.cpp - which families the font dialog offers, and which one is selected.
//
// Runs in processes of its own, each with a font configuration of its own: the fonts whose files are named after the
// test suite on the command line are the only ones there are.
#include "qt/services/qt_printer.h"

#include "fakes/scratch_folder.h"
#include "qt/asking.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontDialog>
#include <QListView>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace tallyhoop::qt {
namespace {

/// What the dialog lists and has selected when it opens.
struct Offered {
    QStringList families;
    QString selected;
    std::optional<ui::PrinterFont> accepted; ///< by Enter, without touching anything
};

Offered offered()
{
    test::Shown shown;
    QtPrinter printer{shown.desk};
    Offered seen;
    test::withNext<QFontDialog>([&](QFontDialog& dialog) {
        const auto* list = dialog.findChild<QListView*>(); // the first of three: families, styles, sizes
        for (int row = 0; row < list->model()->rowCount(); ++row)
            seen.families << list->model()->index(row, 0).data().toString();
        seen.selected = list->currentIndex().data().toString();
        dialog.accept();
    });
    seen.accepted = printer.chooseFont();
    return seen;
}

TEST(WithFixedPitch, OnlySuchFamiliesAreOfferedAndOneIsSelected)
{
    ASSERT_TRUE(QFontDatabase::families().contains(QStringLiteral("DejaVu Sans")));
    const Offered seen = offered();
    EXPECT_TRUE(seen.families.contains(QStringLiteral("DejaVu Sans Mono")));
    EXPECT_FALSE(seen.families.contains(QStringLiteral("DejaVu Sans"))) << "its columns would not line up";
    EXPECT_EQ(seen.selected, QStringLiteral("DejaVu Sans Mono"));
    EXPECT_EQ(seen.accepted, (ui::PrinterFont{"DejaVu Sans Mono", 10, false, false}));
}

TEST(WithoutFixedPitch, AllFamiliesAreOfferedAndOneIsSelected)
{
    const Offered seen = offered();
    EXPECT_TRUE(seen.families.contains(QStringLiteral("DejaVu Sans")));
    EXPECT_TRUE(seen.families.contains(QStringLiteral("DejaVu Serif")));
    EXPECT_TRUE(seen.families.contains(seen.selected)) << seen.selected.toStdString();
    ASSERT_TRUE(seen.accepted);
    EXPECT_EQ(QString::fromStdString(seen.accepted->name), seen.selected);
}

} // namespace
} // namespace tallyhoop::qt

/// @param argv the test suite, then font files
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const tallyhoop::test::ScratchFolder scratch;
    const std::filesystem::path fonts = scratch.path() / "fonts";
    std::filesystem::create_directories(fonts);
    for (int i = 2; i < argc; ++i)
        std::filesystem::copy_file(argv[i], fonts / std::filesystem::path{argv[i]}.filename());
    scratch.put("fonts.conf", "<?xml version=\"1.0\"?><fontconfig><dir>" + fonts.string() + "</dir><cachedir>" +
                                  scratch.path().string() + "/cache</cachedir></fontconfig>");
    qputenv("FONTCONFIG_FILE", QByteArray::fromStdString((scratch.path() / "fonts.conf").string()));
    qputenv("QT_QPA_FONTDIR", QByteArray::fromStdString(fonts.string())); // on Windows, which has no fontconfig
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application{argc, argv};
    testing::GTEST_FLAG(filter) = std::string{argv[1]} + ".*";
    const int failed = RUN_ALL_TESTS();
    return testing::UnitTest::GetInstance()->test_to_run_count() == 1 ? failed : 1;
}
