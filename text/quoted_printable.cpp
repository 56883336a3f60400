// SPDX-License-Identifier: MIT
// Quoted-printable in text/notation.h.
#include "base/utf8.h"
#include "text/code_parts.h"
#include "text/lines.h"
#include "text/notation.h"

namespace tolvo {

namespace {

constexpr qsizetype widestLine = 76;

bool isBlank(QChar c) {
    return c == u' ' || c == u'\t';
}

void encodeLine(QStringView line, QString &result) {
    qsizetype column = 0;
    const QByteArray bytes = utf8Of(line);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<uchar>(bytes[i]);
        const bool last = i + 1 == bytes.size();
        const bool stays = (byte >= ' ' && byte < 0x7F && byte != '=') || byte == '\t';
        const bool plain = stays && !(last && isBlank(QChar(byte)));
        const qsizetype width = plain ? 1 : 3;
        if (column + width > (last ? widestLine : widestLine - 1)) {
            result += u"=\r\n";
            column = 0;
        }
        if (plain) {
            result += QChar(byte);
        } else {
            result += u'=';
            addHex(result, byte, 2, u"0123456789ABCDEF");
        }
        column += width;
    }
}

class Decoder {
  public:
    explicit Decoder(QStringView text) : m_text(text) {}

    DecodedText decode() {
        while (m_at < m_text.size()) {
            if (m_text[m_at] != u'=')
                m_decoded.text += m_text[m_at++];
            else if (const qsizetype length = softBreak())
                m_at += length;
            else
                decodeCharacter();
        }
        return m_decoded;
    }

  private:
    /// The length of "=" at the end of a line, blanks after it among it; 0 for another "=".
    [[nodiscard]] qsizetype softBreak() const {
        qsizetype end = m_at + 1;
        while (end < m_text.size() && isBlank(m_text[end]))
            ++end;
        if (end == m_text.size())
            return end - m_at;
        return m_text.sliced(end).startsWith(lineEnd) ? end + lineEnd.size() - m_at : 0;
    }

    [[nodiscard]] std::optional<uint> byteAt(qsizetype at) const {
        return at + 2 < m_text.size() && m_text[at] == u'=' ? hexNumber(m_text.sliced(at + 1, 2))
                                                            : std::nullopt;
    }

    /// The codes of a character's bytes, which soft breaks may part.
    void decodeCharacter() {
        constexpr qsizetype codeLength = 3;
        const qsizetype start = m_at;
        const auto first = byteAt(m_at);
        const qsizetype length = first ? sequenceLength(static_cast<uchar>(*first)) : 0;
        QByteArray bytes;
        while (bytes.size() < length) {
            const auto byte = byteAt(m_at);
            if (const qsizetype gap = byte || bytes.isEmpty() ? 0 : gapAt()) {
                m_at += gap;
                continue;
            }
            if (!byte)
                break;
            bytes += static_cast<char>(*byte);
            m_at += codeLength;
        }
        const auto character = length > 0 && bytes.size() == length ? fromUtf8(bytes) : std::nullopt;
        if (character) {
            m_decoded.text += *character;
            return;
        }
        noteBadCode(m_decoded, start);
        m_at = start + (first ? codeLength : 1);
        m_decoded.text += m_text.sliced(start, m_at - start);
    }

    [[nodiscard]] qsizetype gapAt() const {
        return m_at < m_text.size() && m_text[m_at] == u'=' ? softBreak() : 0;
    }

    QStringView m_text;
    qsizetype m_at = 0;
    DecodedText m_decoded;
};

} // namespace

QString quotedPrintableEncoded(QStringView text) {
    return changeLines(text, encodeLine);
}

DecodedText quotedPrintableDecoded(QStringView text) {
    return Decoder(text).decode();
}

} // namespace tolvo
