// SPDX-License-Identifier: MIT
#include "spelling/words.h"

#include "base/character_sets.h"
#include "base/code_page.h"
#include "base/failure.h"
#include "base/strings.h"
#include "search/regular_expression.h"
#include "spelling/reply_reports.h"

namespace tolvo {

namespace {

/// The characters after which a phrase without a context may stand.
constexpr QStringView contextMarks = u".,?!;:[]()-\"";

bool isWordCharacter(char16_t unit) {
    return isLetter(unit) || (unit >= u'0' && unit <= u'9') || unit == u'_';
}

} // namespace

QStringView getNextWord(QStringView text, qsizetype &position, bool noHyphen) {
    const qsizetype size = text.size();
    const auto letterAt = [&](qsizetype index) { return index < size && isLetter(text[index].unicode()); };
    qsizetype at = position - 1;
    while (at < size && !letterAt(at))
        ++at;
    const qsizetype first = at;
    while (at < size) {
        const char16_t unit = text[at].unicode();
        const bool joins = unit == u'\'' || (unit == u'-' && !noHyphen);
        if (!isLetter(unit) && !(joins && letterAt(at + 1)))
            break;
        ++at;
    }
    position = at + 1;
    return text.sliced(first, at - first);
}

bool contextFits(QStringView before, const QString &precontext) {
    if (before.isEmpty())
        return true;
    before = rightTrimBlanks(before);
    if (precontext.isEmpty())
        return before.isEmpty() || contains(contextMarks, before.last(1).front().unicode());
    while (!before.isEmpty() && !isWordCharacter(before.back().unicode()))
        before.chop(1);
    return before.endsWith(precontext);
}

qsizetype findThePlace(ReplyReports &reports, qsizetype /*start*/, QStringView text, const QString &word,
                       const QString &precontext) {
    const RegularExpression phrase(QStringLiteral("\\b") + word + QStringLiteral("\\b"), false);
    if (!phrase.isValid())
        throw Failure(failureNumber::invalidPattern, phrase.error(),
                      QStringLiteral("CSpelling::findThePlace"));
    const auto match = phrase.firstMatch(text);
    if (!match) {
        reports.lost(word);
        return 0;
    }
    return contextFits(text.first(match->start), precontext) ? match->start + 1 : 0;
}

} // namespace tolvo
