// app/main.cpp - the program's entry: creates the services of this computer, the frame and the screens, and runs them.

#include "app/program_folder.h"
#include "app/start_up.h"
#include "app/wiring.h"
#include "files/folder_lock.h"
#include "files/own_program.h"
#include "files/replace_file.h"
#include "qt/colours.h"
#include "qt/desk.h"
#include "qt/look.h"
#include "qt/main_frame.h"
#include "qt/paths.h"
#include "qt/screen_host.h"
#include "qt/services/qt_dialogs.h"
#include "qt/services/qt_help_viewer.h"
#include "qt/services/qt_printer.h"
#include "qt/services/qt_system.h"
#include "qt/text.h"
#include "screens/help_display.h"

#ifdef _WIN32
#include "app/pool_in_documents.h"
#include "app/program_version.h"
#include "qt/services/simple_mapi_mail.h"
#else
#include "qt/services/mail_hand_over.h"
#endif

#include <QApplication>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <cstdlib>

using namespace tallyhoop;

namespace {

/// A pool lives in the folder that holds the executable.
Result<std::filesystem::path> ownFolder()
{
    return programFolder(qt::toPath(QCoreApplication::applicationDirPath()), ownProgram());
}

#ifdef _WIN32
/// Where the program may not write beside itself, offers to go on in a folder of the person's documents.
/// @returns whether the program was started there
bool startedInDocuments(const DataFolder& folder, ui::Dialogs& dialogs)
{
    if (!needsAnotherFolder(folder))
        return false;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const auto copy = offerFolderInDocuments(folder, qt::toPath(documents), programVersion, dialogs);
    return copy && QProcess::startDetached(qt::fromPath(*copy), {}, qt::fromPath(copy->parent_path()));
}
#endif

} // namespace

int main(int argc, char** argv)
{
    outliveFileSizeLimits();
#ifdef _WIN32
    const bool platformIsGiven = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    if (!platformIsGiven)
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2"); // or Qt would not say when the desktop turns dark
#endif
    QApplication application{argc, argv};
#ifdef _WIN32
    if (!platformIsGiven)
        qunsetenv("QT_QPA_PLATFORM"); // not for the programs that are started
#endif
    QApplication::setApplicationName("Tallyhoop");
    QApplication::setApplicationVersion(TALLYHOOP_VERSION);
    QApplication::setQuitOnLastWindowClosed(false); // the screens decide, last loaded first
    qt::look::apply(application);
    // Qt's file dialog would keep notes about itself in the person's home; this program keeps everything in its folder,
    // but for the choice of colours.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, ":/kept-nowhere");
    qt::useColours(qt::keptColours());

    qt::MainFrame frame;
    qt::Desk desk{&frame};
    qt::QtDialogs dialogs{desk};
    const Result<std::filesystem::path> foundFolder = ownFolder();
    if (!foundFolder) {
        dialogs.show({"", foundFolder.failure().message, ui::Buttons::Ok, ui::Icon::Critical});
        return EXIT_FAILURE;
    }
    const DataFolder folder{*foundFolder};
#ifdef _WIN32
    if (startedInDocuments(folder, dialogs))
        return EXIT_SUCCESS;
#endif
    const FolderLock lock{folder.folder()};
    frame.setToolTip(qt::plainToolTip(qt::shownText(qt::toLines(shown(folder.folder())))));
    SharedValues shared;
    qt::QtPrinter printer{desk};
#ifdef _WIN32
    qt::SimpleMapiMail mail{folder, static_cast<std::uintptr_t>(frame.winId())};
#else
    qt::MailHandOver mail{folder};
#endif
    qt::QtHelpViewer help{&frame};
    qt::QtPrograms programs;
    qt::QtClock clock;
    qt::QtProgress progress{desk};
    qt::QtClipboard clipboard;
    const ui::Platform platform{dialogs, printer, mail, help, programs, clock, progress, clipboard};

    qt::ScreenHost host{desk, frame};
    wireScreens(host, desk, folder, platform, shared);
    desk.helpWanted = [&](const std::string& topic) { showHelp(folder, platform, topic); };
    frame.open();
    QTimer::singleShot(0, &frame, [&] {
        if (lock.isHeldElsewhere())
            sayThatItIsOpenAlready(folder, platform);
        startUp(folder, platform, host);
    });
    return QApplication::exec();
}
