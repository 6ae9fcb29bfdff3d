// bench/empty_window.cpp - the least that a Qt program with a main window can be: what our start is measured against. A
// text as the only argument is shown in it: the first word brings the fonts in, which is most of the way to any
// content.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication application{argc, argv};
    QMainWindow window;
    QWidget* const content = argc > 1 ? new QLabel{QString::fromLocal8Bit(argv[1])} : new QWidget;
    content->setObjectName(QStringLiteral("emptyContent"));
    window.setCentralWidget(content);
    window.resize(1280, 860); // as large as the program's own
    window.show();
    return QApplication::exec();
}
