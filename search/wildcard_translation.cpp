// SPDX-License-Identifier: MIT
#include "search/wildcard_translation.h"

#include "base/character_sets.h"
#include "search/joined.h"

#include <algorithm>

namespace tolvo {

const QStringView wildcardHelp =
    u"Wildcards:\\n. or ?: any\\n     character\\n*: 0 or more\\n     characters\\n+: 1 or more\\n     "
    u"characters\\n!:  any letter\\n%: any digit\\n~: white space\\n#: A number\\n@: A "
    u"word\\n\\nCombinations\\n%*: 0 or more digits\\n%+: 1 or more digits\\n@*: 0 or more word\\n     "
    u"characters\\n@+: 1 or more word\\n     characters\\n\\nReplacement\\n$&&: whole match\\n$1: first "
    u"wildcard\\n     match\\n$2: Second wildcard\\n     match\\n$3 ... $9: etc.";

namespace {

/// The separators as they stand in an expression. Only the ones that the dialog offers are taken care of:
/// others that a user types reach the expression as they are.
struct Separators {
    QString grouping;
    QString decimal;

    explicit Separators(const WildcardOptions &options)
        : grouping(options.groupingSep), decimal(options.decimalSep) {
        if (grouping == u"space")
            grouping = u' ';
        for (QString *separator : {&grouping, &decimal}) {
            if (*separator == u".")
                *separator = QStringLiteral("\\.");
        }
    }
};

QString numberPattern(const Separators &separators) {
    const QString &group = separators.grouping;
    const QString &decimal = separators.decimal;
    return joined({u"(?:[+-]?\\d", decimal, u"\\d+(?:", group, u"\\d+)*[eE][+-]?\\d+(?:", group, u"\\d+)*)",
                   u"|(?:[+-]?\\d+(?:", group, u"\\d+)*(?:(?:", decimal, u"\\d+)*(?:", group, u"\\d+)*))"});
}

/// The same numbers. Repeated digits that are repeated again, and two repeats of the same thing in a row,
/// would be tried in every way of sharing them out.
QString fastNumberPattern(const Separators &separators) {
    const auto repeated = [](const QString &separator) {
        return separator.isEmpty() ? QString() : joined({u"(?:", separator, u"\\d+)*"});
    };
    const QString groups = repeated(separators.grouping);
    const QString decimals =
        separators.decimal == separators.grouping ? QString() : repeated(separators.decimal);
    return joined({u"(?:[+-]?\\d", separators.decimal, u"\\d+", groups, u"[eE][+-]?\\d+", groups, u")",
                   u"|(?:[+-]?\\d+", groups, decimals, decimals.isEmpty() ? QString() : groups, u")"});
}

QString wordPattern() {
    const QString word = SEARCH_CHARS_WORD();
    return joined({u"[", SEARCH_CHARS_ALPHA(), u"]{1}(?:[", word, u"]*(?:(?:'|-)?[", word, u"])+)*"});
}

/// The same words, each in one way only.
QString fastWordPattern() {
    return joined({u"[", SEARCH_CHARS_ALPHA(), u"](?:['-]?[", SEARCH_CHARS_WORD(), u"])*"});
}

class WildcardTranslator {
  public:
    WildcardTranslator(QStringView pattern, bool specialChars, const WildcardOptions &options)
        : m_in(pattern), m_specialChars(specialChars), m_options(options) {}

    WildcardTranslation run() {
        for (; m_at < m_in.size(); ++m_at)
            wildcard();
        if (m_out.bracketMissing)
            return {.shown = {}, .compiled = {}, .bracketMissing = true, .bracketAt = m_out.bracketAt};
        addAnchors(m_out.shown);
        addAnchors(m_out.compiled);
        return m_out;
    }

  private:
    void write(QStringView text) { write(text, text); }
    void write(QStringView shown, QStringView compiled) {
        m_out.shown += shown;
        m_out.compiled += compiled;
    }
    [[nodiscard]] char16_t next() const { return m_at + 1 < m_in.size() ? m_in[m_at + 1].unicode() : u'\0'; }
    /// One character and what closes its group: by itself, or with a star or plus after it, which is used
    /// up.
    void repeatable(QStringView character, QStringView one, QStringView star, QStringView plus) {
        const bool repeated = next() == u'*' || next() == u'+';
        write(joined({u"(", character, next() == u'*' ? star : next() == u'+' ? plus : one}));
        m_at += repeated ? 1 : 0;
    }

