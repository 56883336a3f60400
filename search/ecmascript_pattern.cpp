// SPDX-License-Identifier: MIT
#include "search/ecmascript_pattern.h"

#include "search/ecmascript_set.h"
#include "search/joined.h"

#include <QList>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int highestRepeat = 65535;

/// Number of capturing groups. What looks like one inside a set or after a backslash doesn't count.
int countGroups(QStringView pattern) {
    int groups = 0;
    bool inSet = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const char16_t unit = pattern[i].unicode();
        if (unit == u'\\')
            ++i;
        else if (inSet)
            inSet = unit != u']';
        else if (unit == u'[')
            inSet = true;
        else if (unit == u'(' && !pattern.sliced(i + 1).startsWith(u'?'))
            ++groups;
    }
    return groups;
}

class Translator {
  public:
    Translator(QStringView pattern, bool matchCase)
        : m_in(pattern), m_matchCase(matchCase), m_groups(countGroups(pattern)) {}

    TranslatedPattern run() {
        while (m_error.isEmpty() && m_at < m_in.size())
            term();
        if (m_error.isEmpty() && !m_open.isEmpty())
            fail(u"a group is not closed", m_open.last().at);
        if (!m_error.isEmpty())
            return {.pattern = {}, .error = m_error, .errorAt = m_errorAt, .groups = m_groups};
        return {.pattern = m_out, .error = {}, .groups = m_groups, .lookAhead = m_lookAhead};
    }

  private:
    enum class Term { None, Atom, Assertion, Quantifier };

    struct Group {
        qsizetype at; ///< of its bracket
        bool isLookAhead;
    };

    void fail(QStringView reason, qsizetype at) {
        m_error = reason.toString();
        m_errorAt = at;
    }
    [[nodiscard]] bool at(QStringView text) const { return m_in.sliced(m_at).startsWith(text); }
    void write(QStringView text, Term kind) {
        m_out += text;
        m_last = kind;
    }
    void writeCharacter(char16_t unit) { write(patternCharacter(unit), Term::Atom); }

    void term();
    void openGroup();
    void closeGroup();
    void set();
    void escape();
    bool numericEscape();
    bool quantifier();
    bool counts(QString &quantifier, qsizetype &length) const;

    QStringView m_in;
    bool m_matchCase;
    qsizetype m_at = 0;
    int m_groups;
    QString m_out;
    QString m_error;
    qsizetype m_errorAt = -1;
    Term m_last = Term::None;
    bool m_lookAhead = false;
    QList<Group> m_open;
};

void Translator::term() {
    if (quantifier())
        return;
    switch (const char16_t unit = m_in[m_at++].unicode()) {
    case u'(':
        openGroup();
        break;
    case u')':
        closeGroup();
        break;
    case u'|':
        write(u"|", Term::None);
        break;
    case u'^':
        write(lineStartAssertion, Term::Assertion);
        break;
    case u'$':
        write(lineEndAssertion, Term::Assertion);
        break;
    case u'.':
        write(u".", Term::Atom);
        break;
    case u'[':
        set();
        break;
    case u'\\':
        escape();
        break;
    default:
        writeCharacter(unit);
    }
}

void Translator::openGroup() {
    const qsizetype bracket = m_at - 1;
    if (!at(u"?")) {
        m_open += {bracket, false};
        write(u"(", Term::None);
    } else if (at(u"?:") || at(u"?=") || at(u"?!")) {
        m_open += {bracket, !at(u"?:")};
        m_lookAhead = m_lookAhead || m_open.last().isLookAhead;
        m_out += u'(';
        write(m_in.sliced(m_at, 2), Term::None);
        m_at += 2;
    } else {
        fail(u"a group begins with (? and no :, = or ! after it", bracket);
    }
}

void Translator::closeGroup() {
    if (m_open.isEmpty())
        return fail(u"a closing bracket ) has no partner", m_at - 1);
    write(u")", m_open.takeLast().isLookAhead ? Term::Assertion : Term::Atom);
}

void Translator::set() {
    const TranslatedSet translated = translateSet(m_in.sliced(m_at), m_matchCase);
    if (!translated.error.isEmpty())
        return fail(translated.error, m_at - 1);
    m_at += translated.length;
    write(translated.pattern, Term::Atom);
}

void Translator::escape() {
    if (m_at == m_in.size())
        return fail(u"a backslash stands at the end", m_at - 1);
    if (at(u"b") || at(u"B")) {
        write(at(u"b") ? wordBoundary : noWordBoundary, Term::Assertion);
        ++m_at;
    } else if (const QStringView members = classMembers(m_in[m_at].unicode()); !members.isEmpty()) {
        // Without regard to case the Kelvin sign would count as a k.
        write(joined({u"(?-i:[", members, u"])"}), Term::Atom);
        ++m_at;
    } else if (!numericEscape()) {
        const CharacterEscape read = readCharacterEscape(m_in.sliced(m_at));
        m_at += read.length;
        writeCharacter(read.unit);
    }
}

/// A reference to a group. A number above that of the groups is no reference.
bool Translator::numericEscape() {
    if (m_in[m_at] < u'1' || m_in[m_at] > u'9')
        return false;
    qsizetype end = m_at;
    int number = 0;
    while (end < m_in.size() && m_in[end] >= u'0' && m_in[end] <= u'9' && number <= m_groups)
        number = number * 10 + (m_in[end++].unicode() - u'0');
    if (number > m_groups)
        return false;
    m_at = end;
    write(QStringLiteral("\\g{%1}").arg(number), Term::Atom);
    return true;
}

/// Reads "{n}", "{n,}" or "{n,m}". Anything else in braces is no quantifier but ordinary characters.
bool Translator::counts(QString &quantifier, qsizetype &length) const {
    qsizetype i = m_at + 1;
    const auto digits = [&] {
        const qsizetype from = i;
        while (i < m_in.size() && m_in[i] >= u'0' && m_in[i] <= u'9')
            ++i;
        return m_in.sliced(from, i - from);
    };
    const auto clamped = [](QStringView number) {
        bool fits = false;
        const int value = number.toInt(&fits);
        return QString::number(fits ? std::min(value, highestRepeat) : highestRepeat);
    };
    const QStringView low = digits();
    if (low.isEmpty())
        return false;
    quantifier = u'{' + clamped(low);
    if (i < m_in.size() && m_in[i] == u',') {
        ++i;
        const QStringView high = digits();
        quantifier += u',' + (high.isEmpty() ? QString() : clamped(high));
    }
    quantifier += u'}';
    length = i + 1 - m_at;
    return i < m_in.size() && m_in[i] == u'}';
}

bool Translator::quantifier() {
    QString text;
    qsizetype length = 1;
    const char16_t unit = m_in[m_at].unicode();
    if (unit == u'*' || unit == u'+' || unit == u'?')
        text = QChar(unit);
    else if (unit != u'{' || !counts(text, length))
        return false;
    if (m_last != Term::Atom) {
        fail(u"there is nothing to repeat", m_at);
        return true;
    }
    m_at += length;
    write(text, Term::Quantifier);
    if (at(u"?")) {
        ++m_at;
        m_out += u'?';
    }
    return true;
}

} // namespace

TranslatedPattern translateEcmaScript(QStringView pattern, bool matchCase) {
    return Translator(pattern, matchCase).run();
}

} // namespace tolvo
