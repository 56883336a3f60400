// SPDX-License-Identifier: MIT
// Strings of C, of the shell and of CSV in text/notation.h.
#include "text/code_parts.h"
#include "text/lines.h"
#include "text/notation.h"
#include "text/table_cells.h"

#include <algorithm>

namespace tolvo {

namespace {

constexpr QStringView cLetters = u"abefnrtv\\'\"?";
constexpr QStringView cMeanings = u"\a\b\x1B\f\n\r\t\v\\'\"?";
constexpr int octal = 8;

bool isOctal(QChar c) {
    return c >= u'0' && c <= u'7';
}

/// Reads the escapes of C, which begin with a backslash.
class CReader {
  public:
    explicit CReader(QStringView text) : m_text(text) {}

    DecodedText read() {
        while (m_at < m_text.size()) {
            if (m_text[m_at] != u'\\')
                m_decoded.text += m_text[m_at++];
            else if (!readLetter() && !readCode() && !readBytes())
                keep();
        }
        return m_decoded;
    }

  private:
    [[nodiscard]] QChar at(qsizetype place) const { return place < m_text.size() ? m_text[place] : QChar(); }

    void keep() {
        noteBadCode(m_decoded, m_at);
        m_decoded.text += m_text[m_at++];
    }

    bool readLetter() {
        const qsizetype letter = at(m_at + 1).isNull() ? -1 : cLetters.indexOf(at(m_at + 1));
        if (letter < 0)
            return false;
        if (cMeanings[letter] == u'\n')
            m_decoded.text += lineEnd;
        else
            m_decoded.text += cMeanings[letter];
        m_at += 2;
        return true;
    }

    /// \uHHHH and \UHHHHHHHH
    bool readCode() {
        const qsizetype digits = at(m_at + 1) == u'u' ? 4 : at(m_at + 1) == u'U' ? 8 : 0;
        if (digits == 0 || m_at + 2 + digits > m_text.size())
            return false;
        const auto code = hexNumber(m_text.sliced(m_at + 2, digits));
        if (!code || *code > QChar::LastValidCodePoint)
            return false;
        m_decoded.text += characterOf(*code);
        m_at += 2 + digits;
        return true;
    }

    struct Byte {
        uint value;
        qsizetype end;
    };

    /// \ooo or \xHH at a place, of any number of hexadecimal digits.
    [[nodiscard]] std::optional<Byte> byteAt(qsizetype place) const {
        if (at(place) != u'\\')
            return {};
        const bool hex = at(place + 1) == u'x';
        const qsizetype start = place + (hex ? 2 : 1);
        qsizetype end = start;
        while (end < m_text.size() &&
               (hex ? hexNumber(m_text.sliced(end, 1)).has_value() : isOctal(m_text[end]) && end - start < 3))
            ++end;
        const QStringView digits = m_text.sliced(start, end - start);
        bool fits = false;
        const uint value = hex ? digits.toUInt(&fits, 16) : digits.toUInt(&fits, octal);
        return fits && value <= 0xFF ? std::optional(Byte{value, end}) : std::nullopt;
    }

    /// Bytes that together are one character in UTF-8.
    bool readBytes() {
        const auto first = byteAt(m_at);
        if (!first)
            return false;
        QByteArray bytes;
        qsizetype end = m_at;
        const qsizetype length = sequenceLength(static_cast<uchar>(first->value));
        for (auto byte = first; byte && bytes.size() < length; byte = byteAt(end)) {
            bytes += static_cast<char>(byte->value);
            end = byte->end;
        }
        const auto character = length > 0 && bytes.size() == length ? fromUtf8(bytes) : std::nullopt;
        if (!character)
            return false;
        m_decoded.text += *character;
        m_at = end;
        return true;
    }

    QStringView m_text;
    qsizetype m_at = 0;
    DecodedText m_decoded;
};

/// Takes a shell's quotes away.
class ShellReader {
  public:
    explicit ShellReader(QStringView text) : m_text(text) {}

    DecodedText read() {
        while (m_at < m_text.size()) {
            const QChar c = m_text[m_at];
            const bool ansi = c == u'$' && m_at + 1 < m_text.size() && m_text[m_at + 1] == u'\'';
            if (c == u'\'' || c == u'"' || ansi)
                readQuoted(ansi ? 2 : 1);
            else if (c == u'\\' && m_at + 1 < m_text.size())
                readEscape();
            else
                m_decoded.text += m_text[m_at++];
        }
        return m_decoded;
    }

