// qt/look.cpp - sizes and colours derived from the application's font and palette, whatever the desktop has set.
#include "qt/look.h"

#include "qt/line_icon.h"
#include "qt/style.h"
#include "qt/text.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <algorithm>
#include <cmath>

// Resources of a static library are found only when they are asked for by name, outside of every namespace.
static void loadResources() { Q_INIT_RESOURCE(icons); }

namespace tallyhoop::qt::look {

namespace {

QFont scaled(double factor, QFont::Weight weight)
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

double luminance(const QColor& colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

} // namespace

void apply(QApplication&)
{
    loadResources();
    QApplication::setStyle(new Style); // whose polish() corrects the palette, now and whenever the desktop changes it
    QApplication::setWindowIcon(lineIcon(QStringLiteral(":/tallyhoop.svg")));
}

QFont headingFont() { return scaled(1.15, QFont::DemiBold); }
QFont smallFont() { return scaled(0.9, QFont::Normal); }
QFont boldFont() { return scaled(1.0, QFont::DemiBold); }

QFont fixedFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(QApplication::font().pointSizeF());
    return font;
}

QLabel* heading(const QString& text)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setFont(headingFont());
    return label;
}

QLabel* hint(const QString& text)
{
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setFont(smallFont());
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setWordWrap(true);
    return label;
}

QVBoxLayout* column(int spacing)
{
    auto* layout = new QVBoxLayout;
    layout->setSpacing(spacing);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

QHBoxLayout* row(int spacing)
{
    auto* layout = new QHBoxLayout;
    layout->setSpacing(spacing);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

void pageMargins(QLayout& layout) { layout.setContentsMargins(kSection, kSection, kSection, kSection); }

QGroupBox* group(const QString& title, QLayout* content)
{
    auto* box = new QGroupBox{title};
    content->setContentsMargins(kGap + kTight, kGap, kGap + kTight, kGap + kTight);
    box->setLayout(content);
    return box;
}

QColor toQColor(ui::Colour colour) { return QColor{colour.red, colour.green, colour.blue}; }

namespace {

const char* fileOf(ui::MenuIcon icon)
{
    switch (icon) {
    case ui::MenuIcon::None:
        break;
    case ui::MenuIcon::About:
        return "about";
    case ui::MenuIcon::Assist:
        return "assist";
    case ui::MenuIcon::Demo:
        return "demo";
    case ui::MenuIcon::Exit:
        return "exit";
    case ui::MenuIcon::Help:
        return "help";
    case ui::MenuIcon::New:
        return "new";
    case ui::MenuIcon::Open:
        return "open";
    case ui::MenuIcon::People:
        return "people";
    case ui::MenuIcon::Preview:
        return "preview";
    case ui::MenuIcon::Print:
        return "print";
    case ui::MenuIcon::Redo:
        return "redo";
    case ui::MenuIcon::Reset:
        return "reset";
    case ui::MenuIcon::Results:
        return "results";
    case ui::MenuIcon::Save:
        return "save";
    case ui::MenuIcon::Score:
        return "score";
    case ui::MenuIcon::Seeds:
        return "seeds";
    case ui::MenuIcon::Setup:
        return "setup";
    case ui::MenuIcon::Undo:
        return "undo";
    }
    return "";
}

QColor halfway(const QColor& one, const QColor& other)
{
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2, (one.blue() + other.blue()) / 2};
}

} // namespace

QIcon menuIcon(ui::MenuIcon icon)
{
    if (icon == ui::MenuIcon::None)
        return {};
    return lineIcon(QStringLiteral(":/icons/%1.svg").arg(QLatin1String{fileOf(icon)}));
}

void setBackground(QPalette& palette, const QColor& background)
{
    const bool dark = contrast(background, Qt::white) > contrast(background, Qt::black);
    const QColor text = dark ? Qt::white : Qt::black;
    palette.setColor(QPalette::Base, background);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, text); // a paler text would be unreadable on most backgrounds
    palette.setColor(QPalette::Disabled, QPalette::Text, halfway(text, background));
}

double contrast(const QColor& one, const QColor& other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace tallyhoop::qt::look
