// SPDX-License-Identifier: MIT
#include "search/ui/search_list_edit.h"

#include "base/escaped_text.h"
#include "platform/line_ends.h"
#include "search/ui/history_delegate.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>

namespace tolvo {

SearchListEdit::SearchListEdit(const QString &name, QWidget *parent) : QComboBox(parent) {
    setObjectName(name);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    // Completion would put letters into a pattern that the user didn't type.
    setCompleter(nullptr);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(18);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaxVisibleItems(20);
    setItemDelegate(new HistoryDelegate(this));
    connect(lineEdit(), &QLineEdit::textEdited, this, &SearchListEdit::escapeLineEnds);
    connect(this, &QComboBox::activated, this, [this] { remember(); });
    // Some selections come and go with the focus itself. Only what changes while it is here is the user's.
    const auto follow = [this] {
        if (hasFocus())
            remember();
    };
    connect(lineEdit(), &QLineEdit::selectionChanged, this, follow);
    connect(lineEdit(), &QLineEdit::cursorPositionChanged, this, follow);
}

void SearchListEdit::show(const QStringList &entries, const QString &text) {
    const bool isSame = text == currentText();
    const Place place = m_place;
    {
        const QSignalBlocker quiet(this);
        const QSignalBlocker quietEdit(lineEdit());
        clear();
        addItems(entries);
        addWords();
        setEditText(text);
    }
    m_place = isSame ? place : Place{static_cast<int>(text.size()), 0};
}

void SearchListEdit::addWords() {
    for (int i = 0; wordOn && i < count(); ++i) {
        const QString word = wordOn(itemText(i));
        if (word.isEmpty())
            continue;
        setItemData(i, word, HistoryDelegate::wordRole);
        setItemData(i, itemText(i) + QStringLiteral(", ") + word, Qt::AccessibleTextRole);
    }
}

void SearchListEdit::remember() {
    const QLineEdit &edit = *lineEdit();
    const int length = static_cast<int>(edit.selectedText().size());
    m_place = {length > 0 ? edit.selectionStart() : edit.cursorPosition(), length};
    emit used();
}

void SearchListEdit::goTo(Place place) {
    place.start = std::min(place.start, static_cast<int>(lineEdit()->text().size()));
    if (place.length > 0)
        lineEdit()->setSelection(place.start, place.length);
    else
        lineEdit()->setCursorPosition(place.start);
    m_place = place;
}

void SearchListEdit::resume() {
    const Place place = m_place;
    if (!hasFocus())
        setFocus(Qt::OtherFocusReason);
    goTo(place);
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

void SearchListEdit::escapeLineEnds(const QString &text) {
    if (!text.contains(u'\r') && !text.contains(u'\n'))
        return remember();
    QLineEdit &edit = *lineEdit();
    const int caret = edit.cursorPosition();
    // The escapes take the place of what came in, so that one step back brings the text before it.
    edit.undo();
    const QString before = edit.text();
    const auto start =
        std::mismatch(text.begin(), text.end(), before.begin(), before.end()).first - text.begin();
    const auto same =
        std::mismatch(text.rbegin(), text.rend() - start, before.rbegin(), before.rend() - start);
    const qsizetype end = text.size() - (same.first - text.rbegin());
    const auto escapes = [&](qsizetype from, qsizetype to) {
        return escapedControls(lfToCrLf(crLfToLf(text.sliced(from, std::max<qsizetype>(to - from, 0))))).text;
    };
    const QString untilCaret = escapes(start, std::min<qsizetype>(caret, end));
    edit.setSelection(static_cast<int>(start), static_cast<int>(before.size() - (text.size() - end) - start));
    edit.insert(escapes(start, end));
    edit.setCursorPosition(static_cast<int>(start + untilCaret.size()));
    remember();
    emit escaped();
}

} // namespace tolvo
