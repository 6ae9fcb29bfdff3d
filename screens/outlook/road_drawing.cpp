// screens/outlook/road_drawing.cpp - the grid, everybody's line, the chosen one's band, and the names.
#include "screens/outlook/road_drawing.h"

#include "screens/outlook/side_labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>
#include <numeric>
#include <string_view>
#include <utility>

namespace tallyhoop {

namespace {

constexpr std::array kScales{0.04, 0.08, 0.2, 0.4, 0.6, 1.0};
constexpr int kGridLines = 4;   ///< above that of 0 %
constexpr double kText = 10;    ///< height of the letters
constexpr double kLabel = 14;   ///< height of a line of them
constexpr double kPercent = 42; ///< width of the scale
constexpr double kWidestNames = 120;
constexpr double kFarthest = 1.5 * kLabel; ///< of a name from the end of its line
constexpr std::size_t kLongestName = 24;   ///< longer ones would have letters too narrow to be read
constexpr double kBold = 2.5;
constexpr double kDot = 4;
constexpr double kBandErrors = 2;

/// @returns a name without its middle if it is too long: names that begin alike often end differently
std::string shortened(const std::string& name)
{
    constexpr std::string_view kGap = "...";
    if (name.size() <= kLongestName)
        return name;
    const std::size_t kept = kLongestName - kGap.size();
    return name.substr(0, kept - kept / 2).append(kGap).append(name.substr(name.size() - kept / 2));
}

class RoadPainter
{
public:
    RoadPainter(const RoadPicture& picture, double width, double height, const RoadColours& colours)
        : m_picture{picture},
          m_colours{colours},
          m_namesWidth{std::min(kWidestNames, width / 4)},
          m_plot{kPercent, kLabel + 10, width - kPercent - m_namesWidth - 10, height - 3 * kLabel - 16}
    {
        m_drawing.width = width;
        m_drawing.height = height;
        m_scale = smallestScale();
    }

    ui::Drawing paint()
    {
        write({m_plot.x, 2, m_plot.width + m_namesWidth, kLabel}, "Share of first place, " + m_picture.chances,
              ui::Alignment::Left);
        paintGrid();
        paintTimes();
        if (m_picture.points.empty())
            return std::move(m_drawing);
        for (std::size_t player = 0; player < players(); ++player)
            if (player != m_picture.chosen)
                paintLine(player, m_colours.others, 1);
        if (isChosenHere()) {
            paintBand(*m_picture.chosen);
            paintLine(*m_picture.chosen, m_colours.chosen, kBold);
            for (std::size_t point = 0; point < m_picture.points.size(); ++point)
                paintDot(point, *m_picture.chosen);
        }
        paintNames();
        return std::move(m_drawing);
    }

private:
    std::size_t players() const { return m_picture.points.back().chances.size(); }
    bool isChosenHere() const { return m_picture.chosen && *m_picture.chosen < players(); }
    double share(std::size_t point, std::size_t player) const { return m_picture.points[point].chances[player].share; }

    double smallestScale() const
    {
        double largest = 0;
        for (const RoadPoint& point : m_picture.points)
            for (const FirstChances& chances : point.chances)
                largest = std::max(largest, chances.share);
        const auto* const scale = std::ranges::find_if(kScales, [&](double end) { return end >= largest; });
        return scale == kScales.end() ? kScales.back() : *scale;
    }

    double xOfTime(std::size_t time) const
    {
        const std::size_t last = m_picture.times.size() - 1;
        if (last == 0)
            return m_plot.right();
        return m_plot.x + m_plot.width * static_cast<double>(time) / static_cast<double>(last);
    }

    /// While the first times are still to be found, the points are those of the last ones.
    std::size_t timeOf(std::size_t point) const { return m_picture.times.size() - m_picture.points.size() + point; }
    double xOf(std::size_t point) const { return xOfTime(timeOf(point)); }
    double yOf(double share) const { return m_plot.bottom() - m_plot.height * std::clamp(share / m_scale, 0.0, 1.0); }

    void write(const ui::Rectangle& place, const std::string& text, ui::Alignment alignment)
    {
        m_drawing.captions.push_back({place, text, kText, m_colours.text, alignment});
    }

    void paintGrid()
    {
        for (int line = 0; line <= kGridLines; ++line) {
            const double part = m_scale * line / kGridLines;
            const double y = yOf(part);
            m_drawing.strokes.push_back({m_plot.x, y, m_plot.right(), y, m_colours.grid});
            write({0, y - kLabel / 2, m_plot.x - 6, kLabel}, fmt::format("{:.0f} %", part * 100), ui::Alignment::Right);
        }
    }

    void paintTimes()
    {
        const std::size_t times = m_picture.times.size();
        const double step = m_plot.width / static_cast<double>(std::max<std::size_t>(times, 2) - 1);
        const double top = m_plot.bottom() + 4;
        for (std::size_t time = 0; time < times; ++time) {
            const double width = std::min(step - 2, 80.0);
            const double left = std::max(xOfTime(time) - width / 2, 0.0);
            write({left, top, width, kLabel}, m_picture.times[time], ui::Alignment::Centre);
            write({left, top + kLabel, width, kLabel}, sourceOf(time), ui::Alignment::Centre);
        }
    }

