// SPDX-License-Identifier: MIT
#include "search/literal_matcher.h"

#include "base/code_page.h"

#include <algorithm>

namespace tolvo {

LiteralMatcher::LiteralMatcher(QStringView find, bool matchCase)
    : m_find(find.toString()), m_matchCase(matchCase), m_fallback(find.size(), 0) {
    for (QChar &unit : m_find)
        unit = QChar(folded(unit.unicode()));
    qsizetype matched = 0;
    for (qsizetype i = 1; i < m_find.size(); ++i) {
        while (matched > 0 && m_find[i] != m_find[matched])
            matched = m_fallback[matched - 1];
        matched += m_find[i] == m_find[matched] ? 1 : 0;
        m_fallback[i] = matched;
    }
}

/// By way of upper case: the long s, for one, has no lower case that it shares with s.
char16_t LiteralMatcher::folded(char16_t unit) const {
    return m_matchCase ? unit : toLower(toUpper(unit));
}

bool LiteralMatcher::equals(QStringView text) const {
    return std::equal(text.begin(), text.end(), m_find.begin(), m_find.end(),
                      [this](QChar a, QChar b) { return folded(a.unicode()) == b.unicode(); });
}

} // namespace tolvo
