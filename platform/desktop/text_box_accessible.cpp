// SPDX-License-Identifier: MIT
#include "platform/desktop/text_box_accessible.h"

#include <QAbstractTextDocumentLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>

namespace tolvo {

namespace {

QString plain(QString selected) {
    return selected.replace(QChar::ParagraphSeparator, u'\n');
}

QAccessibleInterface *describeTextBox(const QString &className, QObject *object) {
    auto *box =
        className == QLatin1StringView("QPlainTextEdit") ? qobject_cast<QPlainTextEdit *>(object) : nullptr;
    return box == nullptr ? nullptr : new TextBoxAccessible(*box);
}

} // namespace

void installTextBoxAccessible() {
    QAccessible::installFactory(describeTextBox);
}

TextBoxAccessible::TextBoxAccessible(QPlainTextEdit &box)
    : QAccessibleWidget(&box, QAccessible::EditableText), m_box(box) {
}

QString TextBoxAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? text(0, characterCount()) : QAccessibleWidget::text(kind);
}

QAccessible::State TextBoxAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.multiLine = true;
    state.selectableText = true;
    state.editable = !m_box.isReadOnly();
    state.readOnly = m_box.isReadOnly();
    return state;
}

void *TextBoxAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

// Selection and caret

QTextCursor TextBoxAccessible::cursorOver(int start, int end) const {
    const int last = characterCount();
    QTextCursor cursor(m_box.document());
    cursor.setPosition(std::clamp(start, 0, last));
    cursor.setPosition(std::clamp(end, 0, last), QTextCursor::KeepAnchor);
    return cursor;
}

void TextBoxAccessible::selection(int index, int *start, int *end) const {
    const QTextCursor cursor = m_box.textCursor();
    const bool exists = index == 0 && cursor.hasSelection();
    *start = exists ? cursor.selectionStart() : 0;
    *end = exists ? cursor.selectionEnd() : 0;
}

int TextBoxAccessible::selectionCount() const {
    return m_box.textCursor().hasSelection() ? 1 : 0;
}

void TextBoxAccessible::removeSelection(int index) {
    if (index == 0)
        setCursorPosition(cursorPosition());
}

void TextBoxAccessible::setSelection(int index, int start, int end) {
    if (index == 0)
        m_box.setTextCursor(cursorOver(start, end));
}

int TextBoxAccessible::cursorPosition() const {
    return m_box.textCursor().position();
}

void TextBoxAccessible::setCursorPosition(int position) {
    m_box.setTextCursor(cursorOver(position, position));
}

// Text

int TextBoxAccessible::characterCount() const {
    return m_box.document()->characterCount() - 1; // the document ends in a line end of its own
}

QString TextBoxAccessible::text(int start, int end) const {
    return plain(cursorOver(start, end).selectedText());
}

QString TextBoxAccessible::lineOf(const QTextCursor &cursor, int *start, int *end) const {
    const QTextBlock block = cursor.block();
    m_box.document()->documentLayout()->blockBoundingRect(block); // breaks a block out of sight into lines
    const QTextLine line = block.layout()->lineForTextPosition(cursor.positionInBlock());
    *start = block.position() + line.textStart();
    *end = *start + line.textLength();
    if (*end == block.position() + block.length() - 1 && block.next().isValid())
        ++*end;
    return text(*start, *end);
}

QString TextBoxAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType type, int *start,
                                        int *end) const {
    if (type != QAccessible::LineBoundary)
        return QAccessibleTextInterface::textAtOffset(offset, type, start, end);
    return lineOf(cursorOver(offset, offset), start, end);
}

QString TextBoxAccessible::textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int *start,
                                            int *end) const {
    if (type != QAccessible::LineBoundary)
        return QAccessibleTextInterface::textBeforeOffset(offset, type, start, end);
    lineOf(cursorOver(offset, offset), start, end);
    *end = *start;
    return *start == 0 ? QString() : lineOf(cursorOver(*start - 1, *start - 1), start, end);
}

QString TextBoxAccessible::textAfterOffset(int offset, QAccessible::TextBoundaryType type, int *start,
                                           int *end) const {
    if (type != QAccessible::LineBoundary)
        return QAccessibleTextInterface::textAfterOffset(offset, type, start, end);
    lineOf(cursorOver(offset, offset), start, end);
    *start = *end;
    return *end == characterCount() ? QString() : lineOf(cursorOver(*end, *end), start, end);
}

QString TextBoxAccessible::attributes(int, int *start, int *end) const {
    *start = 0;
    *end = characterCount();
    const QFont font = m_box.font();
    QString family = font.family();
    for (const QChar sign : {u'\\', u':', u',', u'=', u';', u'"'})
        family.replace(sign, QStringLiteral("\\") + sign);
    return QStringLiteral("font-family:\"%1\";font-size:%2pt;font-weight:%3;font-style:%4;")
        .arg(family)
        .arg(QFontInfo(font).pointSizeF())
        .arg(font.bold() ? QStringLiteral("bold") : QStringLiteral("normal"),
             font.italic() ? QStringLiteral("italic") : QStringLiteral("normal"));
}

void TextBoxAccessible::replaceText(int start, int end, const QString &text) {
    if (!m_box.isReadOnly())
        cursorOver(start, end).insertText(text);
}

// Places

QRect TextBoxAccessible::characterRect(int offset) const {
    if (offset < 0 || offset > characterCount())
        return {};
    QTextCursor cursor = cursorOver(offset, offset);
    QRect area = m_box.cursorRect(cursor);
    int width = m_box.fontMetrics().horizontalAdvance(u' ');
    if (cursor.movePosition(QTextCursor::NextCharacter)) {
        const QRect next = m_box.cursorRect(cursor);
        if (next.top() == area.top() && next.left() != area.left()) {
            width = std::abs(next.left() - area.left());
            area.moveLeft(std::min(area.left(), next.left())); // some scripts run to the left
        }
    }
    area.setWidth(width);
    area.moveTopLeft(m_box.viewport()->mapToGlobal(area.topLeft()));
    return area;
}

int TextBoxAccessible::offsetAtPoint(const QPoint &point) const {
    const QPoint inside = m_box.viewport()->mapFromGlobal(point);
    return m_box.viewport()->rect().contains(inside) ? m_box.cursorForPosition(inside).position() : -1;
}

void TextBoxAccessible::scrollToSubstring(int start, int end) {
    for (const int position : {end, start}) { // the start counts where both have no room
        const QTextCursor cursor = cursorOver(position, position);
        const QTextBlock block = cursor.block();
        const QRect view = m_box.viewport()->rect();
        if (const QRect place = m_box.cursorRect(cursor); place.top() < 0 || place.bottom() > view.bottom()) {
            const int line = block.layout()->lineForTextPosition(cursor.positionInBlock()).lineNumber();
            m_box.verticalScrollBar()->setValue(block.firstLineNumber() + std::max(0, line));
        }
        const int x = m_box.cursorRect(cursor).left();
        QScrollBar &bar = *m_box.horizontalScrollBar();
        if (x < 0 || x > view.right())
            bar.setValue(bar.value() + x - view.width() / 2);
    }
}

} // namespace tolvo
