// tests/fuzz/list_search.cpp - arbitrary keys in an entry box, compared with the rules put down once more.
#include "fuzz/targets.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "screens/list_search.h"
#include "ui/screen.h"

#include <algorithm>
#include <vector>

namespace tallyhoop::fuzz {
namespace {

/// What is seen of a box and its list after a key.
struct Seen {
    std::string text;
    int selectionStart = 0;
    int selectionLength = 0;
    std::optional<int> selected;
    bool isDealtWith = false;

    friend bool operator==(const Seen&, const Seen&) = default;
};

std::optional<int> firstRow(const std::vector<std::string>& rows, const std::string& prefix)
{
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (equalFolded(std::string_view{rows[row]}.substr(0, prefix.size()), prefix))
            return static_cast<int>(row);
    return std::nullopt;
}

std::string leading(const std::string& text, int count)
{
    return count <= 0 ? std::string{} : text.substr(0, static_cast<std::size_t>(count));
}

/// The rules, one after another.
Seen expected(Seen seen, const ui::KeyPress& press, const std::vector<std::string>& rows)
{
    seen.isDealtWith = false;
    if (press.control)
        return seen;
    std::string sought;
    if (press.key == ui::Key::Backspace) {
        if (seen.text.empty())
            return seen;
        if (seen.selectionStart - 1 < 1)
            return {"", 0, 0, seen.selected, true};
        sought = leading(seen.text, seen.selectionStart - 1);
    } else if (press.key == ui::Key::Character && press.character >= ' ') { // a byte from 80 on is negative
        sought = leading(seen.text, seen.selectionStart) + press.character;
    } else {
        return seen;
    }
    seen.isDealtWith = true;
    const std::optional<int> row = firstRow(rows, sought);
    if (!row)
        return seen;
    seen.selected = row;
    seen.text = rows[static_cast<std::size_t>(*row)];
    seen.selectionStart = static_cast<int>(sought.size());
    seen.selectionLength = static_cast<int>(seen.text.size() - sought.size());
    return seen;
}

ui::KeyPress pressOf(unsigned char byte)
{
    if (byte == 8)
        return {.key = ui::Key::Backspace};
    if (byte == 13)
        return {.key = ui::Key::Enter};
    if (byte < 8)
        return {.key = ui::Key::Character, .character = static_cast<char>('a' + byte), .control = true};
    if (byte < 32)
        return {.key = ui::Key::Other};
    return {.key = ui::Key::Character, .character = static_cast<char>(byte)};
}

class Session
{
public:
    Session(const std::string& text, std::vector<std::string> rows)
    {
        m_box.text = text;
        m_box.selectionStart = static_cast<int>(text.size());
        m_list.rows = std::move(rows);
    }

    /// Bytes 80 to BF put the caret somewhere, also where no caret can be; the others are keys.
    Complaint press(unsigned char byte)
    {
        if (byte >= 0x80U && byte < 0xC0U) {
            m_box.selectionStart = static_cast<int>(byte % 32U) - 2;
            m_box.selectionLength = static_cast<int>(byte / 32U) - 5;
            return std::nullopt;
        }
        const ui::KeyPress press = pressOf(byte);
        const Seen before = seen(false);
        const bool isDealtWith = typeAhead(m_box, m_list, press);
        if (seen(isDealtWith) != expected(before, press, m_list.rows))
            return "a key did something else than the rules say";
        if (!isDealtWith && press.key == ui::Key::Character && !press.control)
            insert(press.character);
        return std::nullopt;
    }

private:
    Seen seen(bool isDealtWith) const
    {
        return {m_box.text, m_box.selectionStart, m_box.selectionLength, m_list.selected, isDealtWith};
    }

    /// As a box does with a key that nobody has dealt with.
    void insert(char character)
    {
        const auto caret = static_cast<std::size_t>(std::max(m_box.selectionStart, 0));
        m_box.text.insert(std::min(caret, m_box.text.size()), 1, character);
        m_box.selectionStart = static_cast<int>(std::min(caret + 1, m_box.text.size()));
        m_box.selectionLength = 0;
    }

    ui::Screen m_screen{"frmSearch", "Search"};
    ui::TextBox m_box{&m_screen, "txtEntry"};
    ui::ListBox m_list{&m_screen, "lstRows"};
};

} // namespace

Complaint list_search(std::string_view bytes)
{
    std::vector<std::string> lines = split(bytes, '\n');
    lines.resize(std::max<std::size_t>(lines.size(), 2));
    Session session{lines[0], std::vector<std::string>{lines.begin() + 2, lines.end()}};
    for (const char key : lines[1])
        if (Complaint complaint = session.press(static_cast<unsigned char>(key)))
            return complaint;
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
