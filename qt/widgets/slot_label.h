// qt/widgets/slot_label.h - one place of the bracket: a team name on its background.
#pragma once

#include <QAbstractButton>

namespace tallyhoop::qt {

/// Shows a text that is elided when it does not fit; text() stays whole. The canvas handles presses, also on a disabled
/// label, where a press still has an effect. Assistive tools press it through clicked().
class SlotLabel : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Part {
        Row,    ///< a box of its own, such as a first-round row
        Winner, ///< a winner's place, continued by its marker
        Marker,
        Shown, ///< a place that can only be looked at: a box of its own
    };

    SlotLabel(Part part, QWidget* parent);

    void show(const QString& text, const QColor& colour, const QColor& background);

    enum class Emphasis { None, OnPath, MayLand };
    void setEmphasis(Emphasis emphasis);

    QSize sizeHint() const override;

    /// @returns whether it has the focus, and not from a mouse press
    bool isReachedByKeys() const { return hasFocus() && m_reachedByKeys; }

    /// @returns whether the name is cut when painted: too long for its place even in narrow letters
    bool isElided() const;

    Part part() const { return m_part; }

    /// @returns whether a press does something
    bool isPressable() const { return m_part == Part::Row || m_part == Part::Winner; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

    // Mouse and key rules are in the canvas and the core; a button's own would act a second time.
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    QRect textPlace() const;
    QFont fittingFont() const;
    QRect inside(int edge) const;

    Part m_part;
    QColor m_colour;
    QColor m_background;
    Emphasis m_emphasis = Emphasis::None;
    bool m_reachedByKeys = false; ///< only then the focus gets a frame of its own
};

} // namespace tallyhoop::qt
