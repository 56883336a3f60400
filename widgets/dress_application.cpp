// SPDX-License-Identifier: MIT
#include "widgets/dress_application.h"

#include "widgets/contrast.h"
#include "widgets/house_style.h"
#include "widgets/screen_fit.h"
#include "widgets/themed_icon.h"

#include <QApplication>
#include <QEvent>

namespace tolvo {

namespace {

QColor hintColour(const QPalette &palette) {
    constexpr double spare = 0.2; // thin letters look paler than their colour
    return mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), textContrast + spare);
}

/// The ink of a selection, if that can be read on its ground, else the one that can.
QColor selectionInk(const QPalette &palette) {
    const QColor ground = palette.color(QPalette::Highlight);
    const QColor ink = palette.color(QPalette::HighlightedText);
    return contrast(ground, ink) >= textContrast ? ink : readableOn(ground);
}

/// All other colours are the theme's.
void dressPalette() {
    QPalette palette = QGuiApplication::palette();
    const QColor hint = hintColour(palette);
    const QColor ink = selectionInk(palette);
    if (palette.color(QPalette::PlaceholderText) == hint && palette.color(QPalette::HighlightedText) == ink)
        return;
    palette.setColor(QPalette::PlaceholderText, hint);
    if (palette.color(QPalette::HighlightedText) != ink)
        palette.setColor(QPalette::HighlightedText, ink);
    QApplication::setPalette(palette); // fixes what has been set here alone
}

class ThemeWatch : public QObject {
  public:
    explicit ThemeWatch(QObject *parent) : QObject(parent) {
        QApplication::setStyle(new HouseStyle);
        dressStyle();
        dressPalette();
    }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::ApplicationPaletteChange && watched == qApp) {
            dressStyle();
            dressPalette();
        }
        return false;
    }

  private:
    /// The style of Windows has no dark colours: while the theme is dark, the toolkit's own stands in.
    void dressStyle() {
        const bool dark = isDark(QGuiApplication::palette());
        const auto *style = qobject_cast<QProxyStyle *>(QApplication::style());
        if (dark && !m_standsIn && style && style->baseStyle()->name() == QLatin1StringView("windowsvista")) {
            m_standsIn = true;
            QApplication::setStyle(new HouseStyle(QStringLiteral("fusion")));
        } else if (!dark && m_standsIn) {
            m_standsIn = false;
            QApplication::setStyle(new HouseStyle);
        }
    }

    bool m_standsIn = false;
};

} // namespace

void dressApplication() {
    QGuiApplication::setWindowIcon(themedIcon(QStringLiteral("tolvo"))); // a file's would load two plugins
    QGuiApplication::setDesktopFileName(QStringLiteral("tolvo"));        // what Wayland calls the window
    QCoreApplication::setApplicationName(QStringLiteral("tolvo"));       // and the class that X11 knows it by
    qApp->installEventFilter(new ThemeWatch(qApp));
    new ScreenFit(qApp);
}

} // namespace tolvo
