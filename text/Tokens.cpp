// SPDX-License-Identifier: MIT
#include "text/Tokens.h"

#include "base/strings.h"

namespace tolvo {

namespace {

bool endsToken(int unit) {
    return unit == noUnit || unit == u' ' || unit == u'\r' || unit == u'\n' || unit == u'\t';
}

} // namespace

void Tokens::moveTo(qsizetype position) {
    if (position >= m_start && position < m_end)
        return;
    m_start = position;
    m_end = position;
    while (!endsToken(unitAt(m_text, m_start - 1)))
        --m_start;
    while (!endsToken(unitAt(m_text, m_end)))
        ++m_end;
    m_word = trimWhiteSpace(m_text.sliced(m_start - 1, m_end - m_start));
    m_isWebOrFileName.reset();
    m_isAbbreviation.reset();
}

QStringView Tokens::WordAt(qsizetype position) {
    moveTo(position);
    return m_word;
}

bool Tokens::isWebOrFileName(qsizetype position) {
    moveTo(position);
    if (!m_isWebOrFileName)
        m_isWebOrFileName = m_addresses.IsWebOrFileName(m_word);
    return *m_isWebOrFileName;
}

bool Tokens::isAbbreviation(qsizetype position) {
    moveTo(position);
    if (!m_isAbbreviation)
        m_isAbbreviation = IsAbbreviation(m_word);
    return *m_isAbbreviation;
}

} // namespace tolvo
