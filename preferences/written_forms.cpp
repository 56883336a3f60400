// SPDX-License-Identifier: MIT
#include "preferences/written_forms.h"

#include "base/conversions.h"
#include "base/numbers.h"

namespace tolvo::forms {

QString FlagInDigits::written(bool value) {
    return flagDigit(value);
}

QString FlagInWords::written(bool value) {
    return flagWord(value);
}

bool Check::read(const QString &text) {
    return saysYes(text);
}

bool EqualsOne::read(const QString &text) {
    return ValueOf(text) == 1;
}

bool ComparedDigit::read(const QString &text) {
    return text == written(true);
}

bool Word::read(const QString &text) {
    return saysYes(text);
}

bool ComparedWord::read(const QString &text) {
    return text == written(true);
}

bool StrictWord::read(const QString &text) {
    return toFlag(text);
}

QString Integer::written(int value) {
    return QString::number(value);
}

int Integer::read(const QString &text) {
    return toInteger(text);
}

QString Number::written(double value) {
    return numberText(value);
}

double Number::read(const QString &text) {
    return toNumber(text);
}

double LeadingNumber::read(const QString &text) {
    return ValueOf(text);
}

double Count::read(const QString &text) {
    bool isNumber = false;
    const double count = text.toDouble(&isNumber);
    return isNumber && count > 0 ? count : 0;
}

QString Date::written(const QDateTime &value) {
    return dateText(value);
}

QDateTime Date::read(const QString &text) {
    return toDate(text);
}

} // namespace tolvo::forms
