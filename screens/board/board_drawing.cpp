// screens/board/board_drawing.cpp - the same picture and geometry as on screen, in strokes, boxes and captions.
#include "screens/board/board_drawing.h"

#include "screens/board/board_geometry.h"

#include <utility>

namespace tallyhoop {

namespace {

constexpr double kPageWidth = 1100;
constexpr double kPageHeight = 800;
constexpr double kStripTop = 690; ///< comments, player and score are below the bracket
constexpr ui::Colour kLineColour{150, 155, 165};
constexpr ui::Colour kTextColour{30, 32, 40};
constexpr ui::Colour kPaper{255, 255, 255};

/// The colours of the screen are too light for paper, and a grey printer has none: a wrong pick is struck through too.
ui::Colour printedColour(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Good:
        return {0, 95, 35};
    case Verdict::Bad:
        return {165, 0, 0};
    case Verdict::None:
    case Verdict::Open:
    case Verdict::Possible:
        break;
    }
    return kTextColour;
}

class Painter
{
public:
    Painter(const BoardPicture& picture, const Entry& player, const std::optional<ShownScore>& score)
        : m_picture{picture},
          m_player{player},
          m_score{score ? scoreText(score) : picture.marked},
          m_places{layOutBoard(kPageWidth, kStripTop - 8)}
    {
    }

    ui::Drawing paint()
    {
        m_drawing.width = kPageWidth;
        m_drawing.height = kPageHeight;
        for (ui::Stroke line : m_places.connectors) {
            line.colour = kLineColour;
            m_drawing.strokes.push_back(line);
        }
        paintHeaders();
        for (const TeamRow row : allTeamRows())
            write(inset(m_places.seeds[row]), m_picture.field.seedOf(row), m_places.textSize * 0.85,
                  ui::Alignment::Right);
        for (const Position position : allPositions())
            paintTeam(position);
        paintStrip();
        return std::move(m_drawing);
    }

private:
    void write(const ui::Rectangle& place, const std::string& text, double size,
               ui::Alignment alignment = ui::Alignment::Left, bool bold = false, ui::Colour colour = kTextColour,
               bool struck = false)
    {
        if (!text.empty())
            m_drawing.captions.push_back({place, text, size, colour, alignment, bold, false, struck});
    }

    void paintHeaders()
    {
        const double size = m_places.textSize;
        const Field& field = m_picture.field;
        write(m_places.title, field.title, size * 1.9, ui::Alignment::Centre, true);
        if (m_picture.demo)
            write(m_places.demoMode, kDemoModeCaption, size, ui::Alignment::Left, true);
        for (std::size_t region = 0; region < m_places.regionTitles.size(); ++region)
            write(m_places.regionTitles[region], field.regionTitles.at(region), size * 1.35, ui::Alignment::Centre,
                  true);
        // Lines run through the middle: these captions interrupt them.
        for (const ui::Rectangle& place : {m_places.championCaption, m_places.roundCaptions[8], m_places.roundPoints[8],
                                           m_places.roundCaptions[9], m_places.roundPoints[9]})
            m_drawing.boxes.push_back({place, kPaper, kPaper});
        for (std::size_t i = 0; i < kRoundCaptions; ++i) {
            write(m_places.roundCaptions[i], kRoundNames.at(i), size * 0.85, ui::Alignment::Right);
            write(m_places.roundPoints[i], " " + field.payoffs.text(roundOfCaption(i)), size * 0.85,
                  ui::Alignment::Left, true);
        }
        write(m_places.championCaption, kChampionCaption, size, ui::Alignment::Centre, true);
    }

    void paintTeam(Position position)
    {
        const double size = m_places.textSize;
        const bool isChampion = position == kChampion;
        const std::optional<Game> game = gameOf(position);
        const Verdict verdict = game ? m_picture.verdictAt(position) : Verdict::None;
        const char* const mark = markOf(verdict).text;
        ui::Rectangle name = m_places.positions[position];
        ui::Rectangle whole = name;
        if (game)
            whole.width += m_places.results[*game].width;
        if (*mark == '\0')
            name = whole; // a long name may use the place of the marker
        else
            write(m_places.results[*game], mark, size * 1.1, ui::Alignment::Centre, true, printedColour(verdict));
        m_drawing.boxes.push_back({whole, kPaper, kLineColour});
        // The name of a real winner is neither right nor wrong; only the mark beside it is the player's.
        const Verdict onName = m_picture.names == MarkedNames::Picks ? verdict : Verdict::None;
        write(inset(name), m_picture.bracket.at(position), isChampion ? size * 1.25 : size, ui::Alignment::Left,
              isChampion, printedColour(onName), onName == Verdict::Bad);
    }

    void paintStrip()
    {
        const double size = 11;
        const auto field = [&](double x, double width, const std::string& name, const std::string& text) {
            write({x, kStripTop, width, 18}, name, size * 0.9);
            // On a blank sheet the box is where to write.
            const ui::Rectangle box{x, kStripTop + 19, width - 10, 26};
            m_drawing.boxes.push_back({box, kPaper, kLineColour});
            write(inset(box), text, size * 1.2, ui::Alignment::Left, true);
        };
        field(300, 90, kInitialsCaption, m_player.initials);
        field(390, 190, kNameCaption, m_player.name);
        field(580, 240, kFinalPointsCaption, m_player.finalPoints);
        write({300, kStripTop + 54, 500, 24}, m_score, size * 1.4, ui::Alignment::Left, true);
        comment({10, kStripTop, 270, kPageHeight - kStripTop - 6}, m_picture.field.comment1);
        comment({820, kStripTop, 270, kPageHeight - kStripTop - 6}, m_picture.field.comment2);
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

    const BoardPicture& m_picture;
    const Entry& m_player;
    std::string m_score; ///< or whose marks these are: results have no score
    BoardGeometry m_places;
    ui::Drawing m_drawing;
};

} // namespace

ui::Drawing drawBoard(const BoardPicture& picture, const Entry& player, const std::optional<ShownScore>& score)
{
    return Painter{picture, player, score}.paint();
}

} // namespace tallyhoop
