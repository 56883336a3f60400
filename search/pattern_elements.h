// SPDX-License-Identifier: MIT
// What the texts of the search window can be made of, with a word on each: the menus beside its boxes.
#pragma once

#include "search/search_form.h"

#include <QList>
#include <QStringView>

namespace tolvo {

struct PatternElement {
    QStringView written;
    QStringView meaning;     ///< for the user
    qsizetype caretBack = 0; ///< how far before its end one goes on typing
    bool endsGroup = false;  ///< a line is drawn after it
};

/// The elements that a text may hold in a mode: of a pattern, or of a replacement or form. Escapes are among
/// them where they mean something. Separators of numbers have none.
///   patternElements(SearchText::Find, SearchMode::Wildcard, false) begins with "?", "any character"
[[nodiscard]] QList<PatternElement> patternElements(SearchText text, SearchMode mode, bool specialChars);

} // namespace tolvo
