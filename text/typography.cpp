// SPDX-License-Identifier: MIT
#include "text/typography.h"

#include "text/typography_blanks.h"

namespace tolvo {

namespace {

constexpr QStringView doubleMarks = u"\"\u201C\u201D\u201E\u201F\u00AB\u00BB";
constexpr QStringView singleMarks = u"'\u2018\u2019\u201A\u201B\u2039\u203A";
constexpr char16_t apostrophe = u'\u2019';

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool isBlank(QChar c) {
    return c.isSpace();
}

/// The text with straight quotation marks, without the blanks inside French ones.
QString withStraightQuotes(QStringView text) {
    QString result;
    result.reserve(text.size());
    const auto isNoBreak = [](QChar c) { return c == u'\u00A0' || c == u'\u202F'; };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const QChar next = i + 1 < text.size() ? text[i + 1] : QChar(u'\n');
        if (c == u'\u00BB' && !result.isEmpty() &&
            (isNoBreak(result.back()) || (result.back() == u' ' && !next.isLetterOrNumber())))
            result.chop(1);
        const bool opens = result.isEmpty() || isBlank(result.back());
        result += doubleMarks.contains(c) ? QChar(u'"') : singleMarks.contains(c) ? QChar(u'\'') : c;
        if (c == u'\u00AB' && (isNoBreak(next) || (next == u' ' && opens)))
            ++i;
    }
    return result;
}

/// Sets quotation marks, dashes, ellipses and primes, from left to right.
class Setter {
  public:
    Setter(QStringView text, const TypographyRules &rules) : m_text(text), m_rules(rules) {
        m_result.reserve(text.size() + text.size() / 16);
    }

    QString set() {
        while (m_at < m_text.size()) {
            const QChar c = m_text[m_at];
            if (!isBlank(c) && isBlank(at(-1)) && copyAddress())
                continue;
            if (c == u'-' || c == u'.')
                setRun(c);
            else
                setSign(c);
        }
        return m_result;
    }

  private:
    [[nodiscard]] QChar at(qsizetype distance) const {
        const qsizetype place = m_at + distance;
        return place < 0 || place >= m_text.size() ? QChar(u'\n') : m_text[place];
    }

    /// Web and mail addresses stay as they are.
    bool copyAddress() {
        qsizetype end = m_at;
        while (end < m_text.size() && !isBlank(m_text[end]))
            ++end;
        QStringView word = m_text.sliced(m_at, end - m_at);
        while (!word.isEmpty() && QStringView(u".,;:!?)'\"").contains(word.back()))
            word.chop(1);
        if (!word.contains(u"://") && !word.contains(u'@') && !word.startsWith(u"www."))
            return false;
        while (word.startsWith(u'"') || word.startsWith(u'\'') || word.startsWith(u'(')) {
            setSign(word.front());
            word = word.sliced(1);
        }
        m_result += word;
        m_at += word.size();
        m_opened = false;
        m_blankLine = false;
        return true;
    }

    void setSign(QChar c) {
        if (c == u'"')
            setDouble();
        else if (c == u'\'')
            setSingle();
        else
            m_result += c;
        m_opened = m_openedHere;
        m_openedHere = false;
        if (c == u'\n') {
            if (m_blankLine)
                m_open.clear(); // a quotation ends with its paragraph
            m_blankLine = true;
        } else if (!isBlank(c)) {
            m_blankLine = false;
        }
        ++m_at;
    }

    /// Whether a quotation may begin here, by the sign before.
    [[nodiscard]] bool mayOpen() const {
        const QChar before = at(-1);
        return (isBlank(before) || m_opened ||
                QStringView(u"([{</-\u2013\u2014\u00BF\u00A1").contains(before)) &&
               !isBlank(at(1)) && !QStringView(u".,;:!?)]}").contains(at(1));
    }

    [[nodiscard]] const TypographyRules::Marks &marks(bool inner) const {
        return inner ? m_rules.inner : m_rules.outer;
    }

    void open(QChar sign, bool inner) {
        constexpr qsizetype deepest = 8;
        if (m_open.size() == deepest)
            m_open.removeFirst();
        m_open.append({sign, inner});
        m_result += marks(inner).open;
        m_openedHere = true;
    }

    /// Closes the last quotation that began with the sign; false if there is none.
    bool close(QChar sign) {
        for (qsizetype i = m_open.size() - 1; i >= 0; --i) {
            if (m_open.at(i).sign != sign)
                continue;
            m_result += marks(m_open.at(i).inner).close;
            m_open.resize(i);
            return true;
        }
        return false;
    }

    void setDouble() {
        const bool afterApostrophe = at(-1) == u'\'' && at(-2).isLetter() && at(1).isLetterOrNumber();
        if (mayOpen() || afterApostrophe)
            open(u'"', !m_open.isEmpty() && !m_open.last().inner);
        else if (!close(u'"'))
            m_result += isDigit(at(-1)) ? QStringView(u"\u2033") : m_rules.outer.close;
    }

    void setSingle() {
        if (at(-1).isLetterOrNumber() && at(1).isLetterOrNumber()) {
            m_result += isDigit(at(-1)) && isDigit(at(1)) ? QChar(u'\u2032') : QChar(apostrophe);
            return;
        }
        if (mayOpen() && !isElision())
            open(u'\'', true);
        else if (mayOpen() || !close(u'\''))
            m_result += isDigit(at(-1)) ? QChar(u'\u2032') : QChar(apostrophe);
    }

