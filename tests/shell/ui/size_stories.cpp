// SPDX-License-Identifier: MIT
// Every window fits on small screens and with large letters, and nothing in it is cut.
#include "tests/shell/ui/all_windows.h"
#include "widgets/dress_application.h"
#include "widgets/screen_fit.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

using namespace tolvo;

namespace {

constexpr int smallLetters = 10; ///< in points

struct Case {
    int points;
    QSize screen;
    Qt::LayoutDirection direction;
};

std::string named(const QWidget &widget) {
    return std::string(widget.metaObject()->className()) + ' ' + widget.objectName().toStdString();
}

/// Controls that have to show all they hold.
bool isWhole(const QWidget &widget) {
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return (label != nullptr && !label->wordWrap() && !widget.inherits("tolvo::ElidedLabel")) ||
           qobject_cast<const QPushButton *>(&widget) || qobject_cast<const QCheckBox *>(&widget) ||
           qobject_cast<const QRadioButton *>(&widget);
}

/// It is laid out for the screen of these stories, which is wider than the smallest that they ask for.
bool mayScrollSideways(const std::string &window) {
    return window.starts_with("PowerButton editor") && QApplication::font().pointSize() == smallLetters;
}

class SizeStory : public AllWindows, public testing::WithParamInterface<Case> {
  protected:
    static void SetUpTestSuite() { dressApplication(); }
    static void check(QWidget &window, QSize room, const std::string &where) {
        window.resize(window.size().boundedTo(room));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        EXPECT_LE(window.width(), room.width()) << where;
        EXPECT_LE(window.height(), room.height()) << where;
        for (QWidget *widget : window.findChildren<QWidget *>()) {
            if (!widget->isVisibleTo(&window) || widget->window() != &window)
                continue;
            if (isWhole(*widget)) {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << where << ": " << named(*widget);
                EXPECT_GE(widget->height(),
                          std::min(widget->minimumSizeHint().height(), widget->fontMetrics().height()))
                    << where << ": " << named(*widget);
            }
            checkInside(*widget, window, where);
        }
        const auto *area = window.findChild<QScrollArea *>(QStringLiteral("fittedArea"));
        EXPECT_TRUE(area == nullptr || mayScrollSideways(where) ||
                    area->horizontalScrollBar()->maximum() == 0)
            << where << " scrolls sideways";
        checkFocus(window, where);
    }
    /// Inside the window, or in an area that scrolls.
    static void checkInside(QWidget &widget, QWidget &window, const std::string &where) {
        for (QWidget *parent = within(&widget); parent != nullptr; parent = within(parent)) {
            if (parent->inherits("QAbstractScrollArea") || parent->inherits("QTabBar"))
                return;
        }
        const QRect area(widget.mapTo(&window, QPoint()), widget.size());
        EXPECT_TRUE(window.rect().contains(area) || area.isEmpty()) << where << ": " << named(widget);
    }
    static QWidget *within(const QWidget *widget) {
        return widget->isWindow() ? nullptr : widget->parentWidget();
    }
    /// What scrolls brings the control with the focus into view, and leaves the buttons outside.
    static void checkFocus(QWidget &window, const std::string &where) {
        auto *area = window.findChild<QScrollArea *>(QStringLiteral("fittedArea"));
        if (area == nullptr)
            return;
        for (auto *button : window.findChildren<QPushButton *>()) {
            if (button->isDefault() && button->isVisibleTo(&window)) {
                EXPECT_FALSE(area->isAncestorOf(button))
                    << where << ": " << named(*button) << " scrolls away";
            }
        }
        for (auto *control : area->widget()->findChildren<QWidget *>()) {
            const bool small = control->height() < area->viewport()->height() / 2;
            if (!small || !control->isVisible() || (control->focusPolicy() & Qt::TabFocus) == 0 ||
                control->window() != &window)
                continue;
            control->setFocus(Qt::TabFocusReason);
            const QRect seen(control->mapTo(area->viewport(), QPoint()), control->size());
            EXPECT_TRUE(!control->hasFocus() || area->viewport()->rect().intersects(seen))
                << where << ": " << named(*control);
        }
    }
};

TEST_P(SizeStory, everyWindowFitsOnItsScreen) {
    const Case &one = GetParam();
    const QFont first = QApplication::font();
    QFont font = first;
    font.setPointSize(one.points);
    QApplication::setFont(font);
    QGuiApplication::setLayoutDirection(one.direction);
    QObject life;
    new ScreenFit(&life, one.screen);
    constexpr QSize frame(8, 36);
    inEachWindow([&](QWidget &window, const std::string &name) { check(window, one.screen - frame, name); });
    QApplication::setFont(first);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

constexpr QSize small(800, 480);
constexpr QSize usual(1024, 768);
INSTANTIATE_TEST_SUITE_P(Letters, SizeStory,
                         testing::Values(Case{smallLetters, small, Qt::LeftToRight},
                                         Case{smallLetters, small, Qt::RightToLeft},
                                         Case{14, usual, Qt::LeftToRight}, Case{14, usual, Qt::RightToLeft},
                                         Case{24, usual, Qt::LeftToRight}, Case{24, usual, Qt::RightToLeft}));

} // namespace
