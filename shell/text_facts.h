// SPDX-License-Identifier: MIT
// What the status bar says about the text in use.
#pragma once

#include "base/application.h"

#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

class TextBox;
class cTextMethods;

/// Numbers of one moment. Lengths are UTF-16 code units, a line end counts as two.
struct TextFacts {
    int selected = 0;
    int line = 1;   ///< where the selection begins, from 1; lines end at CR LF, whether wrapped or not
    int column = 1; ///< from 1, in UTF-16 code units
    int length = 0;
    int capacity = textLimit;

    bool operator==(const TextFacts &) const = default;
};

/// Reads the facts without copying the text.
[[nodiscard]] TextFacts textFacts(const cTextMethods &engine, const TextBox &box);

/// How full the text box is: from 90 % on it is near its limit, from 99 % on it has hardly any room.
enum class Fill { Roomy, Near, Full };
[[nodiscard]] Fill fillOf(const TextFacts &facts);

/// "126 selected"; empty without a selection.
[[nodiscard]] QString selectionText(const TextFacts &facts);
/// "Ln 3, Col 1"
[[nodiscard]] QString placeText(const TextFacts &facts);
/// "442 / 65,535"
[[nodiscard]] QString lengthText(const TextFacts &facts);
/// What the length means: "442 of 65,535 characters, a line end counts as two", and how much room is left
/// where that is little.
[[nodiscard]] QString lengthTip(const TextFacts &facts);

/// The lines of a text, at least one: "a|b|" has three.
[[nodiscard]] int lineCount(QStringView text);
/// Where a line begins, from 0; the line counts from 1. Nothing for a line that the text doesn't have.
///   placeOfLine(u"a|b", 2) is 3
[[nodiscard]] std::optional<int> placeOfLine(QStringView text, int line);

} // namespace tolvo
