// SPDX-License-Identifier: MIT
#include "shell/word_match.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

namespace tolvo {

namespace {

constexpr qsizetype longestWord = 40; // what is longer is found whole or not at all
constexpr qsizetype shortestRun = 2;
constexpr qsizetype shortestRunInProse = 3;
constexpr qsizetype shortestWithSlip = 4;
constexpr qsizetype shortestScattered = 4;

struct Span {
    qsizetype start;
    qsizetype length;
};

/// Unit by unit, so that places stay.
QString lowered(QStringView text) {
    QString result = text.toString();
    for (QChar &unit : result)
        unit = unit.toLower();
    return result;
}

QList<Span> spansOf(QStringView text) {
    QList<Span> spans;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!text.at(i).isLetterOrNumber())
            continue;
        if (i == 0 || !text.at(i - 1).isLetterOrNumber())
            spans.append({i, 0});
        ++spans.last().length;
    }
    return spans;
}

QList<int> range(qsizetype start, qsizetype length) {
    QList<int> places(length);
    std::iota(places.begin(), places.end(), static_cast<int>(start));
    return places;
}

// The best alignment of letters that may lie apart

constexpr int impossible = std::numeric_limits<int>::min() / 2;
constexpr int goesOn = 8;
constexpr int atWordStart = 6;
constexpr int insideWord = -400; // worse than any number of letters that go on

bool startsWord(QStringView text, qsizetype at) {
    return text.at(at).isLetterOrNumber() && (at == 0 || !text.at(at - 1).isLetterOrNumber());
}

/// The places of the letters of `word` in their order, with as many pieces as possible at the beginnings of
/// words; empty if they aren't all there. Dynamic programming over the last letter's place.
QList<int> bestPlaces(QStringView word, QStringView text) {
    const auto width = static_cast<size_t>(text.size());
    std::vector<std::vector<int>> cameFrom(static_cast<size_t>(word.size()), std::vector<int>(width, -1));
    std::vector<int> before(width, impossible);
    for (qsizetype i = 0; i < word.size(); ++i) {
        std::vector<int> here(width, impossible);
        int best = i == 0 ? 0 : impossible; // of all places before this one
        int bestPlace = -1;
        for (size_t j = 0; j < width; ++j) {
            const auto place = static_cast<qsizetype>(j);
            if (text.at(place) == word.at(i)) {
                here[j] = best + (startsWord(text, place) ? atWordStart : insideWord);
                int &from = cameFrom[static_cast<size_t>(i)][j];
                from = bestPlace;
                if (i > 0 && j > 0 && before[j - 1] + goesOn > here[j]) {
                    here[j] = before[j - 1] + goesOn;
                    from = static_cast<int>(j) - 1;
                }
            }
            if (i > 0 && before[j] > best) {
                best = before[j];
                bestPlace = static_cast<int>(j);
            }
        }
        before = std::move(here);
    }
    const auto last = std::max_element(before.begin(), before.end());
    if (last == before.end() || *last < impossible / 2)
        return {};
    QList<int> places;
    int place = static_cast<int>(last - before.begin());
    for (auto i = static_cast<size_t>(word.size()); i-- > 0; place = cameFrom[i][static_cast<size_t>(place)])
        places.prepend(place);
    return places;
}

WordMatch matchApart(QStringView word, QStringView text) {
    const QList<int> places = bestPlaces(word, text);
    if (places.isEmpty())
        return {};
    qsizetype pieces = 0;
    bool allStart = true;
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (i > 0 && places.at(i) == places.at(i - 1) + 1)
            continue;
        ++pieces;
        allStart = allStart && startsWord(text, places.at(i));
    }
    if (allStart)
        return {MatchKind::Starts, places};
    if (word.size() >= shortestScattered && pieces > 1 && pieces * 2 <= word.size())
        return {MatchKind::Scattered, places};
    return {};
}

// One slip of the finger

/// Equal but for one letter too many, too few, another, or two neighbours that changed places.
bool isOneSlipFrom(QStringView a, QStringView b) {
    if (a.size() > b.size())
        std::swap(a, b);
    if (b.size() - a.size() > 1)
        return false;
    const auto apart = std::mismatch(a.begin(), a.end(), b.begin()).first - a.begin();
    const QStringView restA = a.sliced(apart);
    const QStringView restB = b.sliced(apart);
    if (restB.isEmpty())
        return false; // equal
    if (a.size() < b.size())
        return restA == restB.sliced(1);
    const bool swapped = restA.size() > 1 && restA.at(0) == restB.at(1) && restA.at(1) == restB.at(0) &&
                         restA.sliced(2) == restB.sliced(2);
    return swapped || restA.sliced(1) == restB.sliced(1);
}

/// While a word is being typed, its beginning may have the slip; its first letter must be right then.
bool beginsWithSlip(QStringView typed, QStringView word) {
    if (typed.size() <= shortestWithSlip || typed.front() != word.front())
        return false;
    for (const qsizetype length : {typed.size() - 1, typed.size(), typed.size() + 1}) {
        if (length < word.size() && isOneSlipFrom(typed, word.first(length)))
            return true;
    }
    return false;
}

} // namespace

QStringList wordsOf(QStringView text) {
    QStringList words;
    for (const Span &span : spansOf(text))
        words += lowered(text.sliced(span.start, span.length));
    return words;
}

WordMatch matchWord(QStringView typed, QStringView shown, TextKind kind) {
    const QString word = lowered(typed);
    const QString text = lowered(shown);
    if (word.isEmpty())
        return {};
    const QList<Span> spans = spansOf(text);
    WordMatch slip;
    WordMatch start;
    for (const Span &span : spans) {
        const QStringView candidate = QStringView(text).sliced(span.start, span.length);
        if (candidate == word)
            return {MatchKind::Words, range(span.start, span.length)};
        if (start.marked.isEmpty() && candidate.startsWith(word))
            start = {MatchKind::Starts, range(span.start, word.size())};
        if (slip.marked.isEmpty() && word.size() >= shortestWithSlip &&
            (isOneSlipFrom(word, candidate) || beginsWithSlip(word, candidate)))
            slip = {MatchKind::Slip, range(span.start, span.length)};
    }
    if (start.kind != MatchKind::None)
        return start;
    WordMatch apart;
    if (kind == TextKind::Title && word.size() > 1 && word.size() <= longestWord)
        apart = matchApart(word, text);
    if (apart.kind == MatchKind::Starts)
        return apart;
    const bool sign = !word.front().isLetterOrNumber();
    const qsizetype place = text.indexOf(word);
    if (place >= 0 && (sign || word.size() >= (kind == TextKind::Title ? shortestRun : shortestRunInProse)))
        return {MatchKind::Run, range(place, word.size())};
    return apart.kind != MatchKind::None ? apart : slip;
}

} // namespace tolvo
