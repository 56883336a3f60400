// SPDX-License-Identifier: MIT
#include "text/typography_blanks.h"

#include <QStringBuilder>

namespace tolvo {

namespace {

constexpr char16_t noBreak = u'\u00A0';
constexpr char16_t thin = u'\u202F';
constexpr qsizetype longestWord = 8; // of the tables

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isBlank(QChar c) {
    return c == u' ' || c == noBreak || c == thin || c == u'\t' || c == u'\r' || c == u'\n';
}

bool isIn(QStringView word, QStringView list) {
    return !word.isEmpty() && word.size() <= longestWord && list.contains(QString(u' ' % word % u' '));
}

class Blanks {
  public:
    Blanks(QStringView text, const TypographyRules &rules) : m_text(text), m_rules(rules) {
        m_result.reserve(text.size() + text.size() / 16);
    }

    QString set() {
        for (m_at = 0; m_at < m_text.size(); ++m_at) {
            const QChar c = m_text[m_at];
            if (c == u' ' && !isBlank(at(-1)) && !isBlank(at(1)))
                m_result += keptTogether();
            else if (const char16_t blank = blankBefore(c))
                putBefore(c, blank);
            else
                m_result += c;
        }
        return m_result;
    }

  private:
    /// The unit so far from the present one; a line end beyond the text.
    [[nodiscard]] QChar at(qsizetype distance) const {
        const qsizetype place = m_at + distance;
        return place < 0 || place >= m_text.size() ? QChar(u'\n') : m_text[place];
    }

    [[nodiscard]] QStringView wordBefore() const {
        qsizetype start = m_at;
        while (start > 0 && m_at - start <= longestWord && !isBlank(m_text[start - 1]) &&
               !QStringView(u"([{\u00AB\u201E\u201C\"").contains(m_text[start - 1]))
            --start;
        return m_text.sliced(start, m_at - start);
    }

    [[nodiscard]] QStringView wordAfter() const {
        qsizetype end = m_at + 1;
        while (end < m_text.size() && end - m_at <= longestWord && m_text[end].isLetter())
            ++end;
        return m_text.sliced(m_at + 1, end - m_at - 1);
    }

    /// A unit of measurement, percent or currency follows.
    [[nodiscard]] bool unitFollows() const {
        static constexpr QStringView units =
            u" km m cm mm kg g mg t l ml dl h min s ms Hz kHz MHz GHz W kW MW V "
            u"A J kJ kcal kB MB GB TB px pt zł Kč USD EUR GBP ";
        if (QStringView(u"%‰€$£¥°\u2032\u2033").contains(at(1)))
            return true;
        return isIn(wordAfter(), units);
    }

    /// Three digits follow a number of at most three, as thousands.
    [[nodiscard]] bool isThousands() const {
        qsizetype before = 1;
        while (before <= 4 && isDigit(at(-before)))
            ++before;
        return before <= 4 && isDigit(at(1)) && isDigit(at(2)) && isDigit(at(3)) && !isDigit(at(4)) &&
               !at(-before).isLetter();
    }

    /// Between the letters of "z. B."
    [[nodiscard]] bool isInAbbreviation() const {
        return at(-1) == u'.' && at(-2).isLetter() && !at(-3).isLetterOrNumber() && at(1).isLower() &&
               at(2) == u'.';
    }

    [[nodiscard]] char16_t keptTogether() const {
        if (isDigit(at(-1)) && isDigit(at(1)))
            return m_rules.groupBlank != 0 && isThousands() ? m_rules.groupBlank : u' ';
        const QStringView word = wordBefore();
        const bool dash = (at(1) == u'\u2013' || at(1) == u'\u2014') && isBlank(at(2));
        const bool kept = (isDigit(at(-1)) && unitFollows()) ||
                          (isDigit(at(1)) && isIn(word, m_rules.beforeNumber)) ||
                          (at(1).isUpper() && isIn(word, m_rules.beforeName)) ||
                          (word.size() == 1 && m_rules.loneWords.contains(word)) || isInAbbreviation() ||
                          (word == u"z." && at(1) == u'B' && at(2) == u'.') || dash;
        return kept ? noBreak : u' ';
    }

    /// The blank that the language puts before a sign that stands here; 0 for none.
    [[nodiscard]] char16_t blankBefore(QChar sign) const {
        const QChar before = m_result.isEmpty() ? QChar(u'\n') : m_result.back();
        if (sign == u'%' && m_rules.blankBeforePercent)
            return isDigit(before) && !at(1).isLetterOrNumber() ? noBreak : 0;
        if (!m_rules.blankBeforeStops || !QStringView(u";:!?").contains(sign) ||
            QStringView(u"!?\r\n\t([{").contains(before) || at(1).isLetterOrNumber() ||
            QStringView(u"/-)=").contains(at(1)))
            return 0;
        return sign == u':' ? noBreak : thin;
    }

    void putBefore(QChar sign, char16_t blank) {
        while (m_result.endsWith(u' ') || m_result.endsWith(noBreak) || m_result.endsWith(thin))
            m_result.chop(1);
        if (!m_result.isEmpty() && !m_result.endsWith(u'\n'))
            m_result += blank;
        m_result += sign;
    }

    QStringView m_text;
    const TypographyRules &m_rules;
    qsizetype m_at = 0;
    QString m_result;
};

} // namespace

QString withNoBreakBlanks(QStringView text, const TypographyRules &rules) {
    return Blanks(text, rules).set();
}

} // namespace tolvo
