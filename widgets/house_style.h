// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace tolvo {

/// The platform's style with words alone on the buttons of dialogs. Where that style is the toolkit's own,
/// whose edges and focus are too faint to be seen by everybody, controls get edges, and a ring with the
/// focus, that stand out from the window by lineContrast; signs and icons grow with the letters beside them.
/// Buttons inside fields get names.
class HouseStyle : public QProxyStyle {
  public:
    HouseStyle() = default;
    /// On the style of that name instead of the platform's.
    explicit HouseStyle(const QString &base) : QProxyStyle(base) {}

    void polish(QWidget *widget) override;
    using QProxyStyle::polish;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *data) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                         const QWidget *widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

  private:
    [[nodiscard]] bool isFaint() const;
};

} // namespace tolvo
