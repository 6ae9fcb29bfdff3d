// screens/import/entry_pile.cpp - every change is a new review, with what the person has decided before.
#include "screens/import/entry_pile.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace tallyhoop {

namespace {

std::vector<HandedIn> handedInOf(const Review& review)
{
    std::vector<HandedIn> entries;
    entries.reserve(review.rows.size());
    for (const ReviewRow& row : review.rows)
        entries.push_back(row.handedIn);
    return entries;
}

} // namespace

std::size_t EntryPile::ticked() const
{
    return static_cast<std::size_t>(std::ranges::count_if(m_review.rows, &ReviewRow::isTicked));
}

bool EntryPile::add(std::vector<HandedIn> entries, const Step& step)
{
    std::vector<HandedIn> all = handedInOf(m_review);
    std::ranges::move(entries, std::back_inserter(all));
    bool isStopped = false;
    const auto watched = [&] {
        isStopped = isStopped || !step();
        return !isStopped;
    };
    Review review = reviewOf(std::move(all), m_folder, m_field, watched);
    if (isStopped)
        return false;
    const std::size_t known = size();
    m_review = std::move(review);
    m_decided.resize(size());
    decideAgain(known);
    return true;
}

/// @param known how many rows were there before
void EntryPile::decideAgain(std::size_t known)
{
    for (std::size_t i = 0; i < size(); ++i) {
        const std::optional<std::size_t>& later = m_review.rows[i].later;
        const bool isOutdated = m_decided[i] == true && later && *later >= known;
        if (m_decided[i] && !isOutdated)
            tallyhoop::setTicked(m_review, i, *m_decided[i]);
    }
}

void EntryPile::setTicked(std::size_t row, bool isTicked)
{
    tallyhoop::setTicked(m_review, row, isTicked);
    for (std::size_t i = 0; i < size(); ++i) // a tick takes others away
        if (i == row || (m_decided[i] && *m_decided[i] != m_review.rows[i].isTicked))
            m_decided[i] = m_review.rows[i].isTicked;
}

std::size_t EntryPile::tickAllComplete()
{
    const std::size_t leftOut = tallyhoop::tickAllComplete(m_review);
    for (std::size_t i = 0; i < size(); ++i)
        if (m_review.rows[i].isTicked || m_decided[i])
            m_decided[i] = m_review.rows[i].isTicked;
    return leftOut;
}

void EntryPile::untickAll()
{
    for (std::size_t i = 0; i < size(); ++i)
        tallyhoop::setTicked(m_review, i, false);
    m_decided.assign(size(), false);
}

EntryPile::Imported EntryPile::import(std::chrono::local_seconds now, const Step& step)
{
    Imported imported{importTicked(m_review, m_folder, now, step), {}};
    std::set<std::size_t> left;
    for (const NotWritten& row : imported.outcome.notWritten)
        left.insert(row.row);
    std::vector<HandedIn> entries;
    std::vector<std::optional<bool>> decided;
    for (std::size_t i = 0; i < size(); ++i) {
        ReviewRow& row = m_review.rows[i];
        if (row.isTicked && !left.contains(i)) {
            imported.files.push_back(row.file);
            continue;
        }
        // What was not wanted beside what was written is not wanted afterwards.
        decided.push_back(row.isTicked ? m_decided[i] : false);
        entries.push_back(std::move(row.handedIn));
    }
    clear();
    m_decided = std::move(decided);
    m_review = reviewOf(std::move(entries), m_folder, m_field);
    decideAgain(size());
    return imported;
}

void EntryPile::clear()
{
    m_review = {};
    m_decided.clear();
}

} // namespace tallyhoop
