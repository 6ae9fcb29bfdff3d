// bench/windows_bench.cpp - the real screens in real windows, on the platform that Qt uses: how long from what a person
// does to what is painted. The scripts beside it make the folder, and set the numbers against a reference.
//
// Before each round it waits for a line on its input, so that a script can interleave its reference. Each figure is a
// line of its own: what, milliseconds until it was painted, milliseconds of processor time.
#include "app/start_up.h"
#include "app/wiring.h"
#include "qt/look.h"
#include "qt/services/mail_hand_over.h"
#include "qt/services/qt_dialogs.h"
#include "qt/services/qt_help_viewer.h"
#include "qt/services/qt_printer.h"
#include "qt/services/qt_system.h"
#include "screens/board/board_screen.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <ctime>
#include <iostream>
#include <map>
#include <random>

namespace tallyhoop::qt {
namespace {

class Program
{
public:
    explicit Program(const std::filesystem::path& path) : folder{path}
    {
        wireScreens(host, desk, folder, platform, shared);
        frame.open();
        startUp(folder, platform, host);
        settle();
    }

    QWidget& page(ScreenKind kind) const { return *host.page(kind); }

    template <class Widget = QWidget>
    Widget& find(ScreenKind kind, const char* name) const
    {
        if (auto* const widget = page(kind).findChild<Widget*>(QLatin1String{name}))
            return *widget;
        std::cerr << "no widget " << name << '\n';
        std::exit(1);
    }

    /// Deals with everything that is still on its way.
    static void settle()
    {
        for (int round = 0; round < 20; ++round)
            QApplication::processEvents(QEventLoop::AllEvents, 10);
    }

    const DataFolder folder;
    SharedValues shared;
    MainFrame frame;
    Desk desk{&frame};
    QtDialogs dialogs{desk};
    QtPrinter printer{desk};
    MailHandOver mail{folder};
    QtHelpViewer help{&frame};
    QtPrograms programs;
    QtClock clock;
    QtProgress progress{desk};
    QtClipboard clipboard;
    const ui::Platform platform{dialogs, printer, mail, help, programs, clock, progress, clipboard};
    ScreenHost host{desk, frame};
};

/// Notices that a widget is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) : m_widget{widget} { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

