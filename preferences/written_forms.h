// SPDX-License-Identifier: MIT
// How values are written in the settings store and read back. A form is a type without state: `Value` is what
// a program works with, `Default` the same as a constant, written() makes the stored text and read() the
// value of a stored text.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>

namespace tolvo::forms {

/// The text itself.
struct Text {
    using Value = QString;
    using Default = QStringView;
    [[nodiscard]] static QString written(QStringView value) { return value.toString(); }
    [[nodiscard]] static QString read(const QString &text) { return text; }
};

struct FlagInDigits {
    using Value = bool;
    using Default = bool;
    [[nodiscard]] static QString written(bool value); ///< "1" or "0"
};

struct FlagInWords {
    using Value = bool;
    using Default = bool;
    [[nodiscard]] static QString written(bool value); ///< "True" or "False"
};

/// A check box: "True" and any number but 0 are on, all else is off.
struct Check : FlagInDigits {
    [[nodiscard]] static bool read(const QString &text);
};
/// On if the text begins with a number that equals 1.
struct EqualsOne : FlagInDigits {
    [[nodiscard]] static bool read(const QString &text);
};
/// On if the text is "1" and nothing else: "1.0" and " 1" are off.
struct ComparedDigit : FlagInDigits {
    [[nodiscard]] static bool read(const QString &text);
};

/// "True" in any case and any number but 0 are on, all else is off.
struct Word : FlagInWords {
    [[nodiscard]] static bool read(const QString &text);
};
/// On if the text is "True" and nothing else: "true" is off.
struct ComparedWord : FlagInWords {
    [[nodiscard]] static bool read(const QString &text);
};
/// As Word, but a text that is neither word nor number is a Failure (type mismatch).
struct StrictWord : FlagInWords {
    [[nodiscard]] static bool read(const QString &text);
};

/// A whole number of 32 bits. Any other text is a Failure (type mismatch, overflow).
struct Integer {
    using Value = int;
    using Default = int;
    [[nodiscard]] static QString written(int value);
    [[nodiscard]] static int read(const QString &text);
};

/// A number. Any other text is a Failure (type mismatch).
struct Number {
    using Value = double;
    using Default = double;
    [[nodiscard]] static QString written(double value);
    [[nodiscard]] static double read(const QString &text);
};
/// The number that the text begins with, 0 if it begins with none.
struct LeadingNumber : Number {
    [[nodiscard]] static double read(const QString &text);
};
/// A count. A text that is not a number, and a number below 0, count as 0.
struct Count : Number {
    [[nodiscard]] static double read(const QString &text);
};

/// The whole part of the number that the text begins with, from `lowest` to `highest`; `otherwise` for all
/// others.
template <int lowest, int highest, int otherwise>
struct Bounded : Integer {
    [[nodiscard]] static int read(const QString &text) {
        const double number = LeadingNumber::read(text);
        return number >= lowest && number <= highest ? static_cast<int>(number) : otherwise;
    }
};

/// Date and time, "YYYY-MM-DD HH:mm:ss". Any other text, the empty one included, is a Failure (type
/// mismatch).
struct Date {
    struct Default {}; ///< no date is the same for all
    using Value = QDateTime;
    [[nodiscard]] static QString written(const QDateTime &value);
    [[nodiscard]] static QString written(Default) { return {}; }
    [[nodiscard]] static QDateTime read(const QString &text);
};

} // namespace tolvo::forms
