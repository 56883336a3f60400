// SPDX-License-Identifier: MIT
#include "shell/tool_finder.h"

#include "shell/word_match.h"

#include <algorithm>
#include <array>

namespace tolvo {

namespace {

enum class Field { Name, OtherWords, Description };

/// Points by field (row) and kind of match (column, in the order of MatchKind). They grow along both; a slip
/// counts less than anything without one.
constexpr std::array<std::array<int, 6>, 3> weights{{
    {0, 6, 50, 70, 90, 100},
    {0, 4, 0, 55, 75, 85},
    {0, 2, 0, 30, 50, 60},
}};
// On top of the points of the words
constexpr int wholeName = 20;
constexpr int wholePhrase = 10;
constexpr int beginningOfPhrase = 5;

struct Rated {
    FoundTool found;
    int points = 0;
};

int pointsOf(Field field, const WordMatch &match) {
    return weights.at(static_cast<size_t>(field)).at(static_cast<size_t>(match.kind));
}

int best(const QString &word, const FinderEntry &entry, QList<int> &marked) {
    const WordMatch name = matchWord(word, entry.name, TextKind::Title);
    const int others =
        std::max({pointsOf(Field::OtherWords, matchWord(word, entry.otherWords, TextKind::Prose)),
                  pointsOf(Field::Description, matchWord(word, entry.group, TextKind::Prose)),
                  pointsOf(Field::Description, matchWord(word, entry.does, TextKind::Prose))});
    const int own = pointsOf(Field::Name, name);
    if (name.kind > MatchKind::Slip || own >= others)
        marked += name.marked;
    return std::max(own, others);
}

void addMarks(QList<int> &all, const QList<int> &more) {
    all += more;
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
}

/// For several words that stand together in one of the other words for the thing.
int pointsOfPhrase(const QStringList &words, const FinderEntry &entry) {
    if (words.size() < 2)
        return 0;
    const QString asked = words.join(u' ');
    int points = 0;
    for (const QString &other : entry.otherWords.split(u',')) {
        const QString phrase = wordsOf(other).join(u' ');
        if (phrase == asked)
            return wholePhrase;
        if (phrase.startsWith(asked))
            points = beginningOfPhrase;
    }
    return points;
}

/// The mean of the words' points; 0 if a word is not there.
Rated rate(const FinderEntry &entry, const QStringList &words) {
    Rated result;
    int sum = 0;
    for (const QString &word : words) {
        QList<int> marked;
        const int found = best(word, entry, marked);
        if (found == 0)
            return {};
        sum += found;
        addMarks(result.found.marked, marked);
    }
    result.points = sum / static_cast<int>(words.size());
    result.points += wordsOf(entry.name) == words ? wholeName : pointsOfPhrase(words, entry);
    return result;
}

/// Earlier is later used.
qsizetype place(const QStringList &lastUsed, const QString &id) {
    const qsizetype index = lastUsed.indexOf(id);
    return index < 0 ? lastUsed.size() : index;
}

} // namespace

QList<FoundTool> findTools(const QList<FinderEntry> &entries, const QString &asked,
                           const QStringList &lastUsed) {
    QStringList words = wordsOf(asked);
    if (words.isEmpty() && !asked.trimmed().isEmpty())
        words += asked.trimmed(); // a sign
    QList<Rated> rated;
    for (qsizetype i = 0; i < entries.size() && !words.isEmpty(); ++i) {
        Rated one = rate(entries.at(i), words);
        one.found.entry = i;
        if (one.points > 0)
            rated += one;
    }
    std::stable_sort(rated.begin(), rated.end(), [&](const Rated &a, const Rated &b) {
        if (a.points != b.points)
            return a.points > b.points;
        return place(lastUsed, entries.at(a.found.entry).id) < place(lastUsed, entries.at(b.found.entry).id);
    });
    QList<FoundTool> result;
    for (const Rated &one : rated)
        result += one.found;
    return result;
}

QList<FoundTool> lastUsedTools(const QList<FinderEntry> &entries, const QStringList &lastUsed, int count) {
    QList<FoundTool> result;
    for (const QString &id : lastUsed) {
        const auto entry =
            std::find_if(entries.begin(), entries.end(), [&](const auto &one) { return one.id == id; });
        if (entry != entries.end() && result.size() < count)
            result += FoundTool{entry - entries.begin(), {}};
    }
    return result;
}

} // namespace tolvo
