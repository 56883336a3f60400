// SPDX-License-Identifier: MIT
#include "search/literal_pattern.h"

#include "base/code_page.h"
#include "text/cTextMethods.h"

#include <algorithm>

namespace tolvo {

// A side of the text that is no letter is not tested. Positions count from 1.

bool LiteralPattern::beginsRight(QStringView text, qsizetype position) const {
    return !m_wholeWords || !IsAlpha(QStringView(m_find).first(1)) || m_engine.atStartOfWord(text, position);
}

/// `position` is the one just after the match.
bool LiteralPattern::endsRight(QStringView text, qsizetype position) const {
    return !m_wholeWords || !IsAlpha(QStringView(m_find).last(1)) || m_engine.atEndOfWord(text, position);
}

bool LiteralPattern::standsAsWord(QStringView text, qsizetype index) const {
    return beginsRight(text, index + 1) && endsRight(text, index + 1 + length());
}

ReplacedText LiteralPattern::replaceAll(QStringView text, const QString &replacement, bool smart,
                                        qsizetype capacity) const {
    QStringView rest = text;
    ReplacedText replaced;
    QString &result = replaced.text;
    qsizetype done = 0;
    m_matcher.forEachOccurrence(text, 0, [&](qsizetype index) {
        if (index < done)
            return true;
        if (index + length() > rest.size())
            return false;
        // The character before the match is the one that stands there by now.
        const bool begins =
            index > done ? beginsRight(rest, index + 1) : beginsRight(result, result.size() + 1);
        if (!begins || !endsRight(rest, index + 1 + length()))
            return true;
        result += rest.sliced(done, index - done);
        result += smart ? m_engine.smartMatch(rest.sliced(index, length()), replacement) : replacement;
        done = index + length();
        ++replaced.count;
        const qsizetype room = std::max<qsizetype>(0, capacity - result.size());
        rest = rest.first(std::min(rest.size(), done + room));
        return true;
    });
    result += rest.sliced(done);
    result += text.sliced(rest.size());
    return replaced;
}

} // namespace tolvo