    void wildcard();
    void bracket();
    void escape();
    void addAnchors(QString &expression) const;

    QStringView m_in;
    bool m_specialChars;
    const WildcardOptions &m_options;
    qsizetype m_at = 0;
    WildcardTranslation m_out;
};

void WildcardTranslator::wildcard() {
    switch (const char16_t unit = m_in[m_at].unicode()) {
    case u'.':
    case u'?':
        return repeatable(u".", u")", u"*?)", u"+?)");
    case u'*':
        return write(u"(.*?)");
    case u'+':
        return write(u"(.+?)");
    // "&+" and "!+" are one character, and the star is greedy for the one and lazy for the other: patterns
    // that people have stored count on it.
    case u'&':
        return repeatable(joined({u"[", SEARCH_CHARS_ALPHA(), u"]"}), u")", u"*)", u")");
    case u'!':
        return repeatable(joined({u"[", SEARCH_CHARS_WORD(), u"]"}), u")", u"*?)", u")");
    case u'%':
        return repeatable(u"[0-9]", u")", u"*)", u"+)");
    case u'~':
        return repeatable(u"\\s", u")", u"*)", u"+)");
    case u'#': {
        const Separators separators(m_options);
        return write(joined({u"(", numberPattern(separators), u")"}),
                     joined({u"(", fastNumberPattern(separators), u")"}));
    }
    case u'@':
        return write(joined({u"(", wordPattern(), u")"}), joined({u"(", fastWordPattern(), u")"}));
    case u'[':
        return bracket();
    case u'\\':
        return escape();
    default:
        if (contains(u"()^$|{}", unit))
            write(u"\\");
        write(m_in.sliced(m_at, 1));
    }
}

/// The star or plus after the "]" repeats the set and is then a wildcard of its own besides.
void WildcardTranslator::bracket() {
    const qsizetype end = m_in.indexOf(u']', m_at);
    if (end < 0) {
        m_out.bracketMissing = true;
        m_out.bracketAt = m_at;
        m_at = m_in.size();
        return;
    }
    const QStringView set = m_in.sliced(m_at, end - m_at);
    m_at = end;
    write(u"(");
    write(set);
    write(next() == u'*' ? QStringView(u"]*)") : next() == u'+' ? QStringView(u"]+)") : QStringView(u"])"));
}

void WildcardTranslator::escape() {
    const auto copy = [this](qsizetype units) {
        write(m_in.sliced(m_at, std::min(units, m_in.size() - m_at)));
        m_at += units - 1;
    };
    if (m_specialChars && (next() == u't' || next() == u'n'))
        return copy(2);
    if (m_specialChars && next() == u'x')
        return copy(4);
    if (m_specialChars && next() == u'u')
        return copy(6);
    if (next() != u'\0' && contains(u"!.?*+#%~@^[]", next()))
        return copy(2);
    write(u"\\\\");
}

void WildcardTranslator::addAnchors(QString &expression) const {
    if (m_options.wholeWords)
        expression = joined({u"\\b", expression, u"\\b"});
    switch (m_options.anchor) {
    case Anchor::WordStart:
        if (!m_options.wholeWords)
            expression.prepend(QStringView(u"\\b"));
        break;
    case Anchor::WordEnd:
        if (!m_options.wholeWords)
            expression.append(QStringView(u"\\b"));
        break;
    case Anchor::LineStart:
        expression.prepend(u'^');
        break;
    case Anchor::LineEnd:
        expression.append(u'$');
        break;
    case Anchor::Anywhere:
        break;
    }
}

} // namespace

WildcardTranslation translateWildcards(QStringView pattern, bool specialChars,
                                       const WildcardOptions &options) {
    return WildcardTranslator(pattern, specialChars, options).run();
}

} // namespace tolvo
