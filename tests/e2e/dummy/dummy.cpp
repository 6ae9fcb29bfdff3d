// tests/e2e/dummy/dummy.cpp - a small program with one of everything, on which the end-to-end harness is tested itself.
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

/// Shows where a press began and where the pointer was let go.
class DragLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void mousePressEvent(QMouseEvent* event) override { m_from = event->globalPosition().toPoint(); }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const QPoint way = event->globalPosition().toPoint() - m_from;
        const bool right = event->button() == Qt::RightButton;
        setText(right          ? QStringLiteral("cleared")
                : way.isNull() ? QStringLiteral("clicked")
                               : QStringLiteral("dragged"));
        QPalette colours = palette();
        colours.setColor(foregroundRole(), QColor(0, 255, 0));
        setPalette(colours);
    }

private:
    QPoint m_from;
};

void addMenus(QMainWindow& window, QLabel& said)
{
    QMenu* file = window.menuBar()->addMenu(QStringLiteral("&File"));
    file->menuAction()->setObjectName(QStringLiteral("mnuFile"));
    QAction* open = file->addAction(QStringLiteral("&Open..."));
    open->setObjectName(QStringLiteral("mnuOpen"));
    QObject::connect(open, &QAction::triggered, &window, [&window, &said] {
        said.setText(QDir::toNativeSeparators(QFileDialog::getOpenFileName(&window, QStringLiteral("Open"), {}, {},
                                                                           nullptr, QFileDialog::DontUseNativeDialog)));
    });
    QAction* ask = file->addAction(QStringLiteral("&Ask"));
    ask->setObjectName(QStringLiteral("mnuAsk"));
    ask->setShortcut(QKeySequence(QStringLiteral("Ctrl+J")));
    QObject::connect(ask, &QAction::triggered, &window, [&window, &said] {
        QMessageBox box(QMessageBox::Question, QStringLiteral("** A QUESTION **"), QStringLiteral("Well?\r\nYes?"),
                        QMessageBox::Yes | QMessageBox::No, &window);
        said.setText(box.exec() == QMessageBox::Yes ? QStringLiteral("yes") : QStringLiteral("no"));
    });
    QAction* never = file->addAction(QStringLiteral("&Never"));
    never->setObjectName(QStringLiteral("mnuNever"));
    never->setEnabled(false);
}

QTableWidget* makeTable()
{
    auto* table = new QTableWidget(2, 3);
    table->setObjectName(QStringLiteral("table"));
    table->setHorizontalHeaderLabels({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    table->horizontalHeader()->setSectionsMovable(true);
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            table->setItem(row, column, new QTableWidgetItem(QStringLiteral("%1%2").arg(row).arg(column)));
        }
    }
    return table;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Dummy"));
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto* said = new QLabel(QStringLiteral("nothing yet"));
    said->setObjectName(QStringLiteral("lblSaid"));
    auto* drag = new DragLabel(QStringLiteral("drag me"));
    drag->setObjectName(QStringLiteral("lblDrag"));
    auto* name = new QLineEdit;
    name->setObjectName(QStringLiteral("txtName"));
    auto* greet = new QPushButton(QStringLiteral("&Greet"));
    greet->setObjectName(QStringLiteral("cmdGreet"));
    QObject::connect(greet, &QPushButton::clicked, said,
                     [said, name] { said->setText(QStringLiteral("hello ") + name->text()); });
    for (QWidget* widget : std::initializer_list<QWidget*>{said, drag, name, greet, makeTable()}) {
        layout->addWidget(widget);
    }
    window.setCentralWidget(page);
    addMenus(window, *said);
    window.resize(600, 400);
    window.show();
    return QApplication::exec();
}
