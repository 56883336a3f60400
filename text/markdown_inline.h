// SPDX-License-Identifier: MIT
// What stands inside a paragraph of Markdown.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>

namespace tolvo {

/// Addresses by the names of their link definitions, in small letters.
using MarkdownLinks = QHash<QString, QString>;

/// The text without marks of emphasis and code, links with their address after them in brackets; references
/// and escapes decoded, tags of HTML taken out. Marks without a partner stay.
///   u"*a* `b*` [c](d)" gives "a b* c (d)"
[[nodiscard]] QString markdownInline(QStringView text, const MarkdownLinks &links);

} // namespace tolvo
