// SPDX-License-Identifier: MIT
// A text without some of its lines. A line end at the end of the text stays there, unless no line is left.
#pragma once

#include "text/line_settings.h"

#include <QString>
#include <QStringView>

namespace tolvo {

struct ChosenLines {
    QString text;
    QString trouble; ///< why they can't be chosen, in words; the text is whole then. Empty if they can.
};

/// Of lines that are alike only one stays.
///   withoutDuplicates(u"b|a|B", {.ignoreCase = true}) == u"b|a"
[[nodiscard]] QString withoutDuplicates(QStringView text, const DuplicateSettings &settings);

/// One line of every so many, or the others.
///   everyLine(u"a|b|c|d|e", {.drop = false, .every = 2, .first = 2}) == u"b|d"
[[nodiscard]] QString everyLine(QStringView text, const EveryLineSettings &settings);

} // namespace tolvo
