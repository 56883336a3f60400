// SPDX-License-Identifier: MIT
#include "platform/headless/MemoryTextBox.h"

#include "platform/text_positions.h"

namespace tolvo {

void MemoryTextBox::setText(const QString &text) {
    m_start = 0;
    m_length = 0;
    const QString kept = text.size() > m_capacity ? cutToRoom(text, m_capacity, 0).toString() : text;
    if (kept != m_text) {
        m_text = kept;
        if (onChange)
            onChange();
    }
    if (text.size() > m_capacity)
        reportCut(text.size(), Writer::Code);
}

void MemoryTextBox::setSelStart(int start) {
    m_start = static_cast<int>(snapBefore(m_text, start));
    m_length = 0;
}

void MemoryTextBox::setSelLength(int length) {
    const qint64 end = static_cast<qint64>(m_start) + std::max(length, 0);
    m_length = static_cast<int>(snapAfter(m_text, end)) - m_start;
}

void MemoryTextBox::setSelText(const QString &text) {
    const qint64 wanted = wantedLength(text);
    if (replaceSelection(text) && onChange)
        onChange();
    if (length() < wanted)
        reportCut(wanted, Writer::Code);
}

void MemoryTextBox::type(const QString &text, bool atOnce) {
    const UserEdit edit{m_text, m_start, m_length, atOnce};
    const qint64 wanted = wantedLength(text);
    if (replaceSelection(text))
        report(edit);
    if (length() < wanted)
        reportCut(wanted, Writer::User);
}

void MemoryTextBox::erase(int start, int length) {
    const UserEdit edit{m_text, m_start, m_length};
    select(*this, start, length);
    if (replaceSelection({}))
        report(edit);
}

void MemoryTextBox::report(const UserEdit &edit) {
    if (onUserEdit)
        onUserEdit(edit);
    if (onChange)
        onChange();
}

/// The length of the whole text with all of `text` in place of the selection.
qint64 MemoryTextBox::wantedLength(QStringView text) const {
    return m_text.size() - m_length + text.size();
}

/// True if the text has changed.
bool MemoryTextBox::replaceSelection(const QString &text) {
    const QStringView inserted = cutToRoom(text, m_capacity, m_text.size() - m_length);
    const bool same = inserted == QStringView(m_text).mid(m_start, m_length);
    if (!same)
        m_text.replace(m_start, m_length, inserted.data(), inserted.size());
    m_start = static_cast<int>(snapAfter(m_text, m_start + inserted.size()));
    m_length = 0;
    return !same;
}

} // namespace tolvo
