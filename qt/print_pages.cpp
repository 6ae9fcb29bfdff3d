// qt/print_pages.cpp - divides lines into sheets and paints them in twips, so that every device has the same layout.
#include "qt/print_pages.h"

#include "base/text.h"
#include "qt/paint_drawing.h"
#include "qt/text.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tallyhoop::qt {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kTwipsPerInch = 1440;
constexpr double kTightest = 9 * kTwipsPerPoint; ///< the smallest distance of two lines
constexpr double kSmallest = 0.5;                ///< of the font's own size, for lines wider than the paper
constexpr char kFormFeed = '\f';
// A rounding error must not push the last line to another sheet.
constexpr double kTolerance = 0.01;

std::vector<std::vector<std::string>> reportPages(const std::vector<std::string>& lines)
{
    std::vector<std::vector<std::string>> pages(1);
    for (const std::string& line : lines) {
        if (!line.empty() && line.front() == kFormFeed)
            pages.emplace_back();
        else
            pages.back().push_back(line);
    }
    std::erase_if(pages, [](const auto& page) { return page.empty(); });
    return pages;
}

std::size_t linesPerSheet(double height, double spacing)
{
    const double lines = std::floor(height / spacing + kTolerance);
    return lines < 1 ? 1 : static_cast<std::size_t>(lines);
}

/// The font in twips: one unit of the painter is one twip.
QFont fontOf(const ui::PrinterFont& wanted)
{
    QFont font{toQString(wanted.name)};
    font.setStyleHint(QFont::TypeWriter);
    font.setPixelSize(static_cast<int>(std::lround(wanted.points * kTwipsPerPoint)));
    font.setBold(wanted.bold);
    font.setItalic(wanted.italic);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QSizeF printableTwips(const QPageLayout& layout)
{
    return layout.paintRect(QPageLayout::Point).size() * kTwipsPerPoint;
}

void scaleToTwips(QPainter& painter)
{
    painter.scale(painter.device()->logicalDpiX() / kTwipsPerInch, painter.device()->logicalDpiY() / kTwipsPerInch);
}

/// A line that is too wide even in the smallest letters goes on in the next one.
std::vector<std::string> withoutOverlong(const std::vector<std::string>& lines, std::size_t most)
{
    std::vector<std::string> broken;
    broken.reserve(lines.size());
    for (const std::string& line : lines) {
        const std::size_t end = lastNonBlank(line);
        broken.push_back(line.substr(0, most));
        for (std::size_t at = most; at < end; at += most)
            broken.push_back(line.substr(at, most));
    }
    return broken;
}

double widestOf(const std::vector<std::string>& lines, const QFontMetricsF& metrics)
{
    double widest = 0;
    for (const std::string& line : lines)
        widest = std::max(widest, metrics.horizontalAdvance(toQString(trimTrailingBlanks(line))));
    return widest;
}

bool paintSheets(QPainter& painter, QPagedPaintDevice& device, const std::vector<Sheet>& sheets, double ascent)
{
    bool first = true;
    for (const Sheet& sheet : sheets) {
        if (!std::exchange(first, false) && !device.newPage())
            return false;
        double baseline = ascent;
        for (const std::string& line : sheet.lines) {
            painter.drawText(QPointF{0, baseline}, toQString(line));
            baseline += sheet.spacing;
        }
    }
    return true;
}

} // namespace

std::vector<Sheet> layOut(const std::vector<std::string>& lines, double height, double natural)
{
    std::vector<Sheet> sheets;
    for (std::vector<std::string>& page : reportPages(lines)) {
        const double tight = height / static_cast<double>(page.size());
        if (tight >= std::min(natural, kTightest) - kTolerance) {
            sheets.push_back({std::move(page), std::min(natural, tight)});
            continue;
        }
        const std::size_t most = linesPerSheet(height, natural);
        for (std::size_t i = 0; i < page.size(); ++i) {
            if (i % most == 0)
                sheets.push_back({{}, natural});
            sheets.back().lines.push_back(std::move(page[i]));
        }
    }
    if (sheets.empty())
        sheets.push_back({{}, natural});
    return sheets;
}

bool paintPages(QPagedPaintDevice& device, const ui::TextPrintout& printout)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    scaleToTwips(painter);
    const QFont font = fontOf(printout.font);
    painter.setFont(font);
    const QFontMetricsF metrics{font, &device};
    const QSizeF paper = printableTwips(device.pageLayout());
    const double width = std::max(paper.width() - printout.originTwips, 1.0);
    const double most = std::floor(width / (kSmallest * metrics.horizontalAdvance(QLatin1Char{'0'})));
    const std::vector<std::string> lines =
        withoutOverlong(printout.lines, static_cast<std::size_t>(std::max(most, 1.0)));
    // All lines alike, or columns would not be columns any more.
    const double scale = std::min(1.0, width / std::max(widestOf(lines, metrics), 1.0));
    painter.translate(printout.originTwips, 0);
    painter.scale(scale, scale);
    if (!paintSheets(painter, device, layOut(lines, paper.height() / scale, metrics.lineSpacing()), metrics.ascent()))
        return false;
    return painter.end();
}

bool paintPages(QPagedPaintDevice& device, const ui::DrawingPrintout& printout)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    scaleToTwips(painter);
    const QRectF page{QPointF{}, printableTwips(device.pageLayout())};
    for (std::size_t i = 0; i < printout.drawings.size(); ++i) {
        if (i > 0 && !device.newPage())
            return false;
        paintDrawing(painter, printout.drawings[i], page);
    }
    return painter.end();
}

bool paintPages(QPagedPaintDevice& device, const ui::Printout& printout)
{
    return std::visit([&device](const auto& any) { return paintPages(device, any); }, printout);
}

QPageLayout::Orientation orientationOf(const ui::Printout& printout)
{
    const auto orientation = std::visit([](const auto& any) { return any.orientation; }, printout);
    return orientation == ui::Orientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

int printableWidthTwips(const QPageLayout& layout)
{
    return static_cast<int>(std::lround(printableTwips(layout).width()));
}

QByteArray toPdf(const ui::Printout& printout, QPageLayout layout)
{
    layout.setOrientation(orientationOf(printout));
    QByteArray bytes;
    QBuffer buffer{&bytes};
    if (!buffer.open(QIODevice::WriteOnly))
        return {};
    bool painted = false;
    {
        QPdfWriter writer{&buffer};
        writer.setResolution(static_cast<int>(kTwipsPerInch));
        writer.setPageLayout(layout);
        writer.setTitle(toQString(ui::titleOf(printout)));
        writer.setCreator(QStringLiteral("Tallyhoop"));
        painted = paintPages(writer, printout);
    }
    return painted ? bytes : QByteArray{};
}

} // namespace tallyhoop::qt
