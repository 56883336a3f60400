// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace tolvo {

/// Finds a literal text, in time linear in the text whatever the two look like.
class LiteralMatcher {
  public:
    /// Without `matchCase` units compare without regard to case.
    LiteralMatcher(QStringView find, bool matchCase);

    /// Whether the whole text is the one looked for.
    [[nodiscard]] bool equals(QStringView text) const;

    /// Calls `visit(index)` for every occurrence that begins at index `from` (from 0) or after it,
    /// overlapping ones included, in order; `visit` returns false to end the walk. An empty text is found
    /// nowhere.
    template <class Visitor>
    void forEachOccurrence(QStringView text, qsizetype from, Visitor visit) const {
        if (m_find.isEmpty())
            return;
        qsizetype matched = 0;
        for (qsizetype i = from; i < text.size(); ++i) {
            const char16_t unit = folded(text[i].unicode());
            while (matched > 0 && unit != m_find[matched])
                matched = m_fallback[matched - 1];
            matched += unit == m_find[matched] ? 1 : 0;
            if (matched < m_find.size())
                continue;
            if (!visit(i + 1 - matched))
                return;
            matched = m_fallback[matched - 1];
        }
    }

  private:
    [[nodiscard]] char16_t folded(char16_t unit) const;

    QString m_find;
    bool m_matchCase;
    /// For each prefix the length of its longest end that is also its beginning.
    QList<qsizetype> m_fallback;
};

} // namespace tolvo
