// SPDX-License-Identifier: MIT
// The difference of two texts as a text.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Line by line: "  " before what both texts have, "- " before what only `before` has, "+ " before what only
/// `after` has. Lines that occur once in both are the fixed points, as in a patience difference; the lines
/// between two of them are compared as long as that is short work. Takes time in proportion to the texts.
///   lineDifference(u"a|b", u"a|c") is u"  a|- b|+ c"
[[nodiscard]] QString lineDifference(QStringView before, QStringView after);

struct ToolCall;

/// Puts the difference of the clipboard and the selected text, or the whole text, in its place: that of the
/// lines, or that of the words (shell/word_difference.h). Without a text on the clipboard nothing changes.
void compareWithClipboard(const ToolCall &call);
void compareWordsWithClipboard(const ToolCall &call);

} // namespace tolvo