  private:
    /// A backslash outside of quotes: the next character as it is; a line that goes on.
    void readEscape() {
        const bool goesOn = m_text.sliced(m_at + 1).startsWith(lineEnd);
        if (!goesOn)
            m_decoded.text += m_text[m_at + 1];
        m_at += goesOn ? 3 : 2;
    }

    /// A quotation that begins with `opening` units.
    void readQuoted(qsizetype opening) {
        const QChar mark = m_text[m_at + opening - 1];
        const bool escapes = mark == u'"' || opening == 2;
        qsizetype end = m_at + opening;
        while (end < m_text.size() && m_text[end] != mark)
            end += escapes && m_text[end] == u'\\' ? 2 : 1;
        if (end >= m_text.size()) {
            noteBadCode(m_decoded, m_at);
            m_decoded.text += m_text.sliced(m_at);
            m_at = m_text.size();
            return;
        }
        const QStringView inside = m_text.sliced(m_at + opening, end - m_at - opening);
        if (opening == 2)
            addAnsi(inside);
        else
            addPlain(inside, mark == u'"');
        m_at = end + 1;
    }

    void addAnsi(QStringView inside) {
        const DecodedText read = cUnescaped(inside);
        if (read.bad > 0)
            noteBadCode(m_decoded, m_at + 2 + read.badAt);
        m_decoded.text += read.text;
    }

    void addPlain(QStringView inside, bool escapes) {
        for (qsizetype i = 0; i < inside.size(); ++i) {
            if (escapes && inside[i] == u'\\' && i + 1 < inside.size() &&
                QStringView(u"\\\"$`").contains(inside[i + 1]))
                ++i;
            m_decoded.text += inside[i];
        }
    }

    QStringView m_text;
    qsizetype m_at = 0;
    DecodedText m_decoded;
};

} // namespace

QString cEscaped(QStringView text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        const qsizetype place = unit == u'\'' || unit == u'?' || unit == 0x1B ? -1 : cMeanings.indexOf(unit);
        if (unit == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            continue; // the line feed is written
        if (place >= 0) {
            result += u'\\';
            result += cLetters[place];
        } else if (unit < u' ' || unit == 0x7F) {
            result += QStringLiteral("\\%1").arg(static_cast<uint>(unit), 3, octal, QChar(u'0'));
        } else {
            result += text[i];
        }
    }
    return result;
}

DecodedText cUnescaped(QStringView text) {
    return CReader(text).read();
}

QString shellQuoted(QStringView text) {
    const auto isPlain = [](QChar c) {
        return c.unicode() < 0x80 && (c.isLetterOrNumber() || QStringView(u"@%+=:,./-_").contains(c));
    };
    if (!text.isEmpty() && std::all_of(text.begin(), text.end(), isPlain))
        return text.toString();
    QString result = QStringLiteral("'");
    result.reserve(text.size() + text.size() / 8);
    for (const QChar c : text) {
        if (c == u'\'')
            result += u"'\\''";
        else
            result += c;
    }
    return result + u'\'';
}

DecodedText shellUnquoted(QStringView text) {
    return ShellReader(text).read();
}

QString csvQuoted(QStringView text) {
    return changeLines(text, [](QStringView line, QString &result) {
        const auto needsQuotes = [](QChar c) { return QStringView(u",;\t\"\r\n").contains(c); };
        const bool quoted = std::any_of(line.begin(), line.end(), needsQuotes) || line.startsWith(u' ') ||
                            line.endsWith(u' ');
        if (!quoted) {
            result += line;
            return;
        }
        result += quotedCell(line);
    });
}

DecodedText csvUnquoted(QStringView text) {
    DecodedText decoded;
    bool open = false; // a cell that isn't closed: no later one is
    for (qsizetype at = 0; at < text.size();) {
        const bool quoted = text[at] == u'"' && !open;
        const qsizetype length = quoted ? endOfQuoted(text.sliced(at)) : -1;
        const bool whole =
            length > 0 && (at + length == text.size() || text.sliced(at + length).startsWith(lineEnd));
        if (whole) {
            const QString inside = text.sliced(at + 1, length - 2).toString();
            decoded.text += inside.split(QStringLiteral("\"\"")).join(u'"');
            at += length;
        } else if (quoted) {
            noteBadCode(decoded, at);
            open = length < 0;
            decoded.text += text.sliced(at, std::max<qsizetype>(length, 0));
            at += std::max<qsizetype>(length, 0);
        }
        const qsizetype next = text.indexOf(lineEnd, at);
        const qsizetype end = next < 0 ? text.size() : next + lineEnd.size();
        decoded.text += text.sliced(at, end - at);
        at = end;
    }
    return decoded;
}

} // namespace tolvo
