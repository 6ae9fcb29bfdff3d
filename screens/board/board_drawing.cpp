#include "screens/board/board_drawing.h"

#include "screens/board/board_geometry.h"
#include "screens/board/board_screen.h"

namespace tallyhoop {

namespace {

constexpr double kPageWidth = 1100;
constexpr double kPageHeight = 800;
constexpr double kStripTop = 690; ///< comments, player and score stand below the bracket
constexpr ui::Colour kLineColour{150, 155, 165};
constexpr ui::Colour kTextColour{30, 32, 40};
constexpr ui::Colour kPaper{255, 255, 255};

class Painter
{
public:
    explicit Painter(const BoardScreen& board) : m_board{board}, m_places{layOutBoard(kPageWidth, kStripTop - 8)} {}

    ui::Drawing paint()
    {
        m_drawing.width = kPageWidth;
        m_drawing.height = kPageHeight;
        for (ui::Stroke line : m_places.connectors) {
            line.colour = kLineColour;
            m_drawing.strokes.push_back(line);
        }
        paintHeads();
        paintTeams();
        paintStrip();
        return std::move(m_drawing);
    }

private:
    void write(const ui::Rectangle& place, const std::string& text, double size,
               ui::Alignment alignment = ui::Alignment::Left, bool bold = false, ui::Colour colour = kTextColour)
    {
        if (!text.empty())
            m_drawing.captions.push_back({place, text, size, colour, alignment, bold, false});
    }

    void paintHeads()
    {
        const double size = m_places.textSize;
        write(m_places.title, m_board.lblTitle.text, size * 1.9, ui::Alignment::Centre, true);
        if (m_board.lblDemoMode.visible)
            write(m_places.demoMode, m_board.lblDemoMode.text, size, ui::Alignment::Left, true);
        for (std::size_t region = 0; region < m_places.regionTitles.size(); ++region)
            write(m_places.regionTitles[region], m_board.lblRegionTitle[region].text, size * 1.35,
                  ui::Alignment::Centre, true);
        // Lines run through the middle: these captions interrupt them.
        for (const ui::Rectangle& place : {m_places.championCaption, m_places.roundCaptions[8], m_places.roundPoints[8],
                                           m_places.roundCaptions[9], m_places.roundPoints[9]})
            m_drawing.boxes.push_back({place, kPaper, kPaper});
        for (std::size_t round = 0; round < kRoundCaptions; ++round) {
            write(m_places.roundCaptions[round], m_board.lblRoundName[round].text, size * 0.85, ui::Alignment::Right);
            write(m_places.roundPoints[round], " " + pointsOf(round), size * 0.85, ui::Alignment::Left, true);
        }
        write(m_places.championCaption, m_board.lblChampion.text, size, ui::Alignment::Centre, true);
    }

    const std::string& pointsOf(std::size_t caption) const
    {
        if (caption < 4)
            return m_board.lblInfo[caption].text;
        return caption < 8 ? m_board.lblInfoRight[caption - 4].text : m_board.lblInfo[caption - 4].text;
    }

    void paintTeams()
    {
        const double size = m_places.textSize;
        for (std::size_t row = 0; row < m_places.seeds.size(); ++row)
            write(inset(m_places.seeds[row]), m_board.txtSeed[row].text, size * 0.85, ui::Alignment::Right);
        for (std::size_t i = 0; i < m_places.positions.size(); ++i) {
            const ui::Label& label = m_board.lblRegion[i];
            const ui::Colour colour = label.colour.value_or(kTextColour);
            ui::Rectangle whole = m_places.positions[i];
            const int game = gameOf(Position{static_cast<int>(i)});
            if (game >= 0)
                whole.width += m_places.results[static_cast<std::size_t>(game)].width;
            m_drawing.boxes.push_back({whole, groundFor(colour), kLineColour});
            write(inset(m_places.positions[i]), label.text, i == kChampion ? size * 1.25 : size, ui::Alignment::Left,
                  i == kChampion, colour);
            if (game >= 0)
                write(m_places.results[static_cast<std::size_t>(game)],
                      m_board.lblResult[static_cast<std::size_t>(game)].text, size, ui::Alignment::Centre, true,
                      colour);
        }
    }

    void paintStrip()
    {
        const double size = 11;
        const auto field = [&](double x, double width, const ui::Label& name, const ui::TextBox& box) {
            write({x, kStripTop, width, 18}, name.text, size * 0.9);
            write({x, kStripTop + 18, width, 22}, box.text, size * 1.2, ui::Alignment::Left, true);
        };
        field(300, 90, m_board.lblPlayerInitials, m_board.txtPlayerInitials);
        field(390, 190, m_board.lblPlayerName, m_board.txtPlayerName);
        field(580, 240, m_board.lblFinalPoints, m_board.txtFinalPoints);
        write({300, kStripTop + 48, 500, 24}, m_board.txtPointScore.text, size * 1.4, ui::Alignment::Left, true);
        comment({10, kStripTop, 270, kPageHeight - kStripTop - 6}, m_board.txtComment1.text);
        comment({820, kStripTop, 270, kPageHeight - kStripTop - 6}, m_board.txtComment2.text);
    }

    void comment(const ui::Rectangle& place, const std::string& text)
    {
        if (!text.empty())
            m_drawing.captions.push_back({place, text, 10.5, kTextColour, ui::Alignment::Left, false, true});
    }

    static ui::Rectangle inset(ui::Rectangle place)
    {
        place.x += 3;
        place.width -= 5;
        return place;
    }

    const BoardScreen& m_board;
    BoardGeometry m_places;
    ui::Drawing m_drawing;
};

} // namespace

ui::Drawing drawBoard(const BoardScreen& board) { return Painter{board}.paint(); }

// The three colours of team names are fixed; only blue can be read on a light ground.
ui::Colour groundFor(ui::Colour textColour)
{
    if (textColour.green > textColour.blue)
        return {6, 41, 15};
    if (textColour.red > textColour.blue)
        return {26, 4, 6};
    return {252, 252, 255};
}

} // namespace tallyhoop
