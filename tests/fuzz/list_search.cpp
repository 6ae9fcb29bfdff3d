// tests/fuzz/list_search.cpp - arbitrary keys in an entry box, compared with the rules told once more.
#include "fuzz/targets.h"

#include "base/text.h"
#include "base/windows1252.h"
#include "screens/list_search.h"

#include <cstdint>
#include <vector>

namespace tallyhoop::fuzz {
namespace {

/// What is seen of a box and its list after a key.
struct Seen {
    std::string text;
    int selectionStart = 0;
    int selectionLength = 0;
    bool droppedDown = false;
    std::optional<int> selected;
    std::int16_t keyCode = 0;

    friend bool operator==(const Seen&, const Seen&) = default;
};

struct Box {
    bool isCombo = false;
    bool hasTarget = true;
    bool targetIsList = true;
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

/// The rules in the order in which they are told.
Seen expected(Seen seen, const Box& box, const std::string& typed, const std::vector<std::string>& rows)
{
    const std::int16_t key = seen.keyCode;
    if (!((key >= 32 && key <= 127) || key == 13 || key == 8))
        return seen;
    std::string sought;
    if (key == 8) {
        if (seen.text.empty())
            return seen;
        if (seen.selectionStart - 1 < 1) {
            seen.text.clear();
            seen.selectionStart = 0;
            seen.selectionLength = 0;
            return seen;
        }
        sought = leading(typed, seen.selectionStart - 1);
    } else if (key != 13) {
        sought = (seen.text.empty() ? typed : leading(typed, seen.selectionStart)) + static_cast<char>(key);
    }
    const bool searchesItself = box.isCombo && !box.hasTarget;
    if (key == 13) {
        seen.droppedDown = seen.droppedDown || searchesItself;
        return seen;
    }
    if (!searchesItself && (!box.hasTarget || !box.targetIsList))
        return seen;
    seen.keyCode = 0;
    const std::optional<int> row = firstRow(rows, sought);
    if (!row)
        return seen;
    seen.selected = row;
    if (!box.isCombo || searchesItself)
        seen.text = rows[static_cast<std::size_t>(*row)];
    seen.selectionStart = static_cast<int>(std::min(sought.size(), seen.text.size()));
    seen.selectionLength = static_cast<int>(seen.text.size()) - seen.selectionStart;
    return seen;
}

class Session
{
public:
    Session(const Box& box, std::string text, std::vector<std::string> rows) : m_box{box}, m_rows{std::move(rows)}
    {
        m_source.kind = box.isCombo ? SearchSource::Kind::ComboBox : SearchSource::Kind::TextBox;
        m_source.ownList.isListBox = false;
        m_source.ownList.rows = m_rows;
        m_source.selectionStart = static_cast<int>(text.size());
        m_source.text = std::move(text);
        m_target.rows = m_rows;
        m_target.isListBox = box.targetIsList;
    }

    /// Bytes up to 7F are keys; the others put the caret somewhere, also where no caret can stand.
    Complaint press(unsigned char byte)
    {
        if (byte >= 0x80U) {
            m_source.selectionStart = static_cast<int>(byte % 64U) - 2;
            m_source.selectionLength = static_cast<int>(byte / 64U) - 2;
            return std::nullopt;
        }
        const std::string typed = m_source.text;
        std::int16_t keyCode = byte;
        const Seen before = seen(keyCode);
        ListSearch{}.FindIndexStr(m_source, typed, keyCode, m_box.hasTarget ? &m_target : nullptr);
        if (seen(keyCode) != expected(before, m_box, typed, m_rows))
            return "a key did something else than the rules say";
        if (keyCode != 0)
            insert(static_cast<char>(keyCode));
        return std::nullopt;
    }

private:
    Seen seen(std::int16_t keyCode) const
    {
        return {m_source.text,
                m_source.selectionStart,
                m_source.selectionLength,
                m_source.droppedDown,
                m_box.hasTarget ? m_target.selected : m_source.ownList.selected,
                keyCode};
    }

    /// As a box does with a key that nobody has dealt with.
    void insert(char character)
    {
        const auto caret = static_cast<std::size_t>(std::max(m_source.selectionStart, 0));
        m_source.text.insert(std::min(caret, m_source.text.size()), 1, character);
        m_source.selectionStart = static_cast<int>(std::min(caret + 1, m_source.text.size()));
        m_source.selectionLength = 0;
    }

    Box m_box;
    std::vector<std::string> m_rows;
    SearchSource m_source;
    SearchList m_target;
};

} // namespace

Complaint list_search(std::string_view bytes)
{
    std::vector<std::string> lines = split(bytes, '\n');
    lines.resize(std::max<std::size_t>(lines.size(), 3));
    const auto mode = static_cast<unsigned char>(lines[0].empty() ? '\0' : lines[0].front());
    Session session{{(mode & 1U) != 0, (mode & 2U) == 0, (mode & 4U) == 0},
                    lines[1],
                    std::vector<std::string>{lines.begin() + 3, lines.end()}};
    for (const char key : lines[2])
        if (Complaint complaint = session.press(static_cast<unsigned char>(key)))
            return complaint;
    return std::nullopt;
}

} // namespace tallyhoop::fuzz
