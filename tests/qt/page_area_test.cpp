// tests/qt/page_area_test.cpp - on a display that is too small for a page, everything can still be reached.
#include "qt/widgets/page_area.h"

#include "qt/main_frame.h"
#include "qt/sample_screen.h"

#include <QScreen>
#include <QScrollBar>
#include <memory>

namespace tallyhoop::qt {
namespace {

/// Thirty boxes, one below the other.
struct Tall : QWidget {
    Tall()
    {
        auto* layout = new QVBoxLayout{this};
        for (int i = 0; i < 30; ++i)
            layout->addWidget(boxes.emplace_back(new QLineEdit));
    }
    std::vector<QLineEdit*> boxes;
};

TEST(PageArea, TakesTheRoomOfItsContent)
{
    auto* const content = new QWidget;
    content->setMinimumSize(321, 123);
    auto* layout = new QVBoxLayout{content};
    layout->addWidget(new QLabel{QStringLiteral("something")});
    const PageArea area{content};
    EXPECT_EQ(area.minimumSizeHint(), content->minimumSizeHint());
    EXPECT_EQ(area.sizeHint(), content->sizeHint());
}

TEST(PageArea, TakesNoMoreThanTheDisplayHas)
{
    auto* const content = new QWidget;
    (new QVBoxLayout{content})->addStrut(5000);
    content->layout()->addItem(new QSpacerItem{5000, 5000});
    const PageArea area{content};
    ASSERT_GT(content->minimumSizeHint().height(), 4000);
    const QSize display = area.screen()->availableGeometry().size();
    EXPECT_LT(area.minimumSizeHint().width(), display.width());
    EXPECT_LT(area.minimumSizeHint().height(), display.height());
    EXPECT_LT(area.sizeHint().height(), display.height());
}

TEST(PageArea, HasNoScrollBarsWhereEverythingFits)
{
    auto* const content = new Tall;
    PageArea area{content};
    area.resize(content->sizeHint());
    area.show();
    EXPECT_EQ(area.verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0);
}

TEST(PageArea, CanBeResizedWithoutItsContent)
{
    PageArea area{new Tall};
    area.resize(300, 200);
    area.show();
    const std::unique_ptr<QWidget> content{area.takeWidget()};
    area.resize(400, 300);
    EXPECT_EQ(area.size(), QSize(400, 300));
}

TEST(PageArea, ShowsWhatGetsTheFocus)
{
    auto* const content = new Tall;
    PageArea area{content};
    area.resize(200, 150);
    area.show();
    test::activate(area);
    EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
    EXPECT_TRUE(content->boxes.back()->visibleRegion().isEmpty());
    content->boxes.back()->setFocus(); // as a command does it
    EXPECT_FALSE(content->boxes.back()->visibleRegion().isEmpty());
    QTest::keyClick(content->boxes.back(), Qt::Key_Tab); // round to the first
    EXPECT_EQ(area.focusWidget(), content->boxes.front());
    EXPECT_FALSE(content->boxes.front()->visibleRegion().isEmpty());
}

TEST(MainFrame, FitsTheDisplay)
{
    const MainFrame frame; // the offscreen display is 800 by 800
    const QSize display = frame.screen()->availableGeometry().size();
    EXPECT_LT(frame.minimumWidth(), display.width());
    EXPECT_LT(frame.minimumHeight(), display.height());
}

} // namespace
} // namespace tallyhoop::qt
