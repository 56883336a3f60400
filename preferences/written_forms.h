// SPDX-License-Identifier: MIT
// How values are written in the settings store and read back. A form is a type without state: `Value` is what
// a program works with, `Default` the same as a constant, written() makes the stored text and read() the
// value of a stored text.
#pragma once

#include "base/conversions.h"
#include "base/numbers.h"

#include <QDateTime>
#include <QString>
#include <QStringView>
#include <algorithm>
#include <cmath>
#include <limits>

namespace tolvo::forms {

/// The text itself.
struct Text {
    using Value = QString;
    using Default = QStringView;
    [[nodiscard]] static QString written(QStringView value) { return value.toString(); }
    [[nodiscard]] static QString read(const QString &text) { return text; }
};

/// "1" or "0".
struct FlagInDigits {
    using Value = bool;
    using Default = bool;
    [[nodiscard]] static QString written(bool value) { return flagDigit(value); }
};

/// "True" or "False".
struct FlagInWords {
    using Value = bool;
    using Default = bool;
    [[nodiscard]] static QString written(bool value) { return flagWord(value); }
};

/// "True" in any case and any number but 0 are on, all else is off.
template <class Flag>
struct Lenient : Flag {
    [[nodiscard]] static bool read(const QString &text) { return saysYes(text); }
};
/// On if the text is the one that is written for it and nothing else: "1.0", " 1" and "true" are off.
template <class Flag>
struct Compared : Flag {
    [[nodiscard]] static bool read(const QString &text) { return text == Flag::written(true); }
};
using Check = Lenient<FlagInDigits>; ///< the state of a check box
using ComparedDigit = Compared<FlagInDigits>;
using Word = Lenient<FlagInWords>;
using ComparedWord = Compared<FlagInWords>;

/// On if the text begins with a number that equals 1.
struct EqualsOne : FlagInDigits {
    [[nodiscard]] static bool read(const QString &text) { return ValueOf(text) == 1; }
};
/// As Word, but a text that is neither word nor number is a Failure (type mismatch).
struct StrictWord : FlagInWords {
    [[nodiscard]] static bool read(const QString &text) { return toFlag(text); }
};

/// A whole number of 32 bits. Any other text is a Failure (type mismatch, overflow).
struct Integer {
    using Value = int;
    using Default = int;
    [[nodiscard]] static QString written(int value) { return QString::number(value); }
    [[nodiscard]] static int read(const QString &text) { return toInteger(text); }
};
/// The whole part of the number that the text begins with, from `lowest` to `highest`; `otherwise` for all
/// others. Bounded<1, 3, 1>::read() gives 3 for "3.9", and 1 for "4" and for "x".
template <int lowest, int highest, int otherwise>
struct Bounded : Integer {
    [[nodiscard]] static int read(const QString &text) {
        const double number = std::trunc(ValueOf(text));
        return number >= lowest && number <= highest ? static_cast<int>(number) : otherwise;
    }
};
/// The number that the text begins with, halves rounded to even, or the nearest that is allowed. A text that
/// begins with none counts as 0: Nearest<1, 255>::read("x") is 1.
template <int lowest = std::numeric_limits<int>::min(), int highest = std::numeric_limits<int>::max()>
struct Nearest : Integer {
    [[nodiscard]] static int read(const QString &text) {
        return static_cast<int>(std::clamp<double>(roundHalfToEven(ValueOf(text)), lowest, highest));
    }
};

/// One of the words of an array, as its index. Any other text counts as the last.
template <const auto &words>
struct OneOf {
    using Value = std::size_t;
    using Default = std::size_t;
    [[nodiscard]] static QString written(std::size_t index) { return words[index].toString(); }
    [[nodiscard]] static std::size_t read(const QString &text) {
        const auto found = std::find(std::begin(words), std::end(words) - 1, text);
        return static_cast<std::size_t>(found - std::begin(words));
    }
};

/// A number. Any other text is a Failure (type mismatch).
struct Number {
    using Value = double;
    using Default = double;
    [[nodiscard]] static QString written(double value) { return numberText(value); }
    [[nodiscard]] static double read(const QString &text) { return toNumber(text); }
};
/// The number that the text begins with, 0 if it begins with none.
struct LeadingNumber : Number {
    [[nodiscard]] static double read(const QString &text) { return ValueOf(text); }
};
/// A count. A text that is not a number, and a number below 0, count as 0.
struct Count : Number {
    [[nodiscard]] static double read(const QString &text) {
        bool isNumber = false;
        const double count = text.toDouble(&isNumber);
        return isNumber && count > 0 ? count : 0;
    }
};

/// Date and time, "YYYY-MM-DD HH:mm:ss". Any other text, the empty one included, is a Failure (type
/// mismatch).
struct Date {
    struct Default {}; ///< no date is the same for all
    using Value = QDateTime;
    [[nodiscard]] static QString written(const QDateTime &value) { return dateText(value); }
    [[nodiscard]] static QString written(Default) { return {}; }
    [[nodiscard]] static QDateTime read(const QString &text) { return toDate(text); }
};

} // namespace tolvo::forms
