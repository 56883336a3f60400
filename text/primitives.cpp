// SPDX-License-Identifier: MIT
// Small operations on which tools and search are built.
#include "text/cTextMethods.h"

#include "base/code_page.h"
#include "base/strings.h"

namespace tolvo {

namespace {

bool isCapital(int unit) {
    if (unit == noUnit)
        return false;
    const auto character = static_cast<char16_t>(unit);
    return toUpper(character) == character && toLower(character) != character;
}

} // namespace

QString cTextMethods::Count(QStringView text, QStringView needle, Qt::CaseSensitivity compare) const {
    qsizetype count = 0;
    if (!needle.isEmpty()) {
        for (qsizetype at = text.indexOf(needle, 0, compare); at >= 0;
             at = text.indexOf(needle, at + 1, compare))
            ++count;
    }
    return QString::number(count);
}

void cTextMethods::getColRow(QStringView text, qsizetype position, int &row, int &column) const {
    qsizetype offset = 0;
    int line = 1;
    bool found = false;
    forEachLine(text, [&](QStringView content, bool) {
        if (!found && offset + content.size() >= position) {
            found = true;
            row = line;
            column = static_cast<int>(position - offset + 1);
        }
        offset += content.size() + 2;
        ++line;
    });
}

bool cTextMethods::atStartOfWord(QStringView text, qsizetype position) const {
    return position <= 1 || !isLetterUnit(unitAt(text, position - 1));
}

bool cTextMethods::atEndOfWord(QStringView text, qsizetype position) const {
    return position >= text.size() || !isLetterUnit(unitAt(text, position));
}

bool cTextMethods::IsInList(QStringView word, QStringView list) const {
    return listHolds(list, word);
}

QString cTextMethods::smartMatch(QStringView model, QStringView replacement) const {
    if (!isCapital(unitAt(model, 1)))
        return replacement.toString();
    if (isCapital(unitAt(model, 2)))
        return toUpper(replacement);
    QString result = replacement.toString();
    if (!result.isEmpty())
        result[0] = toUpper(result[0].unicode());
    return result;
}

} // namespace tolvo
