// SPDX-License-Identifier: MIT
// The named character references of the HTML Living Standard.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

/// All names and characters as "name code,": codes in hexadecimal, two joined by "+"; a name that counts
/// without its semicolon too is followed by "*", any other of HTML 4 by "!". Line feeds stand between some.
[[nodiscard]] QByteArrayView htmlNameTable();

struct HtmlName {
    QString characters;
    qsizetype length = 0; ///< of the name in the text, its semicolon included
};

/// The longest name at the front of a text, as a page has it after "&"; nothing if there is none.
///   htmlName(u"notit;") is {"¬", 3}
[[nodiscard]] std::optional<HtmlName> htmlName(QStringView text);

/// The name for a character, without & and semicolon: that of HTML 4 where there is one. Empty for a
/// character without a name.
///   nameForHtml(U'é') == u"eacute"
[[nodiscard]] QString nameForHtml(char32_t character);

} // namespace tolvo
