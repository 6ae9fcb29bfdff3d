// app/start_up.cpp - the board comes first; the demo is offered over it when the folder has no pool yet.
#include "app/start_up.h"

#include "files/file_names.h"
#include "screens/demo_mode.h"
#include "screens/help_topics.h"

namespace tallyhoop {

namespace {

constexpr const char* kOfferCaption = "** DEMO MODE OPTION **";
constexpr const char* kOfferText = "It looks like you are just starting to work \r\n"
                                   "with Tallyhoop..  A DEMO Mode is offered\r\n"
                                   "which will allow you to view and evaluate\r\n"
                                   "with information from the 2000 tournament...\r\n"
                                   " \r\n"
                                   "More information is available on DEMO Mode in HELP\r\n"
                                   " \r\n"
                                   "Do you want to initiate DEMO Mode?";

} // namespace

void sayThatItIsOpenAlready(const DataFolder& folder, const ui::Platform& platform)
{
    platform.dialogs.show({"TALLYHOOP IS OPEN ALREADY",
                           "Another Tallyhoop has this folder open:\r\n" + shown(folder.folder()) +
                               "\r\n \r\n"
                               "You can go on here, but it is better to work in one of the two:\r\n"
                               "each shows a file as it was when it was opened there.",
                           ui::Buttons::Ok, ui::Icon::Information});
}

void startUp(const DataFolder& folder, const ui::Platform& platform, Screens& screens)
{
    screens.load(ScreenKind::Board);
    if (folder.exists(file_name::kSetup))
        return;
    const ui::Message offer{kOfferCaption, kOfferText, ui::Buttons::OkCancel, ui::Icon::Question, help_topic::kDemo};
    if (platform.dialogs.show(offer) == ui::Answer::Cancel || !startDemo(folder, platform))
        return;
    screens.unload(ScreenKind::Board);
    screens.load(ScreenKind::Board);
}

} // namespace tallyhoop
