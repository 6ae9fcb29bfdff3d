// qt/paint_drawing.h - paints a Drawing on the printer, in a PDF or as a widget's background.
#pragma once

#include "ui/drawing.h"

#include <QPainter>
#include <vector>

namespace tallyhoop::qt {

/// Paints in the drawing's own units; the caller has scaled the painter. Vectors and text only, never pixels.
void paintDrawing(QPainter& painter, const ui::Drawing& drawing);

/// Scales and centres a drawing in this rectangle and paints it.
void paintDrawing(QPainter& painter, const ui::Drawing& drawing, const QRectF& target);

/// Paints lines in pixels, all in one colour instead of their own.
void paintLines(QPainter& painter, std::vector<ui::Stroke> lines, const QColor& colour);

} // namespace tallyhoop::qt
