// qt/page_controls.cpp - the widgets of labels, buttons, tick boxes and options, kept in sync with their models.
#include "qt/look.h"
#include "qt/page.h"
#include "qt/text.h"

#include <QButtonGroup>

namespace tallyhoop::qt {

QLabel* Page::add(ui::Label& label)
{
    auto* widget = new QLabel{this};
    widget->setTextFormat(Qt::PlainText);
    return adopt(label, widget, [widget](const ui::Label& shown) {
        widget->setText(toLines(shown.text));
        QPalette palette;
        if (shown.colour)
            palette.setColor(QPalette::WindowText, look::toQColor(*shown.colour));
        if (shown.background)
            palette.setColor(QPalette::Window, look::toQColor(*shown.background));
        widget->setAutoFillBackground(shown.background.has_value());
        widget->setPalette(palette);
    });
}

QPushButton* Page::add(ui::Command& command)
{
    auto* button = new QPushButton{this};
    // In a dialog every button would otherwise react to Enter; the page handles Enter itself, by the model's isDefault.
    button->setAutoDefault(false);
    followCommonParts(command, *button);
    follow(command.caption, [button, &command](const std::string& caption) {
        button->setText(withMnemonic(toQString(caption), command.mnemonic));
    });
    follow(command.isDefault, [button](bool isDefault) { button->setDefault(isDefault); });
    connect(button, &QPushButton::clicked, this, [this, &command] { run([&command] { command.click(); }); });
    return button;
}

QCheckBox* Page::add(ui::CheckBox& box)
{
    auto* widget = new QCheckBox{this};
    widget->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed); // a press anywhere on it ticks it
    followCommonParts(box, *widget);
    follow(box.caption, [widget](const std::string& caption) { widget->setText(toQString(caption)); });
    m_sync.mirror(
        box.ticked, [widget] { return widget->isChecked(); }, [widget](bool ticked) { widget->setChecked(ticked); });
    connect(widget, &QCheckBox::clicked, this, [this, &box] { run(box.changed); });
    return widget;
}

QButtonGroup* Page::newOptionGroup() { return new QButtonGroup{this}; }

QRadioButton* Page::add(ui::OptionButton& option)
{
    if (!m_singleOptions)
        m_singleOptions = newOptionGroup();
    return addToGroup(option, *m_singleOptions);
}

QRadioButton* Page::addToGroup(ui::OptionButton& option, QButtonGroup& group)
{
    auto* button = new QRadioButton{this};
    button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed); // a press anywhere on it selects it
    group.addButton(button);
    followCommonParts(option, *button);
    follow(option.caption, [button](const std::string& caption) { button->setText(toQString(caption)); });
    m_sync.mirror(
        option.selected, [button] { return button->isChecked(); },
        [button, &group](bool selected) {
            // An exclusive group never has none selected; the model may.
            group.setExclusive(false);
            button->setChecked(selected);
            group.setExclusive(true);
        });
    connect(button, &QRadioButton::clicked, this, [this, &option] { run(option.changed); });
    return button;
}

} // namespace tallyhoop::qt
