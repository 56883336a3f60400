// SPDX-License-Identifier: MIT
// The settings of the tools that take a text line by line: which lines there are, in which order, and what
// stands around them.
#pragma once

#include "text/settings_fields.h"

#include <QString>
#include <tuple>

namespace tolvo {

namespace toolForms {

/// A text that may hold a comma followed by a blank, which a settings string can't: it has "\x20" for such a
/// blank.
struct HeldText : Text {
    [[nodiscard]] static QString written(QString value) {
        return value.replace(QStringLiteral(", "), QStringLiteral(",\\x20"));
    }
    [[nodiscard]] static QString fromAction(QString text) {
        return text.replace(QStringLiteral(",\\x20"), QStringLiteral(", "));
    }
    static void take(QString &value, const QString &text) { value = fromAction(text); }
};

} // namespace toolForms

struct SortLinesSettings {
    /// By the numbers in settings strings and in the dialog's list.
    enum class Order { Language, Natural, Number, Characters };
    Order order = Order::Natural;
    QString language; ///< whose order the first two are (base/collation.h); empty: Unicode's own
    int column = 0;   ///< from 1; 0 is the whole line
    int head = 0;     ///< so many lines stay on top
    bool descending = false;
    bool ignoreCase = false;
    bool unique = false; ///< of lines with the same place in the order only the first stays

    static constexpr QStringView section = u"SortLines";
    static constexpr std::tuple fields{
        Field{&SortLinesSettings::order, u"Order",
              toolForms::Number<0, static_cast<int>(Order::Characters)>{}},
        Field{&SortLinesSettings::language, u"Language", toolForms::HeldText{}},
        Field{&SortLinesSettings::column, u"Column", toolForms::Number<0>{}},
        Field{&SortLinesSettings::head, u"Head", toolForms::Number<0>{}},
        Field{&SortLinesSettings::descending, u"Descending", toolForms::Check{}},
        Field{&SortLinesSettings::ignoreCase, u"IgnoreCase", toolForms::Check{}},
        Field{&SortLinesSettings::unique, u"Unique", toolForms::Check{}}};
    bool operator==(const SortLinesSettings &) const = default;
};

struct DuplicateSettings {
    bool keepLast = false; ///< otherwise the first of the lines that are alike stays
    bool ignoreCase = false;
    bool ignoreBlanks = false; ///< at both ends, and how many there are between words
    bool neighbours = false;   ///< only lines that follow each other count as alike
    bool leaveBlanks = false;  ///< blank lines stay, and part neighbours
    bool counts = false;       ///< before each line how often it stood there, and a tab

    static constexpr QStringView section = u"Duplicates";
    static constexpr std::tuple fields{
        Field{&DuplicateSettings::keepLast, u"KeepLast", toolForms::Check{}},
        Field{&DuplicateSettings::ignoreCase, u"IgnoreCase", toolForms::Check{}},
        Field{&DuplicateSettings::ignoreBlanks, u"IgnoreBlanks", toolForms::Check{}},
        Field{&DuplicateSettings::neighbours, u"Neighbours", toolForms::Check{}},
        Field{&DuplicateSettings::leaveBlanks, u"LeaveBlanks", toolForms::Check{}},
        Field{&DuplicateSettings::counts, u"Counts", toolForms::Check{}}};
    bool operator==(const DuplicateSettings &) const = default;
};

struct AroundLinesSettings {
    static constexpr int widest = 20;
    static constexpr QStringView counter = u"{n}"; ///< in either text, the number of the line
    QString before = QStringLiteral("{n}. ");
    QString after;
    int start = 1;
    int step = 1;
    int width = 0; ///< of the number, with zeros in front of it
    bool skipBlanks = true;

    static constexpr QStringView section = u"AroundLines";
    static constexpr std::tuple fields{
        Field{&AroundLinesSettings::before, u"Before", toolForms::HeldText{}},
        Field{&AroundLinesSettings::after, u"After", toolForms::HeldText{}},
        Field{&AroundLinesSettings::start, u"Start", toolForms::Number<>{}},
        Field{&AroundLinesSettings::step, u"Step", toolForms::Number<>{}},
        Field{&AroundLinesSettings::width, u"Width", toolForms::Number<0, widest>{}},
        Field{&AroundLinesSettings::skipBlanks, u"SkipBlanks", toolForms::Check{}}};
    bool operator==(const AroundLinesSettings &) const = default;
};

struct SeparatorSettings {
    bool join = false;                        ///< the lines become one; otherwise each part becomes a line
    QString separator = QStringLiteral(", "); ///< with escapes (base/escaped_text.h)
    bool trim = true;                         ///< white space around the parts goes
    bool leaveOutEmpty = false;

    static constexpr QStringView section = u"Separator";
    static constexpr std::tuple fields{
        Field{&SeparatorSettings::join, u"Join", toolForms::Check{}},
        Field{&SeparatorSettings::separator, u"Separator", toolForms::HeldText{}},
        Field{&SeparatorSettings::trim, u"Trim", toolForms::Check{}},
        Field{&SeparatorSettings::leaveOutEmpty, u"LeaveOutEmpty", toolForms::Check{}}};
    bool operator==(const SeparatorSettings &) const = default;
};

struct EveryLineSettings {
    bool drop = false; ///< these lines go; otherwise they are what stays
    int every = 2;
    int first = 1; ///< the first of them, from 1

    static constexpr QStringView section = u"EveryLine";
    static constexpr std::tuple fields{Field{&EveryLineSettings::drop, u"Drop", toolForms::Check{}},
                                       Field{&EveryLineSettings::every, u"Every", toolForms::Number<1>{}},
                                       Field{&EveryLineSettings::first, u"First", toolForms::Number<1>{}}};
    bool operator==(const EveryLineSettings &) const = default;
};

struct ColumnSettings {
    QString columns = QStringLiteral("2,1"); ///< a list (text/column_list.h)
    bool drop = false; ///< these columns go; otherwise they are what stays, in their order

    static constexpr QStringView section = u"Columns";
    static constexpr std::tuple fields{Field{&ColumnSettings::columns, u"Columns", toolForms::HeldText{}},
                                       Field{&ColumnSettings::drop, u"Drop", toolForms::Check{}}};
    bool operator==(const ColumnSettings &) const = default;
};

} // namespace tolvo
