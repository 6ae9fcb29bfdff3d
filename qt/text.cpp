// qt/text.cpp - Windows-1252 to UTF-16 and back, and data kept from being read as markup or mnemonics.
#include "qt/text.h"

#include "base/windows1252.h"

#include <QList>
#include <QTextDocument>

namespace tallyhoop::qt {

namespace {

constexpr qsizetype kMostLines = 30; ///< twice as many as our longest message has

/// @returns a text's lines, without those in its middle when they would be taller than a display
QStringList fewEnough(const QStringList& lines)
{
    if (lines.size() <= kMostLines)
        return lines;
    QStringList kept = lines.mid(0, kMostLines / 2);
    kept.append(QStringLiteral("..."));
    kept.append(lines.mid(lines.size() - kMostLines / 2));
    return kept;
}

} // namespace

QString toQString(std::string_view text)
{
    QString shown;
    shown.reserve(static_cast<qsizetype>(text.size()));
    // Every character of Windows-1252 is in the basic plane: one byte is one QChar, so positions are the same on both
    // sides.
    for (const char byte : text)
        shown.append(QChar{static_cast<char16_t>(unicodeOf(static_cast<unsigned char>(byte)))});
    return shown;
}

std::string fromQString(const QString& typed)
{
    std::string text;
    const QList<uint> characters = typed.normalized(QString::NormalizationForm_C).toUcs4();
    text.reserve(static_cast<std::size_t>(characters.size()));
    for (const uint character : characters)
        text.push_back(static_cast<char>(byteOf(character).value_or('?')));
    return text;
}

QString toLines(std::string_view text)
{
    QString shown = toQString(text);
    shown.replace(QLatin1String{"\r\n"}, QLatin1String{"\n"});
    shown.replace(QLatin1Char{'\r'}, QLatin1Char{'\n'});
    return shown;
}

std::string fromLines(const QString& typed)
{
    QString lines = typed;
    lines.replace(QChar{QChar::ParagraphSeparator}, QLatin1Char{'\n'});
    lines.replace(QChar{QChar::LineSeparator}, QLatin1Char{'\n'});
    return withCrLf(fromQString(lines));
}

std::string withCrLf(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (text[i] == '\r' || text[i] == '\n')
            result += "\r\n";
        else
            result += text[i];
        if (pair)
            ++i;
    }
    return result;
}

QString withoutMnemonics(const QString& data) { return QString{data}.replace(QLatin1Char{'&'}, QLatin1String{"&&"}); }

QString withMnemonic(QString caption, char mnemonic)
{
    const QLatin1Char mark{'&'};
    if (mnemonic == 0 || caption.contains(mark))
        return caption;
    const QLatin1Char letter{mnemonic};
    // cppcheck-suppress redundantAssignment  ; there is one assignment
    const auto atWord =
        (QLatin1Char{' '} + caption).indexOf(QLatin1Char{' '} + QString{letter}, 0, Qt::CaseInsensitive);
    const auto at = atWord >= 0 ? atWord : caption.indexOf(letter, 0, Qt::CaseInsensitive);
    return at >= 0 ? caption.insert(at, mark) : caption;
}

QString shownText(const QString& text, qsizetype end)
{
    QStringList lines = text.split(QLatin1Char{'\n'});
    for (QString& line : lines)
        if (line.size() > 2 * end)
            line = line.left(end) + QStringLiteral(" ... ") + line.right(end);
    return fewEnough(lines).join(QLatin1Char{'\n'});
}

QString plainToolTip(const QString& data)
{
    constexpr qsizetype kLongestLine = 80;
    // Only a text that Qt would take for markup, or would not break into lines, needs conversion.
    if (data.size() <= kLongestLine && !Qt::mightBeRichText(data))
        return data;
    const QString lines = data.toHtmlEscaped().replace(QLatin1Char{'\n'}, QLatin1String{"<br>"});
    return QLatin1String{"<qt>"} + lines + QLatin1String{"</qt>"};
}

QString titleText(const QString& data) { return QString{data}.replace(QLatin1String{"[*]"}, QLatin1String{"[*][*]"}); }

} // namespace tallyhoop::qt
