// SPDX-License-Identifier: MIT
// Pages as plain text. Both readers take any text, never fail, and are linear.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// What an HTML page shows: blocks on lines of their own, lists with "-" or numbers, quotations with ">",
/// tables in aligned columns, links with their address after them in brackets, pictures as their other text.
/// Scripts, styles and comments go. A "<" that begins no tag stays.
///   u"<p>A <a href='b.c'>link</a></p><ul><li>x</ul>" gives "A link (b.c)||- x"
[[nodiscard]] QString htmlAsText(QStringView text);

/// What Markdown means (CommonMark and its tables), without its marks: emphasis, code, headings and fences
/// lose theirs; lists, quotations and rules stay; tables are aligned; a link's address follows in brackets.
///   u"# A *link*|[b](c.d)" gives "A link|b (c.d)"
[[nodiscard]] QString markdownAsText(QStringView text);

} // namespace tolvo
