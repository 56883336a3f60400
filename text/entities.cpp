// SPDX-License-Identifier: MIT
#include "text/entities.h"

#include "base/code_page.h"
#include "base/failure.h"
#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace tolvo {

namespace {

/// The character of a decimal code; nothing for a code without one.
std::optional<QChar> EntityChar(QStringView digits) {
    constexpr int fullWidthStart = 65280;
    constexpr int fullWidthEnd = 65375;
    int code = 0;
    for (const QChar digit : digits)
        code = qMin(code * 10 + (digit.unicode() - u'0'), 1'000'000);
    if (code >= fullWidthStart && code < fullWidthEnd)
        code -= fullWidthStart - 32;
    return code <= 255 ? std::optional(QChar(fromAnsi(static_cast<std::uint8_t>(code)))) : std::nullopt;
}

/// Finds the next index at which a condition holds. The index to start from must never go back, so that each
/// unit is tested once.
template <class Condition>
class NextIndex {
  public:
    NextIndex(QStringView text, Condition condition) : m_text(text), m_condition(condition) {}

    /// The text's length if there is none.
    qsizetype from(qsizetype index) {
        m_next = qMax(m_next, index);
        while (m_next < m_text.size() && !m_condition(m_text[m_next].unicode()))
            ++m_next;
        return m_next;
    }

