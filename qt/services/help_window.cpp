// qt/services/help_window.cpp - contents from the document's headings, and steps through the matches of a search.
#include "qt/services/help_window.h"

#include "qt/look.h"
#include "qt/widgets/page_area.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QToolBar>
#include <QTreeWidget>

namespace tallyhoop::qt {

namespace {

constexpr int kBlockRole = Qt::UserRole; ///< the number of the text block with a contents entry's heading
constexpr int kDeepestHeading = 3;
constexpr int kContentsWidth = 260;
constexpr int kTextWidth = 760; ///< fits the lines of the widest usual report without scrolling sideways
constexpr int kHeight = 680;
const QString kSource = QStringLiteral("help.html");

/// A button of the tool bar with its mnemonic: Qt shows one only in a text that is meant for buttons.
QAction* addButton(QToolBar& bar, const QString& caption)
{
    QAction* action = bar.addAction(caption);
    action->setIconText(caption);
    return action;
}

} // namespace

HelpText::HelpText(QWidget* parent) : QTextBrowser{parent}
{
    setObjectName(QStringLiteral("helpText"));
    setAccessibleName(QStringLiteral("Help"));
    setOpenExternalLinks(true);
    document()->setDocumentMargin(look::kSection);
}

void HelpText::setHelp(QByteArray html)
{
    m_html = std::move(html);
    setSource(QUrl{kSource}, QTextDocument::HtmlResource);
    reload();
}

void HelpText::showTopic(const QString& topic)
{
    QUrl url{kSource};
    if (!topic.isEmpty())
        url.setFragment(topic);
    setSource(url, QTextDocument::HtmlResource);
    if (topic.isEmpty())
        verticalScrollBar()->setValue(0);
}

QVariant HelpText::loadResource(int type, const QUrl& name)
{
    // The help is one file in memory: nothing else is read from the disk.
    return type == QTextDocument::HtmlResource && name.path() == kSource ? m_html : QVariant{};
}

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow{parent, Qt::Window},
      m_text{new HelpText{this}},
      m_contents{new QTreeWidget},
      m_search{new QLineEdit},
      m_matchCount{new QLabel}
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("Tallyhoop Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    setContextMenuPolicy(Qt::NoContextMenu);
    m_contents->setObjectName(QStringLiteral("helpContents"));
    m_contents->setAccessibleName(QStringLiteral("Contents"));
    m_contents->setHeaderHidden(true);
    connect(m_contents, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item, QTreeWidgetItem* before) {
        if (before) // The first focus makes the first entry current, which nobody has chosen.
            goTo(item);
    });
    connect(m_contents, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { goTo(item); });

    auto* halves = new QSplitter;
    halves->addWidget(m_contents);
    halves->addWidget(m_text);
    halves->setStretchFactor(1, 1);
    halves->setSizes({kContentsWidth, kTextWidth});
    setCentralWidget(halves);
    buildToolBar();
    m_text->setFocus();
    resize(QSize{kContentsWidth + kTextWidth, kHeight}.boundedTo(roomForWindow(*this)));
}

