// qt/services/help_window.h - one HTML file with its table of contents, a search and links.
#pragma once

#include <QByteArray>
#include <QMainWindow>
#include <QTextBrowser>
#include <QTextCursor>
#include <vector>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace tallyhoop::qt {

/// Shows one document from memory, so that its links and going back work without further files.
class HelpText : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpText(QWidget* parent);

    void setHelp(QByteArray html);

    /// @param topic an anchor; empty = the beginning
    void showTopic(const QString& topic);

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    QByteArray m_html;
};

class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    /// @param html UTF-8
    void setHelp(const QByteArray& html);
    void showTopic(const QString& topic);
    void clearHistory(); ///< so that Back does not lead to what was read before

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void buildToolBar();
    void fillContents();
    void goTo(QTreeWidgetItem* item);
    void search();
    void step(int direction);
    void showMatch();

    HelpText* m_text;
    QTreeWidget* m_contents;
    QLineEdit* m_search;
    QLabel* m_matchCount;
    QAction* m_next = nullptr;
    QAction* m_previous = nullptr;
    std::vector<QTextCursor> m_matches;
    int m_match = -1; ///< the one shown, -1 = none
};

} // namespace tallyhoop::qt
