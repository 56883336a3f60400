// SPDX-License-Identifier: MIT
#include "shell/key_sheet.h"

#include <QStringList>
#include <algorithm>

namespace tolvo {

namespace {

/// The words of a text in lower case. The signs between keys part words; a key that is a sign is a word.
QStringList wordsOf(const QString &text) {
    QString words = text.toLower().replace(QStringLiteral(", "), QStringLiteral(" "));
    for (qsizetype i = 1; i + 1 < words.size(); ++i) {
        const bool between = words[i - 1].isLetter() && !words[i + 1].isSpace();
        if (between && (words[i] == u'-' || words[i] == u'+'))
            words[i] = u' ';
    }
    return words.split(u' ', Qt::SkipEmptyParts);
}

bool matches(const QString &word, const QString &wanted) {
    return wanted.size() == 1 ? word == wanted : word.startsWith(wanted);
}

} // namespace

QList<KeySheetRow> keySheet(const QList<KeySheetRow> &others) {
    QList<KeySheetRow> all;
    for (const KeyRow &row : keyTable())
        all += {row.group, keyNames(row), QString::fromUtf16(row.does)};
    all += others;
    std::stable_sort(all.begin(), all.end(), [](const auto &a, const auto &b) { return a.group < b.group; });

    QList<KeySheetRow> sheet;
    for (const KeySheetRow &row : all) {
        const auto same = std::find_if(sheet.begin(), sheet.end(), [&](const KeySheetRow &other) {
            return other.group == row.group && other.does == row.does;
        });
        if (same == sheet.end())
            sheet += row;
        else
            same->keys += QStringLiteral(", ") + row.keys;
    }
    return sheet;
}

QList<KeySheetRow> filtered(const QList<KeySheetRow> &sheet, const QString &filter) {
    const QStringList allWanted = wordsOf(filter);
    QList<KeySheetRow> found;
    for (const KeySheetRow &row : sheet) {
        const QStringList words = wordsOf(row.keys + u' ' + row.does + u' ' + groupTitle(row.group));
        const auto holds = [&words](const QString &wanted) {
            return std::any_of(words.begin(), words.end(),
                               [&wanted](const QString &word) { return matches(word, wanted); });
        };
        if (std::all_of(allWanted.begin(), allWanted.end(), holds))
            found += row;
    }
    return found;
}

} // namespace tolvo
