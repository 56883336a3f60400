// SPDX-License-Identifier: MIT
// Dates in text/finding.h.
#include "text/finding.h"

#include <QDate>
#include <QRegularExpression>
#include <array>

namespace tolvo {

namespace {

/// The names of the months as dates have them, January first. A shorter form may stand before a stop.
constexpr std::array<const char *, 12> months = {
    "january|jan|januar|jänner|janvier|janv|stycznia|styczeń|sty|enero|ene",
    "february|feb|februar|février|févr|lutego|luty|febrero",
    "march|mar|märz|mär|mars|marca|marzec|marzo",
    "april|apr|avril|avr|kwietnia|kwiecień|kwi|abril|abr",
    "may|mai|maja|maj|mayo",
    "june|jun|juni|juin|czerwca|czerwiec|cze|junio",
    "july|jul|juli|juillet|juil|lipca|lipiec|lip|julio",
    "august|aug|août|sierpnia|sierpień|sie|agosto|ago",
    "september|sept|sep|septembre|września|wrzesień|wrz|septiembre",
    "october|oct|oktober|okt|octobre|października|październik|paź|octubre",
    "november|nov|novembre|listopada|listopad|lis|noviembre",
    "december|dec|dezember|dez|décembre|déc|grudnia|grudzień|gru|diciembre|dic"};

QRegularExpression madeDatePattern() {
    QStringList names;
    for (const char *month : months)
        names += QString::fromUtf8(month);
    const QString month = QStringLiteral("(?:") + names.join(u'|') + QStringLiteral(")\\b\\.?");
    const QString figures =
        QStringLiteral("(?<a>\\d{1,4})(?<sep>[-/.])(?<b>\\d{1,2})\\k<sep>(?<c>\\d{1,4})(?![\\d]|[-/.]\\d)");
    const QString dayFirst = QStringLiteral("\\d{1,2}(?:st|nd|rd|th|er|º|\\.)? {1,2}(?:de |of )?") + month +
                             QStringLiteral("(?:,? {1,2}(?:de )?\\d{4}\\b)?");
    const QString monthFirst = QStringLiteral("\\b") + month +
                               QStringLiteral(" {1,2}\\d{1,2}(?:st|nd|rd|th)?\\b(?!:)(?:,? {1,2}\\d{4}\\b)?");
    return QRegularExpression(QStringLiteral("(?<![\\w/.:-])(?:") + figures + QStringLiteral("|") + dayFirst +
                                  QStringLiteral("|") + monthFirst + QStringLiteral(")"),
                              QRegularExpression::CaseInsensitiveOption |
                                  QRegularExpression::UseUnicodePropertiesOption);
}

const QRegularExpression &datePattern() {
    static const QRegularExpression pattern = madeDatePattern();
    return pattern;
}

/// Whether figures name a day: year first, or day and month in either order.
bool isDay(const QRegularExpressionMatch &match) {
    const QString first = match.captured(u"a");
    const QString last = match.captured(u"c");
    const int a = first.toInt();
    const int b = match.captured(u"b").toInt();
    const int c = last.toInt();
    const bool yearFirst = first.size() == 4 && last.size() <= 2;
    if (yearFirst)
        return QDate::isValid(a, b, c);
    if (first.size() > 2 || (last.size() != 2 && last.size() != 4))
        return false;
    const int year = c == 0 ? 2000 : c;
    return QDate::isValid(year, b, a) || QDate::isValid(year, a, b);
}

} // namespace

QStringList datesIn(QStringView text) {
    QStringList found;
    QString whole = text.toString();
    for (qsizetype i = 0; i < whole.size(); ++i) { // half of a pair would end the search
        const bool pair = whole[i].isHighSurrogate() && i + 1 < whole.size() && whole[i + 1].isLowSurrogate();
        if (whole[i].isSurrogate() && !pair)
            whole[i] = QChar::ReplacementCharacter;
        i += pair ? 1 : 0;
    }
    QRegularExpressionMatchIterator matches = datePattern().globalMatch(whole);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured(u"sep").isEmpty() || isDay(match))
            found += match.captured();
    }
    return found;
}

} // namespace tolvo
