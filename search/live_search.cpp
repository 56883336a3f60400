// SPDX-License-Identifier: MIT
#include "search/live_search.h"

#include "base/escaped_text.h"
#include "base/numbers.h"
#include "text/cTextMethods.h"
#include "text/silent_text_host.h"

#include <algorithm>

namespace tolvo {

namespace {

using Span = RegularExpression::Span;

constexpr std::chrono::seconds timeOfAnswer{2};
constexpr std::chrono::milliseconds timeOfPreview{500};

/// An engine and a budget of a job's own.
struct Job {
    Job(const Cancellation &cancellation, MatchBudget::Clock::duration time)
        : budget([cancellation] { return cancellation.cancelled(); }, time) {}

    SilentTextHost host;
    cTextMethods engine{host, [](const QString &) { return false; }};
    MatchBudget budget;
};

QString troubleInWords(const FoundMatches &found, const QString &find) {
    if (found.more)
        return QStringLiteral("this takes too long on this text");
    if (found.troubleAt < 0)
        return found.trouble;
    if (found.troubleAt >= find.size())
        return found.trouble + QStringLiteral(", at the end");
    return QStringLiteral("%1, at character %2").arg(found.trouble, groupedNumber(found.troubleAt + 1));
}

QString total(const FoundMatches &found) {
    const QString number = groupedNumber(found.places.size());
    return found.more ? QStringLiteral("more than ") + number : number;
}

QString counted(const FoundMatches &found) {
    return total(found) +
           (found.places.size() == 1 && !found.more ? QStringLiteral(" match") : QStringLiteral(" matches"));
}

/// Whether Find Next goes from the selection to this match. Simple search passes by a match just before it.
bool isAhead(Span place, const SearchRequest &request, Span selection) {
    switch (request.direction.value_or(SearchDirection::FromStart)) {
    case SearchDirection::Down:
        return place.start >= selection.start + (selection.length > 0 ? 1 : 0);
    case SearchDirection::Up:
        return place.start < selection.start - (request.mode == SearchMode::Simple ? 1 : 0);
    case SearchDirection::FromStart:
        return true;
    }
    return true;
}

/// Where matches are of which none lies ahead.
QString whereTheyAre(const QList<Span> &places, const SearchRequest &request, Span selection) {
    if (request.direction == SearchDirection::Down)
        return places.back().start < selection.start ? QStringLiteral("above")
                                                     : QStringLiteral("here or above");
    return places.front().start >= selection.start ? QStringLiteral("below")
                                                   : QStringLiteral("here or below");
}

} // namespace

LiveAnswer liveAnswer(const LiveQuestion &question, const Cancellation &cancellation) {
    Job job(cancellation, timeOfAnswer);
    LiveAnswer answer{
        .found = findMatches(question.text, question.request, job.engine, job.budget, mostLiveMatches),
        .forecast = {}};
    const bool changesAnything = !answer.found.places.isEmpty() || answer.found.empty > 0;
    if (question.isReplacing && answer.found.isValid() && changesAnything && !job.budget.spent())
        answer.forecast =
            forecastReplaceAll(question.text, question.request, job.engine, question.capacity, job.budget);
    return answer;
}

QList<PreviewedReplacement> livePreview(const LiveQuestion &question, const QList<Span> &places,
                                        const Cancellation &cancellation) {
    Job job(cancellation, timeOfPreview);
    return previewReplacements(question.text, places, question.request, job.engine, job.budget);
}

qsizetype matchAt(const QList<Span> &places, Span selection) {
    const auto found = std::lower_bound(places.begin(), places.end(), selection.start,
                                        [](Span place, qsizetype start) { return place.start < start; });
    const bool isOne = found != places.end() && found->start == selection.start &&
                       found->length == selection.length && selection.length > 0;
    return isOne ? found - places.begin() : -1;
}

QList<Span> matchesIn(const QList<Span> &places, Span part, qsizetype most) {
    const auto first = std::partition_point(places.begin(), places.end(), [part](Span place) {
        return place.start + place.length <= part.start;
    });
    const auto end = std::partition_point(
        first, places.end(), [part](Span place) { return place.start <= part.start + part.length; });
    return places.sliced(first - places.begin(), std::min<qsizetype>(end - first, most));
}

QString answerInWords(const LiveAnswer &answer, const SearchRequest &request, Span selection) {
    const FoundMatches &found = answer.found;
    if (request.find.isEmpty())
        return {};
    if (!found.isValid())
        return troubleInWords(found, request.find);
    if (found.places.isEmpty())
        return found.empty == 0 ? QStringLiteral("no match")
                                : QStringLiteral("only empty matches: Replace All fills them");
    const qsizetype current = matchAt(found.places, selection);
    QString what = current < 0 ? counted(found)
                               : QStringLiteral("%1 of %2").arg(groupedNumber(current + 1), total(found));
    const bool isOneAlone = current >= 0 && found.places.size() == 1;
    const auto ahead = [&](Span place) { return isAhead(place, request, selection); };
    if (found.more || isOneAlone || std::any_of(found.places.begin(), found.places.end(), ahead))
        return what;
    if (current >= 0)
        return QStringLiteral("%1: From Start goes on with the others").arg(what);
    return QStringLiteral("%1 %2: From Start finds %3")
        .arg(what, whereTheyAre(found.places, request, selection),
             found.places.size() == 1 ? QStringLiteral("it") : QStringLiteral("them"));
}

qsizetype badReplacementAt(const SearchRequest &request) {
    const bool hasEscapes = request.mode != SearchMode::Simple || request.specialChars;
    return hasEscapes ? badEscapeAt(request.replace) : -1;
}

QString forecastInWords(const LiveAnswer &answer) {
    if (!answer.forecast)
        return {};
    const QString count = QStringLiteral("%1 will be replaced").arg(groupedNumber(answer.forecast->count));
    return answer.forecast->isTooLong ? count + QStringLiteral(", and the end cut off: too long") : count;
}

} // namespace tolvo
