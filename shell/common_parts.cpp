// SPDX-License-Identifier: MIT
#include "shell/common_parts.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace tolvo {

namespace {

bool isWordUnit(QChar unit) {
    return unit.isLetterOrNumber() || unit.isSurrogate() || unit.isMark();
}

/// Calls `take` with the start and the text of each token of more than one unit: the others recur too often.
template <class Take>
void forEachToken(QStringView text, Tokens tokens, Take take) {
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = endOfToken(text, at, tokens);
        if (end - at > 1)
            take(at, text.sliced(at, end - at));
        at = end;
    }
}

/// Where a token stands in each text, and how often.
struct Token {
    QStringView text;
    qsizetype oldStart = 0;
    qsizetype start = 0;
    int oldCount = 0;
    int count = 0;
};

/// A hash table with open addressing.
class TokenTable {
  public:
    /// Has room for that many tokens.
    explicit TokenTable(qsizetype most) : m_slots(std::bit_ceil(static_cast<std::size_t>(most) * 2 + 2)) {}

    /// The slot of a token: an empty one if it isn't in the table.
    Token &slot(QStringView text) {
        const std::size_t mask = m_slots.size() - 1;
        std::size_t at = qHash(text) & mask;
        while (!m_slots[at].text.isEmpty() && m_slots[at].text != text)
            at = (at + 1) & mask;
        return m_slots[at];
    }

  private:
    std::vector<Token> m_slots;
};

/// The tokens that occur once in each text, in the order of the second.
std::vector<CommonPart> uniqueTokens(QStringView before, QStringView after, Tokens tokens) {
    qsizetype count = 0;
    forEachToken(before, tokens, [&](qsizetype, QStringView) { ++count; });
    TokenTable table(count);
    forEachToken(before, tokens, [&](qsizetype start, QStringView text) {
        Token &token = table.slot(text);
        token = {text, start, 0, token.oldCount + 1, 0};
    });
    forEachToken(after, tokens, [&](qsizetype start, QStringView text) {
        Token &token = table.slot(text);
        token.start = start;
        ++token.count;
    });
    std::vector<CommonPart> result;
    forEachToken(after, tokens, [&](qsizetype start, QStringView text) {
        const Token &token = table.slot(text);
        if (token.oldCount == 1 && token.count == 1)
            result.push_back({token.oldStart, start, text.size()});
    });
    return result;
}

} // namespace

qsizetype endOfToken(QStringView text, qsizetype start, Tokens tokens) {
    if (tokens == Tokens::Lines) {
        const qsizetype end = text.indexOf(u'\n', start);
        return end < 0 ? text.size() : end + 1;
    }
    qsizetype end = start;
    while (end < text.size() && isWordUnit(text[end]))
        ++end;
    return std::max(end, start + 1);
}

/// Of the unique tokens, the longest sequence that ascends in the first text too.
QList<CommonPart> commonTokens(QStringView before, QStringView after, Tokens tokens) {
    constexpr std::size_t none = ~std::size_t{0};
    const std::vector<CommonPart> unique = uniqueTokens(before, after, tokens);
    std::vector<std::size_t> previous(unique.size(), none);
    std::vector<std::size_t> ends; // of the sequences of each length, the one that ends earliest
    for (std::size_t i = 0; i < unique.size(); ++i) {
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), i, [&](std::size_t one, std::size_t other) {
                return unique[one].oldStart < unique[other].oldStart;
            });
        if (place != ends.begin())
            previous[i] = *(place - 1);
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    QList<CommonPart> result;
    for (std::size_t i = ends.empty() ? none : ends.back(); i != none; i = previous[i])
        result += unique[i];
    std::reverse(result.begin(), result.end());
    return result;
}

qsizetype equalFront(QStringView one, QStringView other) {
    const qsizetype most = std::min(one.size(), other.size());
    return std::mismatch(one.begin(), one.begin() + most, other.begin()).first - one.begin();
}

qsizetype equalBack(QStringView one, QStringView other) {
    const qsizetype most = std::min(one.size(), other.size());
    return std::mismatch(one.rbegin(), one.rbegin() + most, other.rbegin()).first - one.rbegin();
}

} // namespace tolvo
