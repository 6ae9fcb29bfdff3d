// tests/screens/printer_setup_test.cpp - font, orientation and the two dialogs before a printout.
#include "screens/printer_setup.h"

#include "fakes/fake_platform.h"

#include <gtest/gtest.h>

namespace tallyhoop {
namespace {

TEST(PrinterSetup, TakesCourierNewAtTenPointsWithoutAMessage)
{
    test::FakePlatform platform;
    platform.printer.fonts = {"Arial", "Courier New", "Courier"};
    const auto setup = setUpPrinter(platform.services, false, ui::Orientation::Portrait);
    ASSERT_TRUE(setup);
    EXPECT_EQ(setup->font, (ui::PrinterFont{"Courier New", 10, false, false}));
    EXPECT_EQ(setup->orientation, ui::Orientation::Portrait);
    EXPECT_TRUE(platform.dialogs.shown.empty());
    EXPECT_EQ(platform.printer.printerDialogs, 0);
    EXPECT_EQ(platform.printer.fontDialogs, 0);
}

TEST(PrinterSetup, TakesTheOrientationItIsGiven)
{
    test::FakePlatform platform;
    EXPECT_EQ(setUpPrinter(platform.services, false, ui::Orientation::Landscape)->orientation,
              ui::Orientation::Landscape);
}

TEST(PrinterSetup, ShowsThePrinterDialogWhenAskedAndEndsWithItsCancel)
{
    test::FakePlatform platform;
    EXPECT_TRUE(setUpPrinter(platform.services, true, ui::Orientation::Portrait));
    EXPECT_EQ(platform.printer.printerDialogs, 1);

    platform.printer.dialogAccepted = false;
    platform.printer.fonts.clear();
    EXPECT_FALSE(setUpPrinter(platform.services, true, ui::Orientation::Portrait));
    EXPECT_TRUE(platform.dialogs.shown.empty()) << "the font is not looked for any more";
}

TEST(PrinterSetup, ExplainsAMissingFontAndTakesThePersonsChoice)
{
    test::FakePlatform platform;
    platform.printer.fonts = {"courier new", "Courier"}; // the name is compared exactly
    platform.printer.chosenFont = ui::PrinterFont{"Courier", 9, true, true};
    const auto setup = setUpPrinter(platform.services, false, ui::Orientation::Landscape);
    ASSERT_TRUE(setup);
    EXPECT_EQ(setup->font, (ui::PrinterFont{"Courier", 9, true, true}));
    EXPECT_EQ(setup->orientation, ui::Orientation::Landscape);
    ASSERT_EQ(platform.dialogs.shown.size(), 1u);
    EXPECT_EQ(platform.dialogs.shown[0].caption, "");
    EXPECT_EQ(platform.dialogs.shown[0].buttons, ui::Buttons::Ok);
    EXPECT_EQ(platform.dialogs.shown[0].text, "Tallyhoop attempted to use the default font: *Courier New*\r\n"
                                              "But, this font isn't supported by your selected printer..\r\n\r\n"
                                              "Please select another font from the following options.\r\n\r\n"
                                              "Fixed-Pitch fonts will produce the most readable report.");
}

TEST(PrinterSetup, EndsWithTheCancelOfTheFontDialog)
{
    test::FakePlatform platform;
    platform.printer.fonts.clear();
    EXPECT_FALSE(setUpPrinter(platform.services, false, ui::Orientation::Portrait));
    EXPECT_EQ(platform.printer.fontDialogs, 1);
}

} // namespace
} // namespace tallyhoop