    /// @returns where what is shown of a time comes from
    const char* sourceOf(std::size_t time) const
    {
        const std::size_t missing = m_picture.times.size() - m_picture.points.size();
        if (time < missing)
            return m_picture.isWorking ? "working" : "not worked out";
        return m_picture.points[time - missing].samples == 0 ? "counted" : "forecast";
    }

    void paintLine(std::size_t player, ui::Colour colour, double thickness)
    {
        for (std::size_t point = 1; point < m_picture.points.size(); ++point)
            m_drawing.strokes.push_back({xOf(point - 1), yOf(share(point - 1, player)), xOf(point),
                                         yOf(share(point, player)), colour, thickness});
    }

    void paintDot(std::size_t point, std::size_t player)
    {
        const ui::Rectangle place{xOf(point) - kDot / 2, yOf(share(point, player)) - kDot / 2, kDot, kDot};
        m_drawing.boxes.push_back({place, m_colours.chosen, m_colours.chosen});
    }

    /// @param side 1 = the upper limit, -1 = the lower one
    double limit(std::size_t point, std::size_t player, int side) const
    {
        return yOf(share(point, player) + side * kBandErrors * m_picture.points[point].errors[player]);
    }

    /// Its two limits, and a bar at each forecast.
    void paintBand(std::size_t player)
    {
        const auto isForecast = [this](std::size_t point) { return m_picture.points[point].samples > 0; };
        for (std::size_t point = 0; point < m_picture.points.size(); ++point) {
            const double x = xOf(point);
            if (isForecast(point))
                m_drawing.strokes.push_back({x, limit(point, player, 1), x, limit(point, player, -1), m_colours.band});
            if (point > 0 && (isForecast(point - 1) || isForecast(point)))
                for (const int side : {1, -1})
                    m_drawing.strokes.push_back({xOf(point - 1), limit(point - 1, player, side), x,
                                                 limit(point, player, side), m_colours.band});
        }
    }

    double yNow(std::size_t player) const { return yOf(share(m_picture.points.size() - 1, player)); }

    /// @returns where the names of players are, who are in the order of their lines
    std::vector<double> middlesOf(const std::vector<std::size_t>& named) const
    {
        std::vector<double> middles;
        middles.reserve(named.size());
        for (const std::size_t player : named)
            middles.push_back(yNow(player));
        return movedApart(std::move(middles), kLabel, m_plot.y, m_plot.bottom());
    }

    /// @returns whether each of the names is so near to its line that one sees whose it is
    bool areNear(const std::vector<std::size_t>& named) const
    {
        const std::vector<double> middles = middlesOf(named);
        for (std::size_t i = 0; i < named.size(); ++i)
            if (std::abs(middles[i] - yNow(named[i])) > kFarthest)
                return false;
        return true;
    }

    /// @returns the players with names beside the chart, in the order of their lines
    std::vector<std::size_t> namedPlayers() const
    {
        std::vector<std::size_t> wanted(std::min(players(), m_picture.names.size()));
        std::iota(wanted.begin(), wanted.end(), std::size_t{0});
        const auto height = [this](std::size_t player) { return yNow(player); };
        std::ranges::stable_sort(wanted, {}, height);
        // The chosen player is named whatever his share is.
        std::stable_partition(wanted.begin(), wanted.end(),
                              [this](std::size_t player) { return player == m_picture.chosen; });

        const auto room = static_cast<std::size_t>(m_plot.height / kLabel);
        std::vector<std::size_t> named;
        for (const std::size_t player : wanted) {
            if (named.size() == room)
                break;
            std::vector<std::size_t> more = named;
            more.insert(std::ranges::upper_bound(more, yNow(player), {}, height), player);
            if (areNear(more))
                named = std::move(more);
        }
        return named;
    }

    void paintNames()
    {
        const std::vector<std::size_t> named = namedPlayers();
        const std::vector<double> middles = middlesOf(named);
        for (std::size_t i = 0; i < named.size(); ++i) {
            const bool chosen = named[i] == m_picture.chosen;
            write({m_plot.right() + 6, middles[i] - kLabel / 2, m_namesWidth, kLabel},
                  shortened(m_picture.names[named[i]]), ui::Alignment::Left);
            m_drawing.captions.back().bold = chosen;
            m_drawing.captions.back().colour = chosen ? m_colours.chosen : m_colours.text;
        }
    }

    const RoadPicture& m_picture;
    const RoadColours& m_colours;
    double m_namesWidth;
    ui::Rectangle m_plot;
    double m_scale = 1; ///< the share at the upper end
    ui::Drawing m_drawing;
};

} // namespace

std::string stageInWords(int round, bool isNow)
{
    if (isNow)
        return "Now";
    return round == 0 ? "Start" : fmt::format("Round {}", round);
}

ui::Drawing drawRoad(const RoadPicture& picture, double width, double height, const RoadColours& colours)
{
    return RoadPainter{picture, width, height, colours}.paint();
}

} // namespace tallyhoop