    /// Lets events happen until it has been painted.
    void wait()
    {
        constexpr std::chrono::seconds kPatience{60};
        for (const auto begin = std::chrono::steady_clock::now(); !m_painted;) {
            QApplication::processEvents();
            if (std::chrono::steady_clock::now() - begin > kPatience) {
                std::cerr << "never painted: " << m_widget.objectName().toStdString() << '\n';
                std::exit(1);
            }
        }
    }

private:
    QWidget& m_widget;
    bool m_painted = false;
};

double processorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Prints how long something took.
template <class Action>
void measure(const char* what, Action action)
{
    const auto begin = std::chrono::steady_clock::now();
    const double processorBegin = processorSeconds();
    action();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
    const double processor = (processorSeconds() - processorBegin) * 1000;
    std::cout << what << ' ' << took.count() << ' ' << processor << std::endl;
}

/// Measures until a widget has been painted.
template <class Action>
void measurePainted(const char* what, QWidget& widget, Action action)
{
    Program::settle();
    measure(what, [&] {
        PaintWatch watch{widget};
        action();
        watch.wait();
    });
}

bool awaitRound()
{
    std::string line;
    return static_cast<bool>(std::getline(std::cin, line));
}

void standings(Program& program)
{
    program.host.load(ScreenKind::Reports);
    const auto tick = [&](const char* name) { program.find<QAbstractButton>(ScreenKind::Reports, name).click(); };
    tick("chkOptions_0");
    tick("optDestination_1");
    auto& create = program.find<QPushButton>(ScreenKind::Reports, "cmdPrintSelections");
    while (awaitRound()) {
        Program::settle();
        measure("standings", [&] { create.click(); });
    }
}

void scores(Program& program)
{
    program.host.find<BoardScreen>(ScreenKind::Board)->showGameResults();
    program.desk.push();
    program.host.load(ScreenKind::Scores);
    auto& grid = program.find<QTableView>(ScreenKind::Scores, "msgScoreDisplay");
    auto& calculate = program.find<QPushButton>(ScreenKind::Scores, "cmdOk");
    QWidget& heading = *grid.horizontalHeader()->viewport();
    const auto middleOf = [&](int column) {
        const QHeaderView& header = *grid.horizontalHeader();
        return QPoint{header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2};
    };
    while (awaitRound()) {
        measurePainted("calculate", *grid.viewport(), [&] { calculate.click(); });
        measurePainted("repaint", *grid.viewport(), [&] { grid.viewport()->update(); });
        for (const auto& [from, to] : {std::pair{2, 0}, {1, 0}, {4, 2}})
            measurePainted("drag", *grid.viewport(), [&, from = from, to = to] {
                QTest::mousePress(&heading, Qt::LeftButton, {}, middleOf(from));
                QTest::mouseRelease(&heading, Qt::LeftButton, {}, middleOf(to));
            });
    }
}

/// Clicks all over a bracket that fills up and is cleared again: every click changes something.
void clicks(Program& program)
{
    auto& board = *program.host.find<BoardScreen>(ScreenKind::Board);
    QWidget& canvas = program.find(ScreenKind::Board, "bracketCanvas");
    const auto click = [&](Position position, Qt::MouseButton button) {
        const std::string name = "lblRegion_" + std::to_string(index(position));
        const QPoint place = program.find(ScreenKind::Board, name.c_str()).geometry().center();
        measurePainted("click", canvas, [&] {
            QTest::mousePress(&canvas, button, {}, place);
            QTest::mouseRelease(&canvas, button, {}, place);
        });
    };
    while (awaitRound())
        for (const Position position : allPositions()) {
            const std::optional<Position> target = next(position);
            if (!target)
                continue;
            const Bracket& bracket = board.bracket();
            if (!bracket.isEmpty(position) && bracket.at(*target) != bracket.at(position))
                click(position, Qt::LeftButton);
            if (index(position) % 9 == 0 && !bracket.isEmpty(*target))
                click(*target, Qt::RightButton);
        }
}

void typeInto(QWidget& box, const char* text, const char* what, QWidget& painted)
{
    box.setFocus();
    for (const char* letter = text; *letter != 0; ++letter)
        measurePainted(what, painted, [&] { QTest::keyClick(&box, *letter); });
}

void names(Program& program)
{
    while (awaitRound()) {
        measure("open", [&] {
            program.host.load(ScreenKind::Players);
            PaintWatch watch{*program.find<QAbstractScrollArea>(ScreenKind::Players, "lstNames").viewport()};
            watch.wait();
        });
        auto& name = program.find(ScreenKind::Players, "txtName");
        typeInto(name, "player0999", "key", name);
        program.host.unload(ScreenKind::Players);
    }
}

void email(Program& program)
{
    while (awaitRound()) {
        const auto begin = std::chrono::steady_clock::now();
        const double processorBegin = processorSeconds();
        // The dialog runs a loop of its own.
        QTimer::singleShot(0, qApp, [&] {
            auto& players = program.find<QAbstractScrollArea>(ScreenKind::Email, "lstPlayerNames");
            PaintWatch{*players.viewport()}.wait();
            const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
            std::cout << "open " << took.count() << ' ' << (processorSeconds() - processorBegin) * 1000 << std::endl;
            auto& entry = program.find(ScreenKind::Email, "txtEntry");
            typeInto(entry, "player0999", "key", entry);
            program.host.unload(ScreenKind::Email);
        });
        program.host.load(ScreenKind::Email);
    }
}

} // namespace
} // namespace tallyhoop::qt

int main(int argc, char** argv)
{
    using namespace tallyhoop::qt;
    const std::map<std::string_view, void (*)(Program&)> kinds{
        {"standings", standings}, {"scores", scores}, {"clicks", clicks}, {"names", names}, {"email", email}};
    const auto kind = kinds.find(argc == 3 ? argv[1] : "");
    if (kind == kinds.end()) {
        std::cerr << "usage: tallyhoop_windows_bench standings|scores|clicks|names|email FOLDER\n";
        return 2;
    }
    qputenv("CUPS_SERVER", "/no/printers");
    QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);
    look::apply(application);
    Program program{argv[2]};
    kind->second(program);
    return 0;
}
