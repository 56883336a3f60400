// SPDX-License-Identifier: MIT
#include "search/ui/search_list_edit.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QSignalBlocker>

namespace tolvo {

SearchListEdit::SearchListEdit(const QString &name, QWidget *parent) : QComboBox(parent) {
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // Completion would put letters into a pattern that the user didn't type.
    setCompleter(nullptr);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaxVisibleItems(20);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { remember(); });
    connect(this, &QComboBox::activated, this, [this] { remember(); });
}

void SearchListEdit::show(const QStringList &entries, const QString &text) {
    const QSignalBlocker quiet(this);
    clear();
    addItems(entries);
    setEditText(text);
}

void SearchListEdit::remember() {
    const QLineEdit &edit = *lineEdit();
    m_selLength = static_cast<int>(edit.selectedText().size());
    m_selStart = m_selLength > 0 ? edit.selectionStart() : edit.cursorPosition();
    emit used();
}

void SearchListEdit::focusOutEvent(QFocusEvent *event) {
    remember();
    QComboBox::focusOutEvent(event);
}

void SearchListEdit::resume() {
    if (hasFocus())
        return;
    // The focus brings selections of its own, so the caret is placed behind it.
    const int start = m_selStart;
    const int length = m_selLength;
    setFocus(Qt::OtherFocusReason);
    if (length > 0)
        lineEdit()->setSelection(start, length);
    else
        lineEdit()->setCursorPosition(start);
}

void SearchListEdit::begin() {
    setFocus(Qt::OtherFocusReason);
    lineEdit()->selectAll();
    remember();
}

void SearchListEdit::insertText(const QString &text) {
    resume();
    lineEdit()->insert(text);
    remember();
}

} // namespace tolvo
