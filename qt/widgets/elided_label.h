// qt/widgets/elided_label.h - a heading that may be longer than its place.
#pragma once

#include <QLabel>

namespace tallyhoop::qt {

/// Paints a plain text that does not fit from its beginning on, cut with an ellipsis; text() stays whole, and the whole
/// text is the tool tip then.
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
