// SPDX-License-Identifier: MIT
#include "widgets/painted_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace tolvo {

namespace {

class PaintedIconEngine : public QIconEngine {
  public:
    explicit PaintedIconEngine(PaintIcon paintIcon) : m_paint(std::move(paintIcon)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
        m_paint(*painter, rect, mode);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        m_paint(painter, QRect(QPoint(), size), mode);
        return pixmap;
    }

    [[nodiscard]] QIconEngine *clone() const override { return new PaintedIconEngine(m_paint); }

  private:
    PaintIcon m_paint;
};

} // namespace

QIcon paintedIcon(PaintIcon paint) {
    return QIcon(new PaintedIconEngine(std::move(paint)));
}

} // namespace tolvo
