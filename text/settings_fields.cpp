// SPDX-License-Identifier: MIT
#include "text/settings_fields.h"

#include "base/CParams.h"
#include "base/conversions.h"
#include "base/numbers.h"

#include <algorithm>

namespace tolvo::toolForms {

int Number::fromStore(const QString &text) const {
    int value = 0;
    take(value, text);
    return value;
}

int Number::fromAction(const QString &text) const {
    return std::clamp(toInteger(text), lowest, highest);
}

void Number::take(int &value, const QString &text) const {
    value =
        static_cast<int>(std::clamp(roundHalfToEven(ValueOf(text)), double{1} * lowest, double{1} * highest));
}

int Choice::fromStore(const QString &text) const {
    for (int i = 0; i < highest; ++i) {
        if (text == QStringView(words[i]))
            return i;
    }
    return highest;
}

QString Flag::stored(bool value) {
    return flagWord(value);
}

QString Flag::written(bool value) {
    return flagWord(value);
}

bool Flag::fromStore(const QString &text) {
    const QString word = text.trimmed();
    return word.compare(flagWord(true), Qt::CaseInsensitive) == 0 || ValueOf(word) != 0;
}

bool Flag::fromAction(const QString &text) {
    return toFlag(text);
}

void Flag::take(bool &value, const QString &text) {
    if (text == flagWord(!value))
        value = !value;
}

bool ComparedFlag::fromStore(const QString &text) {
    return text == flagWord(true);
}

bool FlagUnlessZero::fromAction(const QString &text) {
    return text != flagDigit(false);
}

QString Check::stored(bool value) {
    return flagDigit(value);
}

QString Check::written(bool value) {
    return flagDigit(value);
}

void Check::take(bool &value, const QString &text) {
    value = text == flagWord(true) || ValueOf(text) != 0;
}

bool CheckIfOne::fromAction(const QString &text) {
    return text == flagDigit(true);
}

QString Text::written(const QString &value) {
    return CParams::canHold(value) ? value : QString();
}

} // namespace tolvo::toolForms
