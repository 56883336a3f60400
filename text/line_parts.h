// SPDX-License-Identifier: MIT
// What stands around lines and between them, and the words in them.
#pragma once

#include "text/line_settings.h"

#include <QString>
#include <QStringView>

namespace tolvo {

/// With a text before and after each line. The lines that get them are counted.
///   withTextAround(u"a|b", {.before = u"{n}) ", .after = u";", .width = 2}) == u"01) a;|02) b;"
[[nodiscard]] QString withTextAround(QStringView text, const AroundLinesSettings &settings);

/// The lines as one, with the separator between them, or a line for each of the parts that it separates. Each
/// line is a part too, and when white space around parts goes, that around the separator doesn't count. An
/// escape in the separator that can't be read stands for itself; an empty separator separates nothing. A line
/// end at the end of the text stays there.
///   splitOrJoined(u"a,b , c", {}) == u"a|b|c"
[[nodiscard]] QString splitOrJoined(QStringView text, const SeparatorSettings &settings);

/// The words of each line in reverse order. White space at both ends stays there.
///   withWordsReversed(u"  one two") == u"  two one"
[[nodiscard]] QString withWordsReversed(QStringView text);

} // namespace tolvo
