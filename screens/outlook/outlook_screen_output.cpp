// screens/outlook/outlook_screen_output.cpp - what the outlook's screen shows, as it goes out.
#include "screens/outlook/outlook_screen.h"

#include "reports/outlook_words.h"
#include "screens/outlook/outlook_words.h"

#include <cmath>

namespace tallyhoop {

void OutlookScreen::bringOut(std::string (OutlookOutput::*way)(const OutlookSheet&) const)
{
    say({});
    say((m_output.*way)(sheet()));
}

OutlookSheet OutlookScreen::sheet() const
{
    OutlookSheet sheet;
    sheet.heading = {m_pool.field.title, whatIfInWords(m_whatIf.entered(), m_whatIf.supposed()), basisInWords(basis())};
    const std::vector<std::string> unread = unreadInWords(m_opened);
    sheet.heading.basis.insert(sheet.heading.basis.end(), unread.begin(), unread.end());
    sheet.rows = m_rows;
    sheet.road = roadPicture();
    sheet.road.isWorking = false; // it does not go on where it is brought out to
    sheet.games = gamesOfSheet();
    sheet.isForecast = m_figures.source == ChanceSource::Forecast;
    if (m_chosen) {
        sheet.chosen = m_chosen;
        sheet.chosenName = nameInSentence(m_pool.entries.at(*m_chosen));
        sheet.proof = verdictInWords(m_figures.prospects.at(*m_chosen).prospect) + ". " + proofFor(*m_chosen);
    }
    return sheet;
}

OutlookBasis OutlookScreen::basis() const
{
    OutlookBasis basis = basisOf(m_kind, m_games.size(), m_figures);
    basis.isSupposed = m_whatIf.isChanged();
    return basis;
}

std::vector<SheetGame> OutlookScreen::gamesOfSheet() const
{
    std::vector<SheetGame> games;
    const std::vector<OpenGame> open = openGamesOf(m_games, m_pool.field);
    const std::vector<double> ofChosen = swings();
    for (const GameWeight& weight : weightsOf(m_figures, open)) {
        const OpenGame& game = open[weight.openGame];
        SheetGame words{gameText(game), {}, {}, weightText(weight), whenText(game)};
        if (!ofChosen.empty()) {
            words.rootFor = rootFor(game, ofChosen[weight.openGame]);
            words.helps = changeInWords(std::abs(ofChosen[weight.openGame]));
        }
        games.push_back(words);
    }
    return games;
}

} // namespace tallyhoop
