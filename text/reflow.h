// SPDX-License-Identifier: MIT
// Paragraphs broken into lines and put together again. What stands before a line's words is its mark: the
// signs of quoted mail, of comments and of lists, and its indentation.
#pragma once

#include "text/writing_settings.h"

namespace tolvo {

/// Breaks the lines that are wider than the width. Each part carries on the marks of mail quotes and comments
/// and stands under the words of a list item. Wide characters of East Asia may be parted anywhere, but not
/// before a closing sign; a word that is too wide stands on a line of its own. With `fill`, the lines of a
/// paragraph are joined first.
///   with a width of 10: u"> one two three" gives "> one two|> three"
[[nodiscard]] QString wrappedParagraphs(QStringView text, const ParagraphWrapSettings &settings);

/// Takes the line breaks out of paragraphs: lines with the same mark become one. List items, headings and
/// lines that end long before the others stay by themselves.
///   u"> one two|> three" gives "> one two three"
[[nodiscard]] QString unwrappedParagraphs(QStringView text);

/// The same for the text of a PDF. A word that is parted at a line's end is put together: with its hyphen if
/// the text has it with one elsewhere, or has both halves as words of their own but not the whole; else
/// without. Page numbers stay on lines of their own.
///   u"a para-|graph of text" gives "a paragraph of text"
[[nodiscard]] QString joinedPdfLines(QStringView text);

} // namespace tolvo
