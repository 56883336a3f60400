// SPDX-License-Identifier: MIT
// Texts as further notations write them; the first ones are in text/coding.h, where DecodedText is described.
#pragma once

#include "text/coding.h"

namespace tolvo {

/// Character references by name where HTML has one for a character, else by number; ASCII only.
///   htmlNamed(u"<é中>") == u"&lt;&eacute;&#x4E2D;&gt;"
[[nodiscard]] QString htmlNamed(QStringView text);
/// All references of the HTML Living Standard, also those without their semicolon; numbers from 128 to 159
/// mean Windows-1252, as in browsers. What refers to no character stays.
///   htmlReferencesDecoded(u"&eacute;&copy &nosuch;").text == u"é© &nosuch;"
[[nodiscard]] DecodedText htmlReferencesDecoded(QStringView text);

/// Quoted-printable of the UTF-8 bytes (RFC 2045, section 6.7), no line above 76 characters.
///   quotedPrintableEncoded(u"é=") == u"=C3=A9=3D"
[[nodiscard]] QString quotedPrintableEncoded(QStringView text);
/// Codes that are wrong, or whose bytes are not UTF-8, stay.
[[nodiscard]] DecodedText quotedPrintableDecoded(QStringView text);

/// As it stands between the quotes of a C string (ISO 9899, 6.4.4.4): a line end is "\n", other control
/// characters are octal; letters outside ASCII stay.
[[nodiscard]] QString cEscaped(QStringView text);
/// The escapes of C. Codes of single bytes from 128 on are read together as UTF-8.
///   cUnescaped(u"\\x41\\303\\251\\q").text == u"Aé\\q"
[[nodiscard]] DecodedText cUnescaped(QStringView text);

/// The text as one word of a POSIX shell, in single quotes unless it needs none.
///   shellQuoted(u"it's") == u"'it'\\''s'"
[[nodiscard]] QString shellQuoted(QStringView text);
/// Takes the quotes and backslashes of a POSIX shell away, those of $'...' too. A quote that isn't closed
/// stays with all that follows.
[[nodiscard]] DecodedText shellUnquoted(QStringView text);

/// The five characters of XML's markup as references (XML 1.0, section 4.6).
///   xmlEscaped(u"<a b='c'>") == u"&lt;a b=&apos;c&apos;&gt;"
[[nodiscard]] QString xmlEscaped(QStringView text);
/// Those five names and all numbers; what else begins with "&" stays.
[[nodiscard]] DecodedText xmlUnescaped(QStringView text);

/// Each line as a cell of CSV (RFC 4180): in quotes if it has a comma, a semicolon, a tab, a quote or a blank
/// at an end.
///   csvQuoted(u"say \"a\"") == u"\"say \"\"a\"\"\""
[[nodiscard]] QString csvQuoted(QStringView text);
/// Takes the quotes off cells that begin a line. A cell may run over several lines; one that isn't closed
/// stays, and so does one with more after it.
[[nodiscard]] DecodedText csvUnquoted(QStringView text);

} // namespace tolvo
