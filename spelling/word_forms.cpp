// SPDX-License-Identifier: MIT
#include "spelling/word_forms.h"

#include "base/normal_form.h"

#include <algorithm>

namespace tolvo {

namespace {

constexpr QChar straight = u'\'';
constexpr QChar curly = u'\u2019';

/// Only these can have another form; composing a word takes time.
bool mayDiffer(QChar unit) {
    constexpr char16_t lastComposed = 0x02FF;
    return unit == straight || unit.unicode() > lastComposed;
}

} // namespace

QStringList otherForms(const QString &word) {
    QStringList forms;
    if (std::none_of(word.cbegin(), word.cend(), mayDiffer))
        return forms;
    const QString composed = normalFormC(word);
    const QString withStraight = QString(composed).replace(curly, straight);
    for (const QString &form : {composed, withStraight, QString(withStraight).replace(straight, curly)}) {
        if (form != word && !forms.contains(form))
            forms += form;
    }
    return forms;
}

QString plainForm(const QString &word) {
    if (std::none_of(word.cbegin(), word.cend(), mayDiffer))
        return word;
    return normalFormC(word).replace(curly, straight);
}

QString withApostropheOf(const QString &word, QString suggestion) {
    return word.contains(curly) ? suggestion.replace(straight, curly) : suggestion.replace(curly, straight);
}

} // namespace tolvo