void HelpWindow::buildToolBar()
{
    auto* bar = addToolBar(QStringLiteral("Help"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    QAction* back = addButton(*bar, QStringLiteral("&Back"));
    connect(back, &QAction::triggered, m_text, &QTextBrowser::backward);
    back->setShortcut(QKeySequence::Back);
    back->setEnabled(false);
    connect(m_text, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    QAction* forward = addButton(*bar, QStringLiteral("&Forward"));
    connect(forward, &QAction::triggered, m_text, &QTextBrowser::forward);
    forward->setShortcut(QKeySequence::Forward);
    forward->setEnabled(false);
    connect(m_text, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    auto* space = new QWidget;
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(space);
    m_search->setObjectName(QStringLiteral("helpSearch"));
    m_search->setPlaceholderText(QStringLiteral("Search"));
    m_search->setAccessibleName(QStringLiteral("Search the help"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(220);
    m_matchCount->setObjectName(QStringLiteral("helpMatches"));
    m_matchCount->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral(" not found ")));
    m_matchCount->setAlignment(Qt::AlignCenter);
    bar->addWidget(m_search);
    bar->addWidget(m_matchCount);
    m_previous = addButton(*bar, QStringLiteral("&Previous"));
    connect(m_previous, &QAction::triggered, this, [this] { step(-1); });
    m_previous->setShortcut(QKeySequence::FindPrevious);
    m_next = addButton(*bar, QStringLiteral("&Next"));
    connect(m_next, &QAction::triggered, this, [this] { step(1); });
    m_next->setShortcut(QKeySequence::FindNext);
    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { step(1); });

    auto* find = new QAction{this};
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    addAction(find);
    search();
}

void HelpWindow::setHelp(const QByteArray& html)
{
    m_text->setHelp(html);
    fillContents();
    search();
}

void HelpWindow::showTopic(const QString& topic) { m_text->showTopic(topic); }

void HelpWindow::clearHistory() { m_text->clearHistory(); }

void HelpWindow::fillContents()
{
    m_contents->clear();
    std::vector<QTreeWidgetItem*> open(kDeepestHeading + 1, nullptr); // the entry last made on each level
    for (QTextBlock block = m_text->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1 || level > kDeepestHeading)
            continue;
        QTreeWidgetItem* above = nullptr;
        for (int i = 1; i < level; ++i)
            above = open[static_cast<std::size_t>(i)] ? open[static_cast<std::size_t>(i)] : above;
        auto* item = above ? new QTreeWidgetItem{above} : new QTreeWidgetItem{m_contents};
        item->setText(0, block.text().trimmed());
        item->setData(0, kBlockRole, block.blockNumber());
        open[static_cast<std::size_t>(level)] = item;
        for (int i = level + 1; i <= kDeepestHeading; ++i)
            open[static_cast<std::size_t>(i)] = nullptr;
    }
}

void HelpWindow::goTo(QTreeWidgetItem* item)
{
    if (!item)
        return;
    const QTextBlock block = m_text->document()->findBlockByNumber(item->data(0, kBlockRole).toInt());
    const QRectF place = m_text->document()->documentLayout()->blockBoundingRect(block);
    m_text->verticalScrollBar()->setValue(static_cast<int>(place.top()) - look::kGap);
}

void HelpWindow::search()
{
    m_matches.clear();
    m_match = -1;
    const QString wanted = m_search->text().trimmed();
    QTextCursor at{m_text->document()};
    while (!wanted.isEmpty()) {
        at = m_text->document()->find(wanted, at);
        if (at.isNull())
            break;
        m_matches.push_back(at);
    }
    step(1);
}

void HelpWindow::step(int direction)
{
    const int count = static_cast<int>(m_matches.size());
    m_next->setEnabled(count > 0);
    m_previous->setEnabled(count > 0);
    if (count > 0)
        m_match = (m_match + direction + count) % count;
    showMatch();
}

void HelpWindow::showMatch()
{
    QList<QTextEdit::ExtraSelection> marks;
    for (std::size_t i = 0; i < m_matches.size(); ++i) {
        const bool current = static_cast<int>(i) == m_match;
        QTextCharFormat format;
        format.setBackground(current ? palette().highlight() : QBrush{QColor{255, 224, 130}});
        format.setForeground(current ? palette().highlightedText() : QBrush{Qt::black});
        marks.push_back({m_matches[i], format});
    }
    m_text->setExtraSelections(marks);
    if (m_search->text().trimmed().isEmpty())
        m_matchCount->clear();
    else if (m_matches.empty())
        m_matchCount->setText(QStringLiteral("not found"));
    else
        m_matchCount->setText(QStringLiteral("%1 of %2").arg(m_match + 1).arg(m_matches.size()));
    if (m_match < 0)
        return;
    QTextCursor start = m_matches[static_cast<std::size_t>(m_match)];
    start.setPosition(start.selectionStart());
    m_text->setTextCursor(start);
    m_text->ensureCursorVisible();
}

/// The links of a document have the colour that links had when it was read: with other colours it is read again.
void HelpWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || m_text->document()->isEmpty())
        return;
    const int place = m_text->verticalScrollBar()->value();
    m_text->reload();
    search(); // the matches were places in the old text
    m_text->verticalScrollBar()->setValue(place);
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}

} // namespace tallyhoop::qt
