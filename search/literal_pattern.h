// SPDX-License-Identifier: MIT
// A literal text to look for, whole words only if asked: where it stands in a text, and the text with another
// in its place.
#pragma once

#include "search/literal_matcher.h"

#include <QString>
#include <QStringView>

namespace tolvo {

class cTextMethods;

/// A text after a replacement of all matches, and how many they were.
struct ReplacedText {
    QString text;
    int count = 0;
};

class LiteralPattern {
  public:
    /// `engine` knows where words begin and end, and gives a smart replacement its capitals.
    LiteralPattern(const QString &find, bool matchCase, bool wholeWords, const cTextMethods &engine)
        : m_find(find), m_matcher(find, matchCase), m_wholeWords(wholeWords), m_engine(engine) {}

    /// Of the text looked for and of every match, in UTF-16 units.
    [[nodiscard]] qsizetype length() const { return m_find.size(); }
    /// Whether the text is the one looked for, word or not.
    [[nodiscard]] bool equals(QStringView text) const { return m_matcher.equals(text); }

    /// Calls `visit(index)` for every match that begins at index `from` (from 0) or after it, overlapping
    /// ones included, in order; `visit` returns false to end the walk. An empty text is found nowhere.
    template <class Visitor>
    void forEachMatch(QStringView text, qsizetype from, Visitor visit) const {
        m_matcher.forEachOccurrence(
            text, from, [&](qsizetype index) { return !standsAsWord(text, index) || visit(index); });
    }

    /// Each match replaced, none of them in a replacement. The outcome is that of a text box written after
    /// every single replacement: what no longer has room in `capacity` units is cut off at once and not
    /// searched any more. It stands at the end of the result all the same, for the box to cut it off again
    /// and report it.
    ///   "a" by "aa" in "aaa" gives "aaaaaa" and 3.
    [[nodiscard]] ReplacedText replaceAll(QStringView text, const QString &replacement, bool smart,
                                          qsizetype capacity) const;

  private:
    [[nodiscard]] bool standsAsWord(QStringView text, qsizetype index) const;
    [[nodiscard]] bool beginsRight(QStringView text, qsizetype position) const;
    [[nodiscard]] bool endsRight(QStringView text, qsizetype position) const;

    QString m_find;
    LiteralMatcher m_matcher;
    bool m_wholeWords;
    const cTextMethods &m_engine;
};

} // namespace tolvo