    /// The word that follows begins with an apostrophe: 'tis, '90s
    [[nodiscard]] bool isElision() const {
        constexpr qsizetype longest = 6;
        if (isDigit(at(1)) && isDigit(at(2)))
            return !isDigit(at(3)) && at(3) != u'\'';
        QString word;
        for (qsizetype i = 1; i <= longest && at(i).isLetter(); ++i)
            word += at(i).toLower();
        return m_rules.elisions.contains(QString(u' ' + word + u' '));
    }

    /// A run of hyphens or stops.
    void setRun(QChar c) {
        qsizetype length = 1;
        while (at(length) == c)
            ++length;
        const QStringView run = m_text.sliced(m_at, length);
        m_opened = false;
        const bool inPath = at(-1) == u'/' || at(length) == u'/' || at(length) == u'\\';
        if (c == u'-' && setDash(length))
            return;
        if (c == u'.' && (length == 3 || length == 4) && !inPath)
            m_result += length == 3 ? QStringView(u"\u2026") : QStringView(u"\u2026.");
        else
            m_result += run;
        m_at += length;
        m_blankLine = false;
    }

    /// A dash in place of so many hyphens; false if they stay.
    bool setDash(qsizetype length) {
        const QChar before = at(-1);
        const QChar after = at(length);
        const bool apart = before == u' ' && after == u' ' && !m_blankLine;
        const auto isOfText = [](QChar c) { return c.isLetterOrNumber() || c == u'"' || c == u'\''; };
        const bool close = (isOfText(before) || QStringView(u".,!?)").contains(before)) && isOfText(after);
        if (length == 1 && isRange()) {
            putDash(u'\u2013', 1);
        } else if (length == 3 && (apart || close)) {
            putDash(u'\u2014', length);
        } else if (length == 2 && close && isDigit(before) && isDigit(after)) {
            putDash(u'\u2013', length);
        } else if ((length == 1 && apart) || (length == 2 && (apart || close))) {
            while (m_result.endsWith(u' '))
                m_result.chop(1);
            const QString blank = m_rules.dashBetweenBlanks ? QStringLiteral(" ") : QString();
            m_result += blank;
            putDash(m_rules.dash, length);
            m_result += blank;
            while (at(0) == u' ')
                ++m_at;
            m_opened = at(0) == u'"' || at(0) == u'\''; // a quotation may begin after it
        } else {
            return false;
        }
        m_blankLine = false;
        return true;
    }

    void putDash(char16_t dash, qsizetype hyphens) {
        m_result += dash;
        m_at += hyphens;
    }

    /// A hyphen between two numbers of as many digits, the second of them higher: 1990-1995
    [[nodiscard]] bool isRange() const {
        constexpr qsizetype longest = 4;
        qsizetype left = 0;
        qsizetype right = 0;
        while (left <= longest && isDigit(at(-left - 1)))
            ++left;
        while (right <= longest && isDigit(at(right + 1)))
            ++right;
        const auto joins = [](QChar c) { return c.isLetterOrNumber() || QStringView(u"-/_+:").contains(c); };
        if (left == 0 || left != right || left > longest || joins(at(-left - 1)) || joins(at(right + 1)) ||
            at(-left - 1) == u'.' || (at(right + 1) == u'.' && isDigit(at(right + 2))))
            return false;
        return m_text.sliced(m_at - left, left).compare(m_text.sliced(m_at + 1, right)) < 0;
    }

    struct Quotation {
        QChar sign;
        bool inner;
    };

    QStringView m_text;
    const TypographyRules &m_rules;
    qsizetype m_at = 0;
    QString m_result;
    QList<Quotation> m_open;
    bool m_opened = false; ///< the sign before began a quotation
    bool m_openedHere = false;
    bool m_blankLine = true; ///< nothing but blanks so far on the line
};

} // namespace

QString typographic(QStringView text, const TypographySettings &settings) {
    const TypographyRules &rules = typographyRules(settings.language);
    const QString straight = withStraightQuotes(text);
    QString set = Setter(straight, rules).set();
    if (settings.blanks)
        return withNoBreakBlanks(set, rules);
    if (rules.outer.open.size() == 1)
        return set;
    set = set.split(rules.outer.open.toString()).join(QString(rules.outer.open[0]) + u' ');
    return set.split(rules.outer.close.toString()).join(QString(u' ') + rules.outer.close[1]);
}

QString straightSigns(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (const QChar c : withStraightQuotes(text)) {
        const char16_t unit = c.unicode();
        if (unit == u'\u2014' || unit == u'\u2015')
            result += u"--";
        else if (unit == u'\u2026')
            result += u"...";
        else if ((unit >= 0x2010 && unit <= 0x2013) || unit == 0x2212)
            result += u'-';
        else if (unit == u'\u2032' || unit == u'\u00B4' || unit == u'\u02BC')
            result += u'\'';
        else if (unit == u'\u2033')
            result += u'"';
        else if (c.category() == QChar::Separator_Space)
            result += u' ';
        else if (unit == u'\u2044')
            result += u'/';
        else
            result += c;
    }
    return result;
}

} // namespace tolvo
