// SPDX-License-Identifier: MIT
#include "platform/headless/MemoryTextBox.h"

#include "platform/text_positions.h"

namespace tolvo {

void MemoryTextBox::setText(const QString &text) {
    m_start = 0;
    m_length = 0;
    const QString kept = text.size() > m_capacity ? text.left(m_capacity) : text;
    if (kept == m_text)
        return;
    m_text = kept;
    if (onChange)
        onChange();
}

void MemoryTextBox::setSelStart(int start) {
    m_start = static_cast<int>(snapBefore(m_text, start));
    m_length = 0;
}

void MemoryTextBox::setSelLength(int length) {
    const qint64 end = static_cast<qint64>(m_start) + std::max(length, 0);
    m_length = static_cast<int>(snapBehind(m_text, end)) - m_start;
}

void MemoryTextBox::setSelText(const QString &text) {
    const QStringView inserted = cutToRoom(text, m_capacity, m_text.size() - m_length);
    const bool same = inserted == QStringView(m_text).mid(m_start, m_length);
    if (!same)
        m_text.replace(m_start, m_length, inserted.data(), inserted.size());
    m_start = static_cast<int>(snapBehind(m_text, m_start + inserted.size()));
    m_length = 0;
    if (!same && onChange)
        onChange();
}

} // namespace tolvo
