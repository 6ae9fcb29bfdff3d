// tests/qt/sample_screen.h - a small screen with one control of every kind, and the page that shows it.
#pragma once

#include "qt/desk.h"
#include "qt/page.h"
#include "ui/screen.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QVBoxLayout>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tallyhoop::qt::test {

class SampleScreen : public ui::Screen
{
public:
    explicit SampleScreen(std::string screenName = "frmSample") : Screen{std::move(screenName), "Sample"}
    {
        txtNotes.multiLine = true;
        mnuFile.children = {&mnuOpen, nullptr, &mnuExit};
        menuBar = {&mnuFile, &mnuReports};
    }

    ui::MenuEntry mnuFile{this, "mnuFile", "&File"};
    ui::MenuEntry mnuOpen{this, "mnuOpen", "&Open...", [this] { log.emplace_back("open"); }, "Ctrl+O"};
    ui::MenuEntry mnuExit{this, "mnuExit", "E&xit", [this] { log.emplace_back("exit"); }};
    ui::MenuEntry mnuReports{this, "mnuReports", "&Reports", [this] { log.emplace_back("reports"); }};
    ui::Label lblTitle{this, "lblTitle", "A title"};
    ui::TextBox txtName{this, "txtName", [this] { log.push_back("name: " + txtName.text); }};
    ui::TextBox txtOther{this, "txtOther"};
    ui::TextBox txtNotes{this, "txtNotes"};
    ui::Command cmdOk{this, "cmdOk", "&OK", [this] {
                          log.emplace_back("ok");
                          if (whenOk)
                              whenOk();
                      }};
    ui::CheckBox chkAll{this, "chkAll", "&All"};
    ui::ControlArray<ui::OptionButton, 3> optChoice{this, "optChoice"};
    ui::ListBox lstRows{this, "lstRows"};
    ui::Grid grdScores{this, "grdScores"};

    std::vector<std::string> log; ///< the calls that the screen received, in order
    std::function<void()> whenOk;
    std::function<bool(ui::Control&, const ui::KeyPress&)> keyRule;
    std::function<bool(ui::TextBox&, const std::string&)> pasteRule;
    bool logFocus = false;
    bool wantsFiles = false;

    void load() override { log.emplace_back("load"); }
    void unloading() override { log.emplace_back("unloading"); }
    void closeRequested() override { log.emplace_back("close"); }
    bool keyPressed(ui::Control& control, const ui::KeyPress& press) override
    {
        return keyRule && keyRule(control, press);
    }
    void gotFocus(ui::Control& control) override
    {
        if (logFocus)
            log.push_back("got " + control.name);
    }
    void lostFocus(ui::Control& control) override
    {
        if (logFocus)
            log.push_back("lost " + control.name);
    }
    bool pasted(ui::TextBox& box, const std::string& text) override { return pasteRule && pasteRule(box, text); }
    bool takesFiles() const override { return wantsFiles; }
    void filesDropped(const std::vector<std::filesystem::path>& files) override
    {
        for (const std::filesystem::path& file : files)
            log.push_back("dropped " + file.generic_string());
    }
};

class SamplePage : public Page
{
public:
    SamplePage(SampleScreen& sample, Desk& desk) : Page{sample, desk}
    {
        auto* layout = new QVBoxLayout;
        layout->addWidget(title = add(sample.lblTitle));
        layout->addWidget(name = static_cast<QLineEdit*>(add(sample.txtName)));
        layout->addWidget(other = static_cast<QLineEdit*>(add(sample.txtOther)));
        layout->addWidget(notes = static_cast<QPlainTextEdit*>(add(sample.txtNotes)));
        layout->addWidget(ok = add(sample.cmdOk));
        layout->addWidget(all = add(sample.chkAll));
        options = addOptions(sample.optChoice);
        for (QRadioButton* option : options)
            layout->addWidget(option);
        layout->addWidget(rows = add(sample.lstRows));
        layout->addWidget(scores = add(sample.grdScores));
        setContent(layout);
        resize(600, 700);
    }

    QLabel* title;
    QLineEdit* name;
    QLineEdit* other;
    QPlainTextEdit* notes;
    QPushButton* ok;
    QCheckBox* all;
    std::vector<QRadioButton*> options;
    QListView* rows;
    QTableView* scores;
};

inline void activate(QWidget& window)
{
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// A desk with one sample screen, its page shown.
struct Shown {
    Shown()
    {
        page.show();
        activate(page);
        desk.push();
        screen.log.clear();
    }

    Desk desk;
    SampleScreen screen;
    SamplePage page{screen, desk};
};

} // namespace tallyhoop::qt::test
