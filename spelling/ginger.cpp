// SPDX-License-Identifier: MIT
#include "spelling/ginger.h"

#include "base/strings.h"
#include "platform/report_error.h"

#include <QHash>
#include <QList>

namespace tolvo {

namespace {

QString sampleReply() {
    return QStringLiteral(
        R"(jQuery17207917015130968843_1389954920435({"Corrections":[{"Confidence":4,"From":0,)"
        R"("LrnFrg":"hello colour, colour there","LrnFrgOrigIndxs":[{"From":0,"To":4}],)"
        R"("Mistakes":[{"Definition":"used as a greeting","CanAddToDict":false,"From":0,"To":4}],)"
        R"("ShouldReplace":true,"Suggestions":[{"Definition":"used as a greeting","LrnCatId":45,)"
        R"("Text":"Hello"}],"To":4,"TopLrnCatId":45,"Type":1,"UXFrgFrom":0,"UXFrgTo":23},)"
        R"({"Confidence":4,"From":6,"LrnFrg":"Hello colour color there",)"
        R"("LrnFrgOrigIndxs":[{"From":6,"To":11},{"From":13,"To":17}],)"
        R"("Mistakes":[{"Definition":"a visual attribute of things that results from the light they )"
        R"(emit or transmit or reflect","CanAddToDict":false,"From":6,"To":11},)"
        R"({"CanAddToDict":true,"From":13,"To":17}],"ShouldReplace":true,)"
        R"("Suggestions":[{"Definition":"Accept comma addition","LrnCatId":1000,)"
        R"("Text":"colour, colour"},{"LrnCatId":31,"Text":"colour colour"}],"To":17,)"
        R"("TopLrnCatId":1000,"Type":3,"UXFrgFrom":0,"UXFrgTo":23}],)"
        R"("Sentences":[{"FromIndex":0,"IsEnglish":true,"ToIndex":23}]});)");
}

/// One level of nesting: it starts at `start` and is read up to `position`, which counts from 1 there.
struct Level {
    qsizetype start;
    qsizetype position = 1;
};

/// The position, counted from 1, where the chunk at the front of `source` closes; the length of `source` if
/// it doesn't. Works without recursion, so that no reply can nest too deep. A string ends at the next double
/// quote, escaped or not, or at the end of the source.
qsizetype closingPosition(const QString &source, QChar open, QChar close) {
    const qsizetype size = source.size();
    QList<Level> levels{{0}};
    const auto at = [&](const Level &level) {
        const qsizetype index = level.start + level.position - 1;
        return index < size ? source[index] : QChar();
    };
    const auto passString = [&](Level &level) {
        if (at(level) != u'"')
            return;
        const qsizetype quote = source.indexOf(u'"', level.start + level.position);
        level.position = (quote < 0 ? size : quote + 1) - level.start;
    };
    for (;;) {
        Level &level = levels.last();
        const qsizetype length = size - level.start;
        if (level.position < length && at(level) != close) {
            ++level.position;
            if (at(level) == open)
                levels.append(Level{level.start + level.position - 1});
            else
                passString(level);
            continue;
        }
        if (levels.size() == 1)
            return level.position;
        // The outer level goes on after the inner one.
        const qsizetype inside = qMin(level.position, length - 1);
        levels.removeLast();
        levels.last().position += inside;
        passString(levels.last());
    }
}

} // namespace

QString getGinger(const QString & /*text*/, const QString & /*locale*/) {
    return sampleReply();
}

QString getChunk(MessageBoxes &boxes, QString &source) {
    constexpr QStringView openings = u"([{";
    constexpr QStringView closings = u")]}";
    const qsizetype kind = source.isEmpty() ? -1 : openings.indexOf(source.front());
    if (kind < 0) {
        ReportError(boxes, QStringLiteral("CSpelling"), QStringLiteral("getChunk"),
                    QStringLiteral("Error parsing Ginger response: expected opening bracket, got '") +
                        source.left(1) + QStringLiteral("'"),
                    failureNumber::invalidArgument);
        return {};
    }
    const qsizetype position = closingPosition(source, openings[kind], closings[kind]);
    QString chunk = source.mid(1, position);
    source = source.mid(position + 1);
    return chunk;
}

QString getJsonKey(const QString &chunk) {
    const qsizetype quote = chunk.indexOf(u'"');
    if (quote < 0)
        return {};
    const qsizetype end = chunk.indexOf(u'"', quote + 1);
    return chunk.mid(quote + 1, end < 0 ? -1 : end - quote - 1);
}

QString getJsonValue(const QString & /*chunk*/) {
    return {};
}

CSpellingErrors parseGinger(MessageBoxes &boxes, const QString &reply, const QString & /*text*/) {
    const qsizetype open = reply.indexOf(u'(');
    const qsizetype close = lastIndexOf(reply, u")", Qt::CaseSensitive) - 1;
    QString body = open >= 0 && close > open ? reply.mid(open + 1, close - open - 1) : QString();
    if (body.contains(QStringLiteral("exception")))
        throw Failure(failureNumber::serviceException, body, QStringLiteral("CSpelling::parseGinger"));
    QHash<QString, QString> values;
    while (!body.isEmpty()) {
        const qsizetype before = body.size();
        QString chunk = getChunk(boxes, body);
        if (body.size() == before)
            break; // not a chunk, which getChunk has reported
        chunk.chop(1);
        values.insert(getJsonKey(chunk), getJsonValue(chunk));
    }
    return {};
}

std::optional<CSpellingErrors> GingerProvider::check(const QString &text) {
    const QString reply = getGinger(text, m_locale);
    if (reply.isEmpty()) {
        ReportError(m_services.boxes, QStringLiteral("CSpelling"), QStringLiteral("Spell"),
                    QStringLiteral("The Ginger server did not respond. Please try again later'"),
                    failureNumber::noAnswer);
        return std::nullopt;
    }
    return parseGinger(m_services.boxes, reply, text);
}

} // namespace tolvo
