// screens/outlook/outlook_screen_work.cpp - what the outlook screen works out: when it begins, and what comes of it.
#include "screens/outlook/outlook_screen.h"

#include "reports/outlook_words.h"

namespace tallyhoop {

RoadPicture OutlookScreen::roadPicture() const
{
    RoadPicture picture;
    for (const RoadStage& stage : roadStages(m_whatIf.entered()))
        picture.times.push_back(stageInWords(stage.round, stage.isNow));
    picture.points = m_roads.at(static_cast<std::size_t>(m_kind));
    picture.names.resize(m_pool.entries.size());
    for (const OutlookRow& row : m_rows)
        picture.names[row.player] = row.name;
    picture.chosen = m_chosen;
    picture.chances = chancesInWords(m_kind);
    return picture;
}

} // namespace tallyhoop
