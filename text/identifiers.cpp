// SPDX-License-Identifier: MIT
#include "text/identifiers.h"

#include "text/lines.h"

namespace tolvo {

namespace {

/// Whether a word ends between two units: "fileName" before the N, "XMLHttp" before the H.
bool wordEnds(QStringView line, qsizetype at) {
    const QChar before = line[at - 1];
    const QChar here = line[at];
    if (!here.isUpper())
        return false;
    return before.isLower() || before.isDigit() ||
           (before.isUpper() && at + 1 < line.size() && line[at + 1].isLower());
}

bool belongsToWord(QChar unit) {
    return unit.isLetterOrNumber() || unit.isMark() || unit.isSurrogate();
}

QStringList wordsOf(QStringView line) {
    QStringList words;
    bool inWord = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (line[i] == u'\'' || line[i] == u'\u2019') // don't is dont
            continue;
        if (!belongsToWord(line[i])) {
            inWord = false;
            continue;
        }
        if (!inWord || wordEnds(line, i))
            words += QString();
        words.last() += line[i];
        inWord = true;
    }
    return words;
}

QString capitalised(const QString &word) {
    return word.left(1).toUpper() + word.sliced(1).toLower();
}

template <class Join>
QString eachLineAsName(QStringView text, Join join) {
    return changeLines(text, [&](QStringView line, QString &result) {
        const QStringList words = wordsOf(line);
        const QStringView rest = leftTrimWhiteSpace(line);
        if (words.isEmpty())
            result += line;
        else
            result += line.first(line.size() - rest.size()).toString() + join(words);
    });
}

QString capitalisedFrom(const QStringList &words, qsizetype first) {
    QString name;
    for (qsizetype i = 0; i < words.size(); ++i)
        name += i < first ? words[i].toLower() : capitalised(words[i]);
    return name;
}

} // namespace

QString camelCase(QStringView text) {
    return eachLineAsName(text, [](const QStringList &words) { return capitalisedFrom(words, 1); });
}

QString pascalCase(QStringView text) {
    return eachLineAsName(text, [](const QStringList &words) { return capitalisedFrom(words, 0); });
}

QString snakeCase(QStringView text) {
    return eachLineAsName(text, [](const QStringList &words) { return words.join(u'_').toLower(); });
}

QString kebabCase(QStringView text) {
    return eachLineAsName(text, [](const QStringList &words) { return words.join(u'-').toLower(); });
}

QString constantCase(QStringView text) {
    return eachLineAsName(text, [](const QStringList &words) { return words.join(u'_').toUpper(); });
}

} // namespace tolvo
