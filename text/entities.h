// SPDX-License-Identifier: MIT
// Character references of markup: "&#65;", "&#x41;", "&amp;". Source of their syntax and names:
// the HTML Living Standard, section "Character references". The odd results below are kept on
// purpose.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Decodes the numeric references. "&#" goes whatever follows it. Only the codes of Windows-1252 and the
/// full-width forms give a character; any other reference is deleted, and the references after it only lose
/// their "&#". Digits directly after a reference are read as a further one. Fails with an overflow for a
/// reference of 32768 characters or more and for a hexadecimal one beyond 32 bits.
///   decodeNumericEntities(u"&#65;&#233;&#65281;&#150;") == u"Aé!–"
[[nodiscard]] QString decodeNumericEntities(QStringView text);

/// Decodes the named references as if one name were replaced after the other, "&amp;" second: "&amp;lt;"
/// becomes "<", but "&amp;amp;" becomes "&amp;". Case matters only for "&dagger;" and "&Dagger;". Unknown
/// names stay.
///   decodeNamedEntities(u"&amp;lt;&AMP;amp;&amp;quot;&QUOT;") == u"<&amp;&quot;\""
[[nodiscard]] QString decodeNamedEntities(QStringView text);

} // namespace tolvo
