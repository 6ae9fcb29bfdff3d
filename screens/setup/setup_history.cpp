// screens/setup/setup_history.cpp - compares the texts one by one to tell a step from a step that goes on.
#include "screens/setup/setup_history.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::size_t kMostSteps = 200;
constexpr std::size_t kMostBytes = 16u << 20; ///< of all steps: a file may hold texts far longer than anybody types

std::vector<std::string> textsOf(const Field& field)
{
    std::vector<std::string> texts{field.teams.values.begin(), field.teams.values.end()};
    texts.push_back(field.title);
    texts.insert(texts.end(), field.regionTitles.begin(), field.regionTitles.end());
    texts.insert(texts.end(), field.payoffs.texts().begin(), field.payoffs.texts().end());
    texts.insert(texts.end(), field.seeds.begin(), field.seeds.end());
    texts.push_back(field.comment1);
    texts.push_back(field.comment2);
    return texts;
}

std::vector<int> differences(const Field& left, const Field& right)
{
    const std::vector<std::string> before = textsOf(left);
    const std::vector<std::string> after = textsOf(right);
    std::vector<int> places;
    for (std::size_t i = 0; i < before.size(); ++i)
        if (before[i] != after[i])
            places.push_back(static_cast<int>(i));
    return places;
}

std::size_t mostStepsBefore(const Field& field)
{
    std::size_t bytes = 1;
    for (const std::string& text : textsOf(field))
        bytes += text.size();
    return std::clamp(kMostBytes / bytes, std::size_t{1}, kMostSteps);
}

} // namespace

void SetupHistory::begin(Field now)
{
    m_now = std::move(now);
    m_past.clear();
    m_future.clear();
    m_lastText.reset();
}

bool SetupHistory::note(Field now)
{
    const std::vector<int> changed = differences(m_now, now);
    if (changed.empty())
        return false;
    const bool isOneText = changed.size() == 1;
    const bool goesOn = isOneText && m_lastText == changed.front() && !m_past.empty();
    m_lastText = isOneText ? std::optional{changed.front()} : std::nullopt;
    if (!goesOn) {
        m_past.push_back(m_now);
    } else if (differences(m_past.back(), now).empty()) {
        m_past.pop_back(); // typed back to what it was: nothing of this step is left to undo
        m_lastText.reset();
    }
    if (const std::size_t most = mostStepsBefore(now); m_past.size() > most)
        m_past.erase(m_past.begin(), m_past.end() - static_cast<std::ptrdiff_t>(most));
    m_future.clear();
    m_now = std::move(now);
    return true;
}

std::optional<Field> SetupHistory::undo() { return step(m_past, m_future); }

std::optional<Field> SetupHistory::redo() { return step(m_future, m_past); }

std::optional<Field> SetupHistory::step(std::vector<Field>& from, std::vector<Field>& to)
{
    if (from.empty())
        return std::nullopt;
    to.push_back(std::exchange(m_now, std::move(from.back())));
    from.pop_back();
    m_lastText.reset();
    return m_now;
}

} // namespace tallyhoop
