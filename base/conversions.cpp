// SPDX-License-Identifier: MIT
#include "base/conversions.h"

#include "base/failure.h"
#include "base/numbers.h"

#include <QLocale>
#include <algorithm>
#include <cmath>
#include <limits>

namespace tolvo {

double toNumber(const QString &text) {
    bool ok = false;
    const double value = QLocale::c().toDouble(text.trimmed(), &ok);
    if (!ok || !std::isfinite(value)) {
        const bool hasDigits = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
        if (std::isinf(value) && hasDigits) // the word "inf" is not a number
            failOverflow(QStringLiteral("%1 is too large a number").arg(text));
        failTypeMismatch(text);
    }
    return value;
}

int toInteger(const QString &text) {
    const double value = roundHalfToEven(toNumber(text));
    if (value > std::numeric_limits<qint32>::max() || value < std::numeric_limits<qint32>::min())
        failOverflow(QStringLiteral("%1 needs more than 32 bits").arg(text));
    return static_cast<int>(value);
}

bool toFlag(const QString &text) {
    const QString word = text.trimmed();
    if (word.compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (word.compare(QLatin1StringView("False"), Qt::CaseInsensitive) == 0)
        return false;
    return toNumber(text) != 0;
}

bool saysYes(const QString &text) {
    return text.trimmed().compare(QLatin1StringView("True"), Qt::CaseInsensitive) == 0 || ValueOf(text) != 0;
}

QString flagWord(bool flag) {
    return flag ? QStringLiteral("True") : QStringLiteral("False");
}

QString flagDigit(bool flag) {
    return flag ? QStringLiteral("1") : QStringLiteral("0");
}

namespace {
const QString dateFormat = QStringLiteral("yyyy-MM-dd HH:mm:ss");
}

QString dateText(const QDateTime &date) {
    return date.toString(dateFormat);
}

std::optional<QDateTime> dateIn(const QString &text) {
    QDateTime date = QDateTime::fromString(text.trimmed(), dateFormat);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

QDateTime toDate(const QString &text) {
    const std::optional<QDateTime> date = dateIn(text);
    if (!date)
        failTypeMismatch(text);
    return *date;
}

} // namespace tolvo
