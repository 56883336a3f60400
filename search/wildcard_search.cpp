// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "platform/report_error.h"

namespace tolvo {

WildcardTranslation CSearch::translated(const QString &pattern, bool specialChars,
                                        const WildcardOptions &options) {
    WildcardTranslation translation;
    reportFailures(m_boxes, QStringLiteral("CSearch"), QStringLiteral("translateWildcardsToRegExp"),
                   [&] { translation = translateWildcards(pattern, specialChars, options); });
    if (translation.bracketMissing) {
        m_boxes.show(
            {.text = QStringLiteral("Closing square bracket ] missing.\r\n\r\nIf you want to match a "
                                    "literal [\r\nprecede it with a backslash - \\["),
             .icon = BoxIcon::Exclamation});
    }
    return translation;
}

QString CSearch::translateWildcardsToRegExp(const QString &pattern, bool specialChars,
                                            const WildcardOptions &options) {
    return translated(pattern, specialChars, options).shown;
}

void CSearch::WildcardSearch(const QString &find, bool specialChars, bool up, bool fromStart, bool matchCase,
                             const WildcardOptions &options) {
    if (find.isEmpty())
        return;
    guarded("WildcardSearch", [&] {
        const QString pattern = translated(find, specialChars, options).compiled;
        RegExpSearch(m_host.txtCurrent().Text(), pattern, up, fromStart, matchCase);
    });
}

int CSearch::WildcardFindAll(const QString &find, bool specialChars, bool matchCase,
                             const WildcardOptions &options) {
    int count = 0;
    if (find.isEmpty())
        return count;
    guarded("WildcardFindAll", [&] {
        QString text = m_host.txtCurrent().Text();
        count = RegExpFindAll(text, translated(find, specialChars, options).compiled, matchCase);
    });
    return count;
}

void CSearch::WildcardReplace(const QString &find, const QString &replace, bool specialChars, bool up,
                              bool fromStart, bool matchCase, bool smartReplace,
                              const WildcardOptions &options, bool replaceAfterFind) {
    if (find.isEmpty())
        return;
    guarded("WildcardReplace", [&] {
        RegExpReplace(translated(find, specialChars, options).compiled, replace, up, fromStart, matchCase,
                      smartReplace, replaceAfterFind);
    });
}

void CSearch::WildcardReplaceAll(const QString &find, const QString &replace, bool specialChars,
                                 bool matchCase, bool smartReplace, const WildcardOptions &options,
                                 bool silent) {
    if (find.isEmpty())
        return;
    guarded("WildcardReplaceAll", [&] {
        RegExpReplaceAll(translated(find, specialChars, options).compiled, replace, matchCase, smartReplace,
                         silent);
    });
}

} // namespace tolvo
