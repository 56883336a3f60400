// SPDX-License-Identifier: MIT
#include "widgets/drawn_path.h"

#include <cmath>
#include <numbers>
#include <optional>

namespace tolvo {

namespace {

bool isDigit(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

class PathReader {
  public:
    explicit PathReader(QStringView letters) : m_letters(letters) {}

    QPainterPath read() {
        QChar command;
        for (skipBlanks(); m_at < m_letters.size() && m_readable; skipBlanks()) {
            if (m_letters[m_at].isLetter())
                command = m_letters[m_at++];
            else if (command.toLower() == QLatin1Char('m')) // further pairs are lines
                command = command.isUpper() ? QLatin1Char('L') : QLatin1Char('l');
            draw(command);
        }
        return m_path;
    }

  private:
    void skipBlanks() {
        while (m_at < m_letters.size() && (m_letters[m_at].isSpace() || m_letters[m_at] == QLatin1Char(',')))
            ++m_at;
    }

    /// Numbers may follow each other without a blank: "-3.5.6" is two.
    qreal number() {
        skipBlanks();
        const qsizetype start = m_at;
        bool point = false;
        for (; m_at < m_letters.size(); ++m_at) {
            const QChar c = m_letters[m_at];
            const bool sign = m_at == start && (c == QLatin1Char('-') || c == QLatin1Char('+'));
            const bool firstPoint = c == QLatin1Char('.') && !point;
            if (!isDigit(c) && !sign && !firstPoint)
                break;
            point = point || firstPoint;
        }
        bool isNumber = false;
        const qreal value = m_letters.mid(start, m_at - start).toDouble(&isNumber);
        m_readable = m_readable && isNumber;
        return value;
    }

    /// One digit; no blank need follow.
    bool flag() {
        skipBlanks();
        m_readable = m_readable && m_at < m_letters.size();
        return m_readable && m_letters[m_at++] == QLatin1Char('1');
    }

    QPointF point(const QPointF &origin) {
        const qreal x = number();
        const qreal y = number();
        return origin + QPointF(x, y);
    }

    void draw(QChar command) {
        const QPointF now = m_path.currentPosition();
        const QPointF origin = command.isLower() ? now : QPointF();
        std::optional<QPointF> control;
        switch (command.toLower().toLatin1()) {
        case 'm':
            if (const QPointF to = point(origin); m_readable)
                m_path.moveTo(to);
            break;
        case 'l':
            lineTo(point(origin));
            break;
        case 'h':
            lineTo({origin.x() + number(), now.y()});
            break;
        case 'v':
            lineTo({now.x(), origin.y() + number()});
            break;
        case 'c':
            control = curveTo(point(origin), origin);
            break;
        case 's':
            control = curveTo(now + (now - m_control.value_or(now)), origin);
            break;
        case 'a':
            arcTo(now, origin);
            break;
        case 'z':
            m_path.closeSubpath();
            break;
        default:
            m_readable = false;
        }
        m_control = control;
    }

    void lineTo(const QPointF &to) {
        if (m_readable)
            m_path.lineTo(to);
    }

    /// Gives the second control point.
    QPointF curveTo(const QPointF &first, const QPointF &origin) {
        const QPointF second = point(origin);
        const QPointF to = point(origin);
        if (m_readable)
            m_path.cubicTo(first, second, to);
        return second;
    }

    void arcTo(const QPointF &from, const QPointF &origin) {
        qreal rx = std::abs(number());
        qreal ry = std::abs(number());
        const qreal turned = number();
        const bool large = flag();
        const bool clockwise = flag();
        const QPointF to = point(origin);
        m_readable = m_readable && rx > 0 && ry > 0 && turned == 0;
        if (!m_readable || from == to)
            return;
        // On a circle of radius 1 the centre lies on the perpendicular through the middle of the chord.
        QPointF half((to.x() - from.x()) / 2 / rx, (to.y() - from.y()) / 2 / ry);
        qreal square = QPointF::dotProduct(half, half);
        if (square > 1) { // the ellipse is too small and grows until it fits
            rx *= std::sqrt(square);
            ry *= std::sqrt(square);
            half /= std::sqrt(square);
            square = 1;
        }
        const qreal away = std::sqrt(1 / square - 1) * (large == clockwise ? -1 : 1);
        const QPointF toCentre(half.x() - away * half.y(), half.y() + away * half.x());
        const QPointF centre(from.x() + toCentre.x() * rx, from.y() + toCentre.y() * ry);
        const qreal start = angle(-toCentre);
        qreal sweep = angle(half * 2 - toCentre) - start;
        if (clockwise && sweep > 0)
            sweep -= 360;
        if (!clockwise && sweep < 0)
            sweep += 360;
        m_path.arcTo(QRectF(centre - QPointF(rx, ry), QSizeF(2 * rx, 2 * ry)), start, sweep);
    }

    /// In degrees, against the clock, as the toolkit counts them.
    static qreal angle(const QPointF &direction) {
        return std::atan2(-direction.y(), direction.x()) * 180 / std::numbers::pi;
    }

    QStringView m_letters;
    qsizetype m_at = 0;
    bool m_readable = true;
    QPainterPath m_path;
    std::optional<QPointF> m_control; ///< of the curve before, which "s" mirrors
};

} // namespace

QPainterPath drawnPath(QStringView letters) {
    return PathReader(letters).read();
}

} // namespace tolvo
