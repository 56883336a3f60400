// SPDX-License-Identifier: MIT
// Random regular expressions in ECMAScript's syntax, and random texts for them.
#pragma once

#include <QString>
#include <QStringList>
#include <random>

namespace tolvo::test {

/// What patterns and texts are made of.
struct PatternWords {
    QString letters; ///< a third of the atoms
    QStringList atoms;
    QStringList members; ///< of sets
    QString textUnits;
};

class PatternGenerator {
  public:
    PatternGenerator(PatternWords words, unsigned seed) : m_words(std::move(words)), m_random(seed) {}

    QString pattern() {
        m_groups = 0;
        return alternatives(3);
    }

    /// Characters in any order: mostly nonsense, often no pattern at all.
    QString soup() {
        static const QString units = QStringLiteral("ab(((:)))[[]]{{}}**++??\\\\\\^$.-,12dwBcx0A|");
        for (;;) {
            QString result = drawn(units, 1 + below(9));
            if (!result.contains(QStringLiteral("(?<")) && !hasReference(result))
                return result;
        }
    }

    QString text() {
        QString result;
        for (int i = below(24); i > 0; --i)
            result += oneIn(6) ? QString(oneIn(2)   ? "\r\n"
                                         : oneIn(2) ? "\n"
                                                    : "\r")
                               : drawn(m_words.textUnits, 1);
        return result;
    }

    bool oneIn(int n) { return below(n) == 0; }

  private:
    int below(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }
    QString drawn(const QString &units, int count) {
        QString result;
        for (; count > 0; --count)
            result += units[below(static_cast<int>(units.size()))];
        return result;
    }
    static bool hasReference(const QString &pattern) {
        for (qsizetype i = 0; i + 1 < pattern.size(); ++i) {
            if (pattern[i] == u'\\' && pattern[i + 1] > u'0' && pattern[i + 1] <= u'9')
                return true;
        }
        return false;
    }

    QString alternatives(int depth) {
        QString result = sequence(depth);
        while (oneIn(4))
            result += u'|' + sequence(depth);
        return result;
    }

    QString sequence(int depth) {
        QString result;
        for (int i = below(4); i >= 0; --i)
            result += term(depth);
        return result;
    }

    QString term(int depth) {
        static const QStringList assertions = {"^", "$", "\\b", "\\B"};
        if (oneIn(8))
            return assertions[below(4)];
        if (depth > 0 && oneIn(10))
            return (oneIn(2) ? "(?=" : "(?!") + alternatives(depth - 1) + u')';
        // What is repeated is never empty: the engines differ in when they stop.
        if (depth > 0 && oneIn(6))
            return "(?:" + atom() + sequence(0) + u')' + quantifier();
        if (depth > 0 && oneIn(4)) {
            const bool captures = oneIn(2);
            m_groups += captures ? 1 : 0;
            return (captures ? "(" : "(?:") + alternatives(depth - 1) + u')';
        }
        if (m_groups > 0 && oneIn(6))
            return u'\\' + QString::number(1 + below(m_groups));
        return atom() + quantifier();
    }

    QString atom() {
        if (oneIn(3))
            return drawn(m_words.letters, 1);
        return oneIn(3) ? set() : m_words.atoms[below(static_cast<int>(m_words.atoms.size()))];
    }

    QString set() {
        QString result = oneIn(3) ? "[^" : "[";
        for (int i = below(3); i >= 0; --i)
            result += m_words.members[below(static_cast<int>(m_words.members.size()))];
        return result + u']';
    }

    QString quantifier() {
        static const QStringList quantifiers = {"*", "+", "?", "{2}", "{1,2}", "{0}", "{1,}", "{0,1}"};
        if (!oneIn(3))
            return {};
        return quantifiers[below(static_cast<int>(quantifiers.size()))] + (oneIn(3) ? "?" : "");
    }

    PatternWords m_words;
    std::mt19937 m_random;
    int m_groups = 0;
};

} // namespace tolvo::test