  private:
    QStringView m_text;
    Condition m_condition;
    qsizetype m_next = 0;
};

bool isDecimal(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

bool isHexadecimal(char16_t unit) {
    return isDecimal(unit) || (unit >= u'a' && unit <= u'f') || (unit >= u'A' && unit <= u'F');
}

/// Reads the text from left to right and moves what is decided to the result. No character is read more than
/// a few times.
class NumericDecoder {
  public:
    explicit NumericDecoder(QStringView text) : m_text(text) { m_result.reserve(text.size()); }

    QString decode() {
        while (copyToReference()) {
            while (m_lastMarkWasFilled && startsMark())
                decodeMark();
        }
        return m_result;
    }

  private:
    /// Copies the text up to the next "&#", which is left out; false if there is none.
    bool copyToReference() {
        const qsizetype at = m_text.indexOf(u"&#", m_at);
        copyTo(at < 0 ? m_text.size() : at);
        m_at += at < 0 ? 0 : 2;
        return at >= 0;
    }

    void copyTo(qsizetype index) {
        m_result += m_text.sliced(m_at, index - m_at);
        m_at = index;
    }

    [[nodiscard]] bool startsMark() const {
        return m_at < m_text.size() && (isDecimal(m_text[m_at].unicode()) || isX(m_text[m_at]));
    }

    [[nodiscard]] static bool isX(QChar c) { return c == u'x' || c == u'X'; }

    /// Decodes the mark between the current index and the next semicolon. Without one the text's last
    /// character takes its place and is lost.
    void decodeMark() {
        const qsizetype end = qMin(m_semicolon.from(m_at), m_text.size() - 1);
        const QStringView mark = m_text.sliced(m_at, end - m_at);
        m_lastMarkWasFilled = !mark.isEmpty();
        if (m_lastMarkWasFilled && isX(mark.front()) && m_noHexadecimal.from(m_at + 1) >= end) {
            decodeHexadecimal(mark, end);
            return;
        }
        // The limit of IsNumber, which holds wherever the first other character stands.
        if (mark.size() > std::numeric_limits<qint16>::max())
            failOverflow(QStringLiteral("a character reference of 32768 characters or more"));
        if (m_lastMarkWasFilled && m_noDecimal.from(m_at) >= end)
            replaceMark(mark, end);
        else
            copyTo(qMin(m_at + 3, m_text.size()));
    }

    /// The decimal form replaces the end of the hexadecimal one: a shorter form leaves the start of the
    /// reference in the text, a longer one removes the character before it. Both are kept on purpose.
    void decodeHexadecimal(QStringView mark, qsizetype end) {
        QString hexadecimal = mark.sliced(1).toString();
        const QString decimal = QString::number(HexToNumber(hexadecimal));
        if (decimal.size() <= mark.size())
            m_result += mark.chopped(decimal.size());
        else
            m_result.chop(decimal.size() - mark.size());
        replaceMark(decimal, end);
    }

    void replaceMark(QStringView digits, qsizetype end) {
        const std::optional<QChar> character = EntityChar(digits);
        m_lastMarkWasFilled = character.has_value();
        if (character)
            m_result += *character;
        m_at = end + 1;
    }

    template <bool (*test)(char16_t)>
    struct Not {
        bool operator()(char16_t unit) const { return !test(unit); }
    };
    struct IsSemicolon {
        bool operator()(char16_t unit) const { return unit == u';'; }
    };

    QStringView m_text;
    qsizetype m_at = 0;
    QString m_result;
    bool m_lastMarkWasFilled = true; // if not, no further reference is decoded
    NextIndex<IsSemicolon> m_semicolon{m_text, {}};
    NextIndex<Not<isDecimal>> m_noDecimal{m_text, {}};
    NextIndex<Not<isHexadecimal>> m_noHexadecimal{m_text, {}};
};

struct NamedEntity {
    QStringView name; // without "&", with ";"
    char16_t character;
    Qt::CaseSensitivity compare = Qt::CaseInsensitive;
};

// In the order of their replacement: after a decoded "&" only the names further down are decoded.
constexpr std::array<NamedEntity, 23> namedEntities = {{
    {u"quot;", u'"'},
    {u"amp;", u'&'},
    {u"lt;", u'<'},
    {u"gt;", u'>'},
    {u"apos;", u'\''},
    {u"nbsp;", 0x00A0},
    {u"pound;", 0x00A3},
    {u"euro;", 0x20AC},
    {u"cent;", 0x00A2},
    {u"copy;", 0x00A9},
    {u"trade;", 0x2122},
    {u"reg;", 0x00AE},
    {u"bull;", 0x2022},
    {u"mdash;", 0x2014},
    {u"ndash;", 0x2013},
    {u"rsquo;", 0x2019},
    {u"lsquo;", 0x2018},
    {u"ldquo;", 0x201C},
    {u"rdquo;", 0x201D},
    {u"sbquo;", 0x201A},
    {u"bdquo;", 0x201E},
    {u"dagger;", 0x2020, Qt::CaseSensitive},
    // The single dagger here too, on purpose.
    {u"Dagger;", 0x2020, Qt::CaseSensitive},
}};
constexpr auto ampersand = namedEntities.begin() + 1;

/// The entity among those from `first` on whose name the text starts with, or the end of the table.
auto findEntity(QStringView text, const NamedEntity *first) {
    return std::find_if(first, namedEntities.end(), [text](const NamedEntity &entity) {
        if (text.size() < entity.name.size() || text[entity.name.size() - 1] != u';')
            return false;
        const QStringView name = text.first(entity.name.size());
        return entity.compare == Qt::CaseSensitive ? name == entity.name
                                                   : equalsIgnoringCase(name, entity.name);
    });
}

} // namespace

QString decodeNumericEntities(QStringView text) {
    return NumericDecoder(text).decode();
}

QString decodeNamedEntities(QStringView text) {
    QString result;
    result.reserve(text.size());
    qsizetype at = 0;
    for (;;) {
        const qsizetype next = text.indexOf(u'&', at);
        if (next < 0)
            break;
        result += text.sliced(at, next - at);
        at = next + 1;
        const auto *entity = findEntity(text.sliced(at), namedEntities.begin());
        if (entity == ampersand) {
            at += entity->name.size();
            entity = findEntity(text.sliced(at), ampersand + 1);
        }
        if (entity == namedEntities.end()) {
            result += u'&';
            continue;
        }
        result += QChar(entity->character);
        at += entity->name.size();
    }
    result += text.sliced(at);
    return result;
}

} // namespace tolvo
