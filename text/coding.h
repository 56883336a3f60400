// SPDX-License-Identifier: MIT
// Texts as other notations write them: web pages, web addresses, Base64, strings of programs. What can't be
// decoded stays as it stands, and the answer says where it is.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// A text after decoding.
struct DecodedText {
    QString text;
    int bad = 0;          ///< how many codes could not be decoded
    qsizetype badAt = -1; ///< where the first of them stands in the coded text, in UTF-16 units from 0
};

/// The characters that mean something in HTML as references: u"<a> & \"b\"" gives "&lt;a&gt; &amp;
/// &quot;b&quot;". An apostrophe becomes "&#x27;".
[[nodiscard]] QString htmlEncoded(QStringView text);

/// All but ASCII letters, digits and -_.!~*'() as percent codes of their UTF-8 bytes, as a part of an address
/// (RFC 3986 with the marks that encodeURIComponent of ECMAScript keeps). Line ends stay, so that each line
/// is an address by itself; so do lone halves of surrogate pairs.
///   urlEncoded(u"caf\u00e9 1/2") == u"caf%C3%A9%201%2F2"
[[nodiscard]] QString urlEncoded(QStringView text);
/// Percent codes read as UTF-8. A code whose bytes are not UTF-8 stays.
///   urlDecoded(u"caf%C3%A9%20%FF").text == u"caf\u00e9 %FF"
[[nodiscard]] DecodedText urlDecoded(QStringView text);

/// The UTF-8 bytes, with LF as line end, in Base64 (RFC 4648), in one line. A lone half of a surrogate pair
/// becomes a question mark.
[[nodiscard]] QString base64Encoded(QStringView text);
/// Base64 in either alphabet, with or without padding, broken into lines anywhere. A text that isn't Base64,
/// or whose bytes are not UTF-8, comes back as it is, with the place of the trouble.
[[nodiscard]] DecodedText base64Decoded(QStringView text);

/// As it stands between the quotes of a JSON string (RFC 8259): a line end is "\n", other control characters
/// are escapes; letters outside ASCII stay.
[[nodiscard]] QString jsonEscaped(QStringView text);
/// The escapes of JSON, and the forms \xHH, \u{H...} and \UHHHHHHHH of other notations. A backslash that
/// begins none of them stays.
///   unescapedString(u"caf\\u00e9\\n").text is "café" and a line end
[[nodiscard]] DecodedText unescapedString(QStringView text);
/// All that isn't ASCII as \uHHHH, a character beyond the first plane as two.
///   unicodeEscaped(u"\u00e9") == u"\\u00e9"
[[nodiscard]] QString unicodeEscaped(QStringView text);

} // namespace tolvo
