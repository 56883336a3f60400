// SPDX-License-Identifier: MIT
#include "platform/desktop/stand_ins.h"

#include <algorithm>
#include <bitset>

namespace tolvo {

namespace {

constexpr std::array<QChar, 5> changedByDocument{u'\r', u'\n', QChar(0x2029), QChar(0xFDD0), QChar(0xFDD1)};

// The candidates, in the order of choice.
constexpr char16_t firstNonCharacter = 0xFDD2;
constexpr char16_t lastNonCharacter = 0xFDEF;
constexpr char16_t firstPrivate = 0xE000;
constexpr char16_t lastPrivate = 0xF8FF;

} // namespace

StandIns::StandIns(QStringView text) {
    std::bitset<0x10000 - firstPrivate> held;
    for (const QChar unit : text) {
        if (unit >= QChar(firstPrivate))
            held.set(unit.unicode() - firstPrivate);
    }
    size_t found = 0;
    const auto choose = [&](char16_t first, char16_t last) {
        for (char16_t unit = first; unit <= last && found < m_standIns.size(); ++unit) {
            if (!held.test(unit - firstPrivate))
                m_standIns[found++] = QChar(unit);
        }
    };
    choose(firstNonCharacter, lastNonCharacter);
    choose(firstPrivate, lastPrivate);
    for (char16_t unit = firstNonCharacter; found < m_standIns.size(); ++unit)
        m_standIns[found++] = QChar(unit);
}

bool StandIns::clashWith(QStringView text) const {
    return std::any_of(text.begin(), text.end(), [&](QChar unit) { return indexOf(unit) >= 0; });
}

QString StandIns::encode(QStringView text) const {
    QString raw(text.size(), Qt::Uninitialized);
    QChar *out = raw.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') {
            *out++ = QChar::ParagraphSeparator;
            ++i;
            continue;
        }
        const auto changed = std::find(changedByDocument.begin(), changedByDocument.end(), unit);
        *out++ = changed == changedByDocument.end()
                     ? unit
                     : m_standIns[static_cast<size_t>(changed - changedByDocument.begin())];
    }
    raw.truncate(out - raw.constData());
    return raw;
}

QString StandIns::decode(QStringView raw) const {
    const qsizetype lineEnds = raw.count(QChar(QChar::ParagraphSeparator));
    QString text(raw.size() + lineEnds, Qt::Uninitialized);
    QChar *out = text.data();
    for (const QChar unit : raw) {
        if (unit == QChar::ParagraphSeparator) {
            *out++ = u'\r';
            *out++ = u'\n';
            continue;
        }
        const int index = indexOf(unit);
        *out++ = index < 0 ? unit : changedByDocument[static_cast<size_t>(index)];
    }
    return text;
}

QString StandIns::looseLineEnd() const {
    return QString(m_standIns[0]) + m_standIns[1];
}

int StandIns::indexOf(QChar standIn) const {
    if (standIn < QChar(firstPrivate))
        return -1;
    const auto found = std::find(m_standIns.begin(), m_standIns.end(), standIn);
    return found == m_standIns.end() ? -1 : static_cast<int>(found - m_standIns.begin());
}

} // namespace tolvo
