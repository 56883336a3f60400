// SPDX-License-Identifier: MIT
#include "widgets/house_style.h"

#include "widgets/contrast.h"
#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace tolvo {

namespace {

enum class Shape { Box, Disc };

QColor ringColour(const QStyleOption &option) {
    return accentOn(option.palette, QPalette::Window);
}

/// One pixel wide, with round corners: four straight lines cost a tenth of a path around a large box.
void thinOutline(QPainter &painter, const QRect &area, QColor colour) {
    const auto inner = area.adjusted(1, 1, -1, -1);
    const auto fill = [&](int x, int y, int width, int height) {
        painter.fillRect(x, y, width, height, colour);
    };
    fill(inner.left(), area.top(), inner.width(), 1);
    fill(inner.left(), area.bottom(), inner.width(), 1);
    fill(area.left(), inner.top(), 1, inner.height());
    fill(area.right(), inner.top(), 1, inner.height());
    constexpr qreal shareOfCorner = 0.4;
    colour.setAlphaF(static_cast<float>(colour.alphaF() * shareOfCorner));
    for (const QPoint corner : {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()})
        fill(corner.x(), corner.y(), 1, 1);
}

void outline(QPainter &painter, const QStyleOption &option, bool focused, Shape shape = Shape::Box) {
    if (!focused && shape == Shape::Box) {
        thinOutline(painter, option.rect, edgeColour(option.palette));
        return;
    }
    constexpr qreal radius = 2;
    const QPen pen(focused ? ringColour(option) : edgeColour(option.palette), focused ? 2 : 1);
    const qreal inset = pen.widthF() / 2;
    const QRectF area = QRectF(option.rect).adjusted(inset, inset, -inset, -inset);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    if (shape == Shape::Disc)
        painter.drawEllipse(area);
    else
        painter.drawRoundedRect(area, radius, radius);
    painter.restore();
}

/// A second ring where the first can't be told from the button's ground.
void ringInside(QPainter &painter, const QStyleOption &option) {
    if (contrast(ringColour(option), option.palette.color(QPalette::Button)) >= lineContrast)
        return;
    constexpr int ringWidth = 2;
    const QRectF area = QRectF(option.rect).adjusted(ringWidth, ringWidth, -ringWidth, -ringWidth);
    painter.save();
    painter.setPen(QPen(accentOn(option.palette, QPalette::Button), ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area.adjusted(1, 1, -1, -1));
    painter.restore();
}

bool hasFocus(const QStyleOption &option) {
    return option.state.testFlag(QStyle::State_HasFocus);
}

/// Buttons show the focus once the user goes by keys.
bool hasFocusByKeys(const QStyleOption &option) {
    return hasFocus(option) && option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

bool isFlat(const QStyleOption &option) {
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::Flat);
}

} // namespace

bool HouseStyle::isFaint() const {
    return baseStyle()->name().compare(QLatin1StringView("fusion"), Qt::CaseInsensitive) == 0;
}

void HouseStyle::polish(QWidget *widget) {
    QProxyStyle::polish(widget);
    if (!widget->inherits("QLineEditIconButton") || !widget->accessibleName().isEmpty())
        return;
    const bool clears = widget->objectName() == QLatin1StringView("_q_qlineeditclearbutton");
    widget->setAccessibleName(clears ? QStringLiteral("Clear") : widget->parentWidget()->accessibleName());
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *data) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0
                                                       : QProxyStyle::styleHint(hint, option, widget, data);
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_ButtonIconSize:
        return isFaint() && widget ? std::max(usual, widget->fontMetrics().ascent() * 9 / 10) : usual;
    default:
        return usual;
    }
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                   const QWidget *widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (type == CT_PushButton && button && !button->text.isEmpty()) {
        const int edge = Grid(button->fontMetrics.height()).gap();
        size.setWidth(std::max(size.width(), contents.width() + 2 * edge));
    }
    return size;
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const {
    const bool inView = qobject_cast<const QAbstractItemView *>(widget) != nullptr;
    if (element == PE_FrameFocusRect && isFaint() && !inView) {
        outline(*painter, *option, true);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!isFaint())
        return;
    switch (element) {
    case PE_IndicatorCheckBox:
        outline(*painter, *option, false);
        break;
    case PE_IndicatorRadioButton:
        outline(*painter, *option, false, Shape::Disc);
        break;
    case PE_FrameLineEdit:
        outline(*painter, *option, hasFocus(*option));
        break;
    case PE_PanelButtonCommand:
        if (!isFlat(*option) || hasFocusByKeys(*option))
            outline(*painter, *option, hasFocusByKeys(*option));
        if (hasFocusByKeys(*option))
            ringInside(*painter, *option);
        break;
    case PE_Frame:
        outline(*painter, *option, false);
        break;
    default:
        break;
    }
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element != CE_TabBarTab || !isFaint() || !hasFocus(*option))
        return;
    constexpr int inset = 3;
    QStyleOption inside(*option);
    inside.rect.adjust(inset, inset, -inset, -inset);
    outline(*painter, inside, true);
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                    QPainter *painter, const QWidget *widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (isFaint() && control == CC_ScrollBar && hasFocus(*option))
        outline(*painter, *option, true);
    if (isFaint() && (control == CC_ComboBox || control == CC_SpinBox))
        outline(*painter, *option, hasFocus(*option));
}

} // namespace tolvo
