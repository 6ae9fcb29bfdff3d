// screens/board/player_strip.cpp - the boxes' words and locks, and the order in which Enter goes through them.
#include "screens/board/player_strip.h"

#include "screens/board/board_picture.h"

#include <algorithm>
#include <utility>

namespace tallyhoop {

PlayerStrip::PlayerStrip(ui::Screen* owner, std::function<void()> edited, std::function<void()> unmarkPicks)
    : m_owner{owner},
      m_edited{std::move(edited)},
      cmdDefaultColors{owner, "cmdDefaultColors", "Default &Colors", std::move(unmarkPicks)}
{
    lblPlayerInitials.text = kInitialsCaption;
    lblPlayerName.text = kNameCaption;
    lblFinalPoints.text = kFinalPointsCaption;
    for (ui::TextBox* comment : {&txtComment1, &txtComment2}) {
        comment->multiLine = true;
        comment->locked = true;
        comment->tabStop = false;
    }
    txtPlayerInitials.tabIndex = 140;
    txtPlayerName.tabIndex = 141;
    txtFinalPoints.tabIndex = 143;
    txtPointScore.locked = true;
    txtPointScore.tabStop = false;
    putIntoWords();
}

void PlayerStrip::putIntoWords()
{
    txtComment1.spokenName = "First comment of the organiser";
    txtComment2.spokenName = "Second comment of the organiser";
    txtPlayerInitials.spokenName = "Player's initials";
    txtPlayerName.spokenName = "Player's name";
    txtFinalPoints.spokenName = kFinalPointsCaption;
    txtPointScore.spokenName = "Score of this selection";
    txtComment1.explanation = txtComment2.explanation = "A comment of the organiser, entered with the field.";
    txtPlayerInitials.explanation = "The player's initials: the last part of the selection file's name.";
    txtPlayerName.explanation = "The player's name: the first part of the selection file's name.";
    txtFinalPoints.explanation = "Total points of both teams in the championship game, 50 to 250: the tie-breaker.";
    txtPointScore.explanation = "Points earned / the most that is still possible.";
    cmdDefaultColors.toolTip = "Back to the normal colours, so that picks can be changed again";
    cmdDefaultColors.explanation = cmdDefaultColors.toolTip + ".";
}

ui::TextBox& PlayerStrip::boxOf(EntryFault fault)
{
    switch (fault) {
    case EntryFault::Initials:
        return txtPlayerInitials;
    case EntryFault::Name:
        return txtPlayerName;
    case EntryFault::FinalPoints:
        break;
    }
    return txtFinalPoints;
}

void PlayerStrip::showPlayer(const Entry& entry)
{
    txtPlayerInitials.text = entry.initials;
    txtPlayerName.text = entry.name;
    txtFinalPoints.text = entry.finalPoints;
}

bool PlayerStrip::holdsPlayer(const Entry& entry) const
{
    return txtPlayerInitials.text == entry.initials && txtPlayerName.text == entry.name &&
           txtFinalPoints.text == entry.finalPoints;
}

void PlayerStrip::showStrip(const Field& field, FieldLock lock, bool canUnmark, bool scoreListOpen)
{
    txtComment1.text = field.comment1;
    txtComment2.text = field.comment2;
    txtPlayerInitials.locked = txtPlayerName.locked = lock != FieldLock::None;
    txtFinalPoints.locked = lock == FieldLock::All;
    for (ui::TextBox* box : {&txtPlayerInitials, &txtPlayerName, &txtFinalPoints})
        box->tabStop = !box->locked;
    cmdDefaultColors.visible = cmdDefaultColors.enabled = cmdDefaultColors.isDefault = canUnmark;
    for (ui::Control* control : std::initializer_list<ui::Control*>{&txtComment1, &txtComment2, &lblPlayerInitials,
                                                                    &lblPlayerName, &lblFinalPoints, &txtPlayerInitials,
                                                                    &txtPlayerName, &txtFinalPoints, &txtPointScore})
        control->enabled = !scoreListOpen;
}

ui::Control* PlayerStrip::afterEnter(const ui::Control& control)
{
    const std::array<ui::TextBox*, 3> ring{&txtPlayerInitials, &txtPlayerName, &txtFinalPoints};
    const auto* const at = std::ranges::find_if(ring, [&](const ui::TextBox* box) { return box == &control; });
    return at == ring.end() ? nullptr : ring.at(static_cast<std::size_t>(at - ring.begin() + 1) % ring.size());
}

} // namespace tallyhoop
