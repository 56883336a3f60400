// SPDX-License-Identifier: MIT
#include "search/replacement_template.h"

namespace tolvo {

ReplacementTemplate::ReplacementTemplate(QStringView text, int groups) {
    QString literal;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t next = i + 1 < text.size() ? text[i + 1].unicode() : u'\0';
        const int number = next >= u'1' && next <= u'9' ? next - u'0' : 0;
        if (text[i] != u'$' || (next != u'$' && next != u'&' && (number == 0 || number > groups))) {
            literal += text[i];
            continue;
        }
        ++i;
        if (next == u'$') {
            literal += u'$';
            continue;
        }
        if (!literal.isEmpty())
            m_pieces += Piece{.literal = std::exchange(literal, {})};
        m_pieces += Piece{.literal = {}, .group = number};
    }
    if (!literal.isEmpty())
        m_pieces += Piece{.literal = literal};
}

void ReplacementTemplate::expand(const RegularExpressionMatch &match, QString &out) const {
    for (const Piece &piece : m_pieces) {
        if (piece.group < 0)
            out += piece.literal;
        else
            out += match.group(piece.group);
    }
}

std::optional<QString> replaceMatches(const RegularExpression &expression,
                                      RegularExpression::MatchState &state, QStringView text,
                                      const ReplacementTemplate &replacement, qsizetype longest,
                                      MatchBudget &budget) {
    QString result;
    qsizetype done = 0;
    const auto outcome =
        expression.forEachMatch(text, state, budget, [&](const RegularExpressionMatch &match) {
            result += text.sliced(done, match.start() - done);
            replacement.expand(match, result);
            done = match.start() + match.length();
            return result.size() < longest;
        });
    if (outcome == RegularExpression::Outcome::LimitReached)
        return std::nullopt;
    result += text.sliced(done);
    result.truncate(longest);
    return result;
}

} // namespace tolvo
