// SPDX-License-Identifier: MIT
// The references of HTML and XML in text/notation.h.
#include "text/code_parts.h"
#include "text/html_names.h"
#include "text/notation.h"

#include <QStringList>
#include <array>

namespace tolvo {

namespace {

struct Reference {
    QString characters;
    qsizetype length; ///< with the ampersand
};

/// A reference by number at an ampersand. Its semicolon may be missing if `bare` says so.
std::optional<Reference> numbered(QStringView text, bool bare) {
    constexpr qsizetype mostDigits = 8;
    if (text.size() < 3 || text[1] != u'#')
        return {};
    const bool hex = text[2] == u'x' || (bare && text[2] == u'X');
    const qsizetype start = hex ? 3 : 2;
    qsizetype end = start;
    while (end < text.size() && end - start <= mostDigits &&
           (hex ? hexNumber(text.sliced(end, 1)).has_value() : text[end] >= u'0' && text[end] <= u'9'))
        ++end;
    const bool closed = end < text.size() && text[end] == u';';
    if (end == start || end - start > mostDigits || (!closed && !bare))
        return {};
    const QStringView digits = text.sliced(start, end - start);
    const uint code = hex ? *hexNumber(digits) : digits.toUInt();
    const bool exists = code > 0 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code) &&
                        (code >= u' ' || code == u'\t' || code == u'\n' || code == u'\r');
    if (!exists)
        return {};
    return Reference{characterOf(code), end + (closed ? 1 : 0)};
}

/// What browsers make of the numbers from 128 to 159: the characters of Windows-1252, where it has them.
QString asBrowsersDo(const QString &characters) {
    static constexpr std::array<char16_t, 32> windows = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    constexpr char16_t first = 0x80;
    const char16_t unit = characters.front().unicode();
    return unit >= first && unit < first + windows.size() ? QString(QChar(windows.at(unit - first)))
                                                          : characters;
}

std::optional<Reference> htmlReference(QStringView text) {
    if (auto number = numbered(text, true)) {
        number->characters = asBrowsersDo(number->characters);
        return number;
    }
    if (const auto name = htmlName(text.sliced(1)))
        return Reference{name->characters, name->length + 1};
    return {};
}

std::optional<Reference> xmlReference(QStringView text) {
    static constexpr std::array<std::pair<QStringView, char16_t>, 5> names = {
        {{u"&amp;", u'&'}, {u"&lt;", u'<'}, {u"&gt;", u'>'}, {u"&quot;", u'"'}, {u"&apos;", u'\''}}};
    for (const auto &[name, character] : names) {
        if (text.startsWith(name))
            return Reference{QString(QChar(character)), name.size()};
    }
    return numbered(text, false);
}

/// Whether an ampersand begins what is meant as a reference: "&word;" or "&#".
bool isMeant(QStringView text) {
    constexpr qsizetype longest = 34;
    if (text.size() > 1 && text[1] == u'#')
        return true;
    qsizetype end = 1;
    while (end < text.size() && end < longest && text[end].isLetterOrNumber())
        ++end;
    return end > 1 && end < text.size() && text[end] == u';';
}

template <class Read>
DecodedText referencesDecoded(QStringView text, Read read) {
    DecodedText decoded;
    decoded.text.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'&') {
            decoded.text += text[i];
        } else if (const std::optional<Reference> reference = read(text.sliced(i))) {
            decoded.text += reference->characters;
            i += reference->length - 1;
        } else {
            if (isMeant(text.sliced(i)))
                noteBadCode(decoded, i);
            decoded.text += text[i];
        }
    }
    return decoded;
}

} // namespace

QString htmlNamed(QStringView text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const char32_t code = pair ? QChar::surrogateToUcs4(c, text[i + 1]) : c.unicode();
        i += pair ? 1 : 0;
        const bool plain = code < 0x80 && !QStringView(u"<>&\"").contains(c);
        if (plain || (c.isSurrogate() && !pair)) {
            result += c;
            continue;
        }
        const QString name = nameForHtml(code);
        result += u'&';
        result += name.isEmpty() ? QStringLiteral("#x") + QString::number(code, 16).toUpper() : name;
        result += u';';
    }
    return result;
}

DecodedText htmlReferencesDecoded(QStringView text) {
    return referencesDecoded(text, htmlReference);
}

QString xmlEscaped(QStringView text) {
    return htmlEncoded(text).split(QStringLiteral("&#x27;")).join(QStringLiteral("&apos;"));
}

DecodedText xmlUnescaped(QStringView text) {
    return referencesDecoded(text, xmlReference);
}

} // namespace tolvo
