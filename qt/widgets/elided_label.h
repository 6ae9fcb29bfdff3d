// qt/widgets/elided_label.h - a label whose text may be longer than its place.
#pragma once

#include <QLabel>

namespace tallyhoop::qt {

/// Paints the beginning of a plain text that does not fit, with an ellipsis; text() stays whole, and the whole text is
/// then the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

    bool isElided() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace tallyhoop::qt
