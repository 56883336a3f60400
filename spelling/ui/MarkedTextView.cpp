// SPDX-License-Identifier: MIT
#include "spelling/ui/MarkedTextView.h"

#include <QEvent>
#include <QTextCursor>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int darkBelow = 128; ///< lightness of a background that needs lighter colours

/// One unit for one unit: a carriage return alone is what the document takes for a line end.
QString shownText(QStringView text) {
    QString shown = text.toString();
    return shown.replace(u'\r', u'\n');
}

/// What a text and another one have in common at their front and, apart from that, at their end.
struct Common {
    qsizetype front;
    qsizetype back;
};

Common common(const MarkedText &a, const MarkedText &b) {
    const qsizetype shorter = qMin(a.text().size(), b.text().size());
    const auto same = [&](qsizetype i, qsizetype j) {
        return a.text()[i] == b.text()[j] && a.marks()[i] == b.marks()[j];
    };
    Common both{0, 0};
    while (both.front < shorter && same(both.front, both.front))
        ++both.front;
    while (both.back < shorter - both.front &&
           same(a.text().size() - both.back - 1, b.text().size() - both.back - 1))
        ++both.back;
    return both;
}

} // namespace

MarkedTextView::MarkedTextView(QWidget *parent) : QPlainTextEdit(parent) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setTabChangesFocus(true);
}

void MarkedTextView::showText(const MarkedText &text, qsizetype errorStart) {
    const Common both = common(m_shown, text);
    const qsizetype removed = m_shown.text().size() - both.front - both.back;
    const qsizetype added = text.text().size() - both.front - both.back;
    if (removed == 0 && added == 0 && errorStart == m_errorStart)
        return; // the user may have scrolled elsewhere
    if (removed > 0 || added > 0)
        write(text, both.front, removed, added);
    m_shown = text;
    m_errorStart = errorStart;
    scrollToError();
}

void MarkedTextView::write(const MarkedText &text, qsizetype start, qsizetype removed, qsizetype added) {
    if (m_shown.text().isEmpty()) {
        setPlainText(shownText(text.text()));
    } else if (QStringView(m_shown.text()).sliced(start, removed) !=
               QStringView(text.text()).sliced(start, added)) {
        QTextCursor cursor(document());
        cursor.setPosition(static_cast<int>(start));
        cursor.setPosition(static_cast<int>(start + removed), QTextCursor::KeepAnchor);
        cursor.insertText(shownText(QStringView(text.text()).sliced(start, added)), format(Mark::Plain));
    }
    paintMarks(text, start, added);
}

void MarkedTextView::paintMarks(const MarkedText &text, qsizetype start, qsizetype length) {
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (const MarkRun &run : text.runs(start, length)) {
        cursor.setPosition(static_cast<int>(run.start));
        cursor.setPosition(static_cast<int>(run.start + run.length), QTextCursor::KeepAnchor);
        cursor.setCharFormat(format(run.mark));
    }
    cursor.endEditBlock();
}

QTextCharFormat MarkedTextView::format(Mark mark) const {
    QTextCharFormat format;
    if (mark == Mark::Plain)
        return format; // the palette's own text colour
    QColor colour = QColor::fromRgb(markColour(mark));
    if (palette().color(QPalette::Base).lightness() < darkBelow)
        colour = mark == Mark::Mistake ? QColor(0xFF, 0x80, 0x80) : QColor(0x60, 0xD0, 0x60);
    format.setForeground(colour);
    if (mark == Mark::Mistake)
        format.setFontWeight(QFont::Bold);
    return format;
}

void MarkedTextView::scrollToError() {
    const qsizetype size = m_shown.text().size();
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(std::clamp<qsizetype>(m_errorStart, 0, size)));
    setTextCursor(cursor);
    centerCursor();
}

void MarkedTextView::changeEvent(QEvent *event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        paintMarks(m_shown, 0, m_shown.text().size());
}

void MarkedTextView::resizeEvent(QResizeEvent *event) {
    QPlainTextEdit::resizeEvent(event);
    scrollToError();
}

} // namespace tolvo
