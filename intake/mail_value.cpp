// intake/mail_value.cpp - takes parameters apart, and joins what continues.
#include "intake/mail_value.h"

#include "intake/encoded_words.h"
#include "intake/mail_text.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <vector>

namespace tallyhoop {

namespace {

/// A parameter as it is written: "filename*0*" is part 0 of "filename", with escapes and perhaps a character set.
struct Piece {
    std::string name;
    int part = 0;
    bool isExtended = false;
    std::string text;
};

Piece pieceOf(std::string_view name, std::string text)
{
    Piece piece;
    if (name.ends_with('*')) {
        piece.isExtended = true;
        name.remove_suffix(1);
    }
    if (const std::size_t star = name.find('*'); star != std::string_view::npos) {
        std::from_chars(name.data() + star + 1, name.data() + name.size(), piece.part);
        name = name.substr(0, star);
    }
    piece.name = inLowerCase(withoutOuterBlanks(name));
    piece.text = std::move(text);
    return piece;
}

/// Takes a text in quotation marks, or one up to the next semicolon.
std::string takeText(std::string_view& rest)
{
    rest = rest.substr(std::min(rest.find_first_not_of(kMailBlanks), rest.size()));
    std::string text;
    if (!rest.starts_with('"')) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        text = withoutOuterBlanks(rest.substr(0, end));
        rest.remove_prefix(end);
        return text;
    }
    std::size_t at = 1;
    for (; at < rest.size() && rest[at] != '"'; ++at) {
        if (rest[at] == '\\' && at + 1 < rest.size())
            ++at;
        text.push_back(rest[at]);
    }
    rest.remove_prefix(std::min(rest.find(';', at), rest.size()));
    return text;
}

std::string withoutPercents(std::string_view text)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned value = 0;
        const bool isEscape =
            text[at] == '%' && at + 2 < text.size() &&
            std::from_chars(text.data() + at + 1, text.data() + at + 3, value, 16).ptr == text.data() + at + 3;
        bytes.push_back(isEscape ? static_cast<char>(value) : text[at]);
        at += isEscape ? 2 : 0;
    }
    return bytes;
}

/// @param pieces of one parameter, in order
std::string joined(const std::vector<Piece>& pieces)
{
    if (!pieces.front().isExtended && pieces.size() == 1)
        return withoutEncodedWords(pieces.front().text);
    std::string charset;
    std::string bytes;
    for (const Piece& piece : pieces) {
        std::string_view text = piece.text;
        if (&piece == &pieces.front() && piece.isExtended) { // charset'language'text
            const std::size_t first = text.find('\'');
            const std::size_t second = text.find('\'', first == std::string_view::npos ? first : first + 1);
            if (second != std::string_view::npos) {
                charset = text.substr(0, first);
                text = text.substr(second + 1);
            }
        }
        bytes += piece.isExtended ? withoutPercents(text) : std::string{text};
    }
    return inUtf8(bytes, charset);
}

} // namespace

std::string MailValue::get(const std::string& name) const
{
    const auto parameter = parameters.find(name);
    return parameter == parameters.end() ? std::string{} : parameter->second;
}

MailValue mailValueOf(std::string_view field)
{
    MailValue taken;
    taken.value = inLowerCase(withoutOuterBlanks(field.substr(0, field.find(';'))));
    field.remove_prefix(std::min(field.find(';'), field.size()));
    std::map<std::string, std::vector<Piece>> pieces;
    while (!field.empty()) {
        field.remove_prefix(1); // the semicolon
        const std::size_t semicolon = std::min(field.find(';'), field.size());
        const std::size_t equals = field.substr(0, semicolon).find('=');
        if (equals == std::string_view::npos) { // no parameter
            field.remove_prefix(semicolon);
            continue;
        }
        const std::string_view name = field.substr(0, equals);
        field.remove_prefix(equals + 1);
        Piece piece = pieceOf(name, takeText(field));
        pieces[piece.name].push_back(std::move(piece));
    }
    for (auto& [name, parts] : pieces) {
        // Whoever knows how says it with escapes; the plain one is for programs that do not understand them.
        if (std::ranges::any_of(parts, &Piece::isExtended) && std::ranges::count(parts, 0, &Piece::part) > 1)
            std::erase_if(parts, [](const Piece& piece) { return !piece.isExtended; });
        std::ranges::stable_sort(parts, {}, &Piece::part);
        taken.parameters[name] = joined(parts);
    }
    return taken;
}

} // namespace tallyhoop
