// bench/empty_window.cpp - the least that a Qt program with a main window can be: what our start is measured against.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication application{argc, argv};
    QMainWindow window;
    auto* const content = new QWidget;
    content->setObjectName(QStringLiteral("emptyContent"));
    window.setCentralWidget(content);
    window.resize(1280, 860); // as large as the program's own
    window.show();
    return QApplication::exec();
}
