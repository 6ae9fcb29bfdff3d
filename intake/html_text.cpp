// intake/html_text.cpp - tags and entities one after another, without a tree: text is all that is wanted.
#include "intake/html_text.h"

#include "base/windows1252.h"
#include "intake/ascii_search.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace tallyhoop {

namespace {

struct Entity {
    std::string_view name;
    char32_t character;
};

/// Those of ASCII, and those that mail programs write for punctuation and letters outside of Latin-1.
constexpr std::array<Entity, 29> kEntities = {{
    {"amp", U'&'},      {"lt", U'<'},       {"gt", U'>'},       {"quot", U'"'},    {"apos", U'\''},
    {"lsquo", 0x2018},  {"rsquo", 0x2019},  {"sbquo", 0x201A},  {"ldquo", 0x201C}, {"rdquo", 0x201D},
    {"bdquo", 0x201E},  {"lsaquo", 0x2039}, {"rsaquo", 0x203A}, {"ndash", 0x2013}, {"mdash", 0x2014},
    {"hellip", 0x2026}, {"bull", 0x2022},   {"prime", 0x2032},  {"ensp", 0x2002},  {"emsp", 0x2003},
    {"thinsp", 0x2009}, {"zwnj", 0x200C},   {"zwj", 0x200D},    {"euro", 0x20AC},  {"OElig", 0x152},
    {"oelig", 0x153},   {"Scaron", 0x160},  {"scaron", 0x161},  {"Yuml", 0x178},
}};

/// The upper half of Latin-1, from A0 on: mail programs write accented letters by these names.
constexpr char32_t kFirstOfLatin1 = 0xA0;
constexpr std::array<std::string_view, 96> kLatin1 = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

constexpr std::array<std::string_view, 16> kLineTags = {"br", "p",  "div", "tr", "li", "ul", "ol",         "table",
                                                        "h1", "h2", "h3",  "h4", "hr", "td", "blockquote", "pre"};
constexpr std::array<std::string_view, 4> kHiddenTags = {"head", "script", "style", "title"};

/// @param digits after "&#", such as "8217" or "x2019"
std::optional<char32_t> characterOf(std::string_view digits)
{
    const bool isHexadecimal = digits.starts_with('x') || digits.starts_with('X');
    if (isHexadecimal)
        digits.remove_prefix(1);
    unsigned number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number, isHexadecimal ? 16 : 10);
    if (read.ec != std::errc{} || read.ptr != digits.data() + digits.size())
        return std::nullopt;
    if (number == '\t' || number == '\n' || number == '\r')
        return U' ';
    if (number >= 0x80 && number < kFirstOfLatin1)
        return unicodeOf(static_cast<unsigned char>(number)); // meant as bytes of Windows-1252, as browsers take them
    const bool isText = number >= 0x20 && number < 0x10000 && (number < 0xD800 || number > 0xDFFF);
    return isText ? char32_t{number} : U'\uFFFD'; // not a "?", which a name may have
}

std::optional<char32_t> entityOf(std::string_view name)
{
    if (name.starts_with('#'))
        return characterOf(name.substr(1));
    if (const auto* found = std::ranges::find(kEntities, name, &Entity::name); found != kEntities.end())
        return found->character;
    const auto* letter = std::ranges::find(kLatin1, name);
    return letter != kLatin1.end() ? std::optional{kFirstOfLatin1 + static_cast<char32_t>(letter - kLatin1.begin())}
                                   : std::nullopt;
}

/// @returns a tag's name in small letters, without the "/" of one that closes
std::string nameOf(std::string_view tag)
{
    if (tag.starts_with('/'))
        tag.remove_prefix(1);
    std::string name;
    for (const char c : tag.substr(0, tag.find_first_of(" \t\r\n/>")))
        name.push_back(static_cast<char>(folded(static_cast<unsigned char>(c))));
    return name;
}

class HtmlText
{
public:
    explicit HtmlText(std::string_view html) : m_html{html} {}

    std::string take()
    {
        while (m_at < m_html.size()) {
            if (m_html[m_at] == '<' && takeTag())
                continue;
            if (m_html[m_at] == '&' && takeEntity())
                continue;
            const char c = m_html[m_at++];
            m_text.push_back(c == '\r' || c == '\n' || c == '\t' ? ' ' : c); // lines are made by tags only
        }
        return std::move(m_text);
    }

private:
    /// @returns false for a "<" that begins no tag
    bool takeTag()
    {
        const std::string_view rest = m_html.substr(m_at + 1);
        if (rest.starts_with("!--")) {
            moveAfter(m_html.find("-->", m_at + 4), 3);
            return true;
        }
        const bool begins = !rest.empty() && (rest.front() == '/' || rest.front() == '!' || rest.front() == '?' ||
                                              (folded(static_cast<unsigned char>(rest.front())) >= 'a' &&
                                               folded(static_cast<unsigned char>(rest.front())) <= 'z'));
        const std::size_t end = begins && m_mayHaveTags ? rest.find('>') : std::string_view::npos;
        if (end == std::string_view::npos) {
            m_mayHaveTags = m_mayHaveTags && !begins; // looking for it again at every "<" would take hours
            return false;
        }
        const std::string name = nameOf(rest.substr(0, end));
        m_at += end + 2;
        if (isOneOf(kHiddenTags, name) && rest.front() != '/')
            moveAfter(findInAnyCase(m_html, "</" + name, m_at), 0);
        if (isOneOf(kLineTags, name))
            m_text.push_back('\n');
        return true;
    }

    /// Moves on after something that was found, to the end when it was not.
    void moveAfter(std::size_t found, std::size_t size)
    {
        m_at = found == std::string_view::npos ? m_html.size() : found + size;
    }

    /// @returns false for a "&" that begins no entity
    bool takeEntity()
    {
        constexpr std::size_t kLongest = 10;
        const std::string_view rest = m_html.substr(m_at + 1, kLongest);
        const std::size_t end = rest.find(';');
        const std::optional<char32_t> character =
            end == std::string_view::npos ? std::nullopt : entityOf(rest.substr(0, end));
        if (!character)
            return false;
        appendUtf8(m_text, *character);
        m_at += end + 2;
        return true;
    }

    std::string_view m_html;
    std::size_t m_at = 0;
    bool m_mayHaveTags = true; ///< false = no ">" is left
    std::string m_text;
};

} // namespace

std::string textOfHtml(std::string_view utf8) { return HtmlText{utf8}.take(); }

} // namespace tallyhoop
