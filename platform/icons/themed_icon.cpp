// SPDX-License-Identifier: MIT
#include "platform/icons/themed_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace tolvo {

namespace {

class ThemedIconEngine : public QIconEngine {
  public:
    explicit ThemedIconEngine(QByteArray svg) : m_svg(std::move(svg)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QGuiApplication::palette();
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor text = mode == QIcon::Selected ? palette.color(QPalette::HighlightedText)
                                                    : palette.color(group, QPalette::WindowText);
        const QColor second = mode == QIcon::Normal || mode == QIcon::Active ? accent(palette) : text;
        QByteArray svg = m_svg;
        svg.replace("currentColor", text.name().toLatin1()).replace("accentColor", second.name().toLatin1());
        QSvgRenderer renderer(svg);
        const int side = qMin(rect.width(), rect.height());
        QRect square(0, 0, side, side);
        square.moveCenter(rect.center());
        renderer.render(painter, square);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine *clone() const override { return new ThemedIconEngine(m_svg); }

  private:
    QByteArray m_svg;
};

} // namespace

bool isDark(const QPalette &palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor accent(const QPalette &palette) {
    return isDark(palette) ? QColor(104, 200, 140) : QColor(1, 99, 49);
}

QIcon themedIcon(const QString &name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QIcon(new ThemedIconEngine(file.readAll()));
}

} // namespace tolvo
