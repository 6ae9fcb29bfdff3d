// qt/widgets/picture_view.h - shows a drawing that is made anew whenever its room or the window's colours change.
#pragma once

#include "ui/picture.h"

#include <QFrame>

namespace tallyhoop::qt {

class PictureView : public QFrame
{
    Q_OBJECT

public:
    PictureView(const ui::Picture& picture, QWidget* parent);

    QSize sizeHint() const override { return {420, 160}; }
    QSize minimumSizeHint() const override { return {280, 140}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const ui::Picture& m_picture;
};

/// @returns colours for a drawing on the background that boxes and lists have in this palette
ui::PictureColours pictureColours(const QPalette& palette);

} // namespace tallyhoop::qt
