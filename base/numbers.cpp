// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include "base/failure.h"

#include <QLocale>
#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tolvo {

namespace {

int hexDigit(char16_t unit) {
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    return -1;
}

bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

} // namespace

bool IsNumber(QStringView text) {
    if (text.size() > std::numeric_limits<qint16>::max())
        failOverflow(QStringLiteral("a text of 32768 characters or more can't be tested for digits"));
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return isDigit(c.unicode()); });
}

bool IsHex(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return hexDigit(c.unicode()) >= 0; });
}

int HexToNumber(QString &text) {
    text = text.toUpper();
    qint64 value = 0;
    for (const QChar c : std::as_const(text)) {
        const int digit = hexDigit(c.unicode());
        value = digit < 0 ? value - 1 : digit == 0 ? value * 16 : value * 16 + digit;
        if (value > std::numeric_limits<qint32>::max() || value < std::numeric_limits<qint32>::min())
            failOverflow(QStringLiteral("the hexadecimal number %1 needs more than 32 bits").arg(text));
    }
    return static_cast<int>(value);
}

namespace {

/// Reads the characters that make up a number, with blanks, TABs and LFs left out.
class NumberReader {
  public:
    explicit NumberReader(QStringView text) : m_text(text) { skipBlanks(); }

    [[nodiscard]] char16_t peek() const { return m_at < m_text.size() ? m_text.at(m_at).unicode() : u'\0'; }
    void next() {
        ++m_at;
        skipBlanks();
    }
    [[nodiscard]] qsizetype mark() const { return m_at; }
    void goTo(qsizetype mark) { m_at = mark; }

  private:
    void skipBlanks() {
        while (peek() == u' ' || peek() == u'\t' || peek() == u'\n')
            ++m_at;
    }

    QStringView m_text;
    qsizetype m_at = 0;
};

double prefixedNumber(NumberReader &reader) {
    reader.next();
    const char16_t letter = reader.peek();
    const int base = letter == u'H' || letter == u'h' ? 16 : letter == u'O' || letter == u'o' ? 8 : 0;
    if (base == 0)
        return 0;
    double value = 0;
    for (reader.next(); hexDigit(reader.peek()) >= 0 && hexDigit(reader.peek()) < base; reader.next())
        value = value * base + hexDigit(reader.peek());
    return value;
}

void appendDigits(NumberReader &reader, QByteArray &digits) {
    for (; isDigit(reader.peek()); reader.next())
        digits += static_cast<char>(reader.peek());
}

void appendExponent(NumberReader &reader, QByteArray &number) {
    const char16_t letter = reader.peek();
    if (letter != u'E' && letter != u'e' && letter != u'D' && letter != u'd')
        return;
    QByteArray exponent = "e";
    reader.next();
    if (reader.peek() == u'+' || reader.peek() == u'-') {
        exponent += static_cast<char>(reader.peek());
        reader.next();
    }
    const qsizetype before = exponent.size();
    appendDigits(reader, exponent);
    if (exponent.size() > before)
        number += exponent;
}

} // namespace

double ValueOf(QStringView text) {
    NumberReader reader(text);
    if (reader.peek() == u'&')
        return prefixedNumber(reader);
    QByteArray number;
    if (reader.peek() == u'+' || reader.peek() == u'-') {
        number += static_cast<char>(reader.peek());
        reader.next();
    }
    const qsizetype sign = number.size();
    appendDigits(reader, number);
    qsizetype digits = number.size() - sign;
    if (reader.peek() == u'.') {
        number += '.';
        reader.next();
        const qsizetype before = number.size();
        appendDigits(reader, number);
        digits += number.size() - before;
    }
    if (digits == 0)
        return 0;
    appendExponent(reader, number);
    const char *const front = number.constData() + (number.startsWith('+') ? 1 : 0);
    double value = 0;
    const auto read = std::from_chars(front, number.constEnd(), value);
    // Beyond what a number can hold: infinite, or 0.
    return read.ec == std::errc::result_out_of_range ? QLocale::c().toDouble(QString::fromLatin1(number))
                                                     : value;
}

QString groupedNumber(qint64 number) {
    QString digits = QString::number(number < 0 ? -number : number);
    for (qsizetype at = digits.size() - 3; at > 0; at -= 3)
        digits.insert(at, u',');
    return number < 0 ? u'-' + digits : digits;
}

double roundHalfToEven(double value, int places) {
    // The shortest decimal form is what a user reads as the value: 0.125 is a half of the last place,
    // 0.1250001 isn't.
    const QString text = QString::number(value, 'f', QLocale::FloatingPointShortest);
    const qsizetype point = text.indexOf(u'.');
    if (point < 0 || text.size() - point - 1 <= places)
        return value;
    const QStringView rest = QStringView(text).sliced(point + 1 + places);
    const bool half =
        rest.front() == u'5' && std::all_of(rest.begin() + 1, rest.end(), [](QChar c) { return c == u'0'; });
    const double scale = std::pow(10.0, places);
    if (!half)
        return std::round(value * scale) / scale;
    const double below = std::floor(std::abs(value) * scale);
    const double even = std::fmod(below, 2.0) == 0.0 ? below : below + 1;
    return std::copysign(even / scale, value);
}

QString ToRoman(int number) {
    struct Step {
        int value;
        const char *numeral;
    };
    static constexpr std::array<Step, 13> steps = {{{1000, "M"},
                                                    {900, "CM"},
                                                    {500, "D"},
                                                    {400, "CD"},
                                                    {100, "C"},
                                                    {90, "XC"},
                                                    {50, "L"},
                                                    {40, "XL"},
                                                    {10, "X"},
                                                    {9, "IX"},
                                                    {5, "V"},
                                                    {4, "IV"},
                                                    {1, "I"}}};
    if (number < 1)
        return QStringLiteral("?");
    if (number >= 5000)
        return QStringLiteral("???");
    QString numeral;
    for (const Step &step : steps) {
        for (; number >= step.value; number -= step.value)
            numeral += QLatin1StringView(step.numeral);
    }
    return numeral;
}

QString ToLetters(int number) {
    QString letters;
    for (; number >= 0; number = number / 26 - 1)
        letters.prepend(QChar(static_cast<char16_t>(u'a' + number % 26)));
    return letters;
}

int RandomInRange(int low, int high) {
    const double r = QRandomGenerator::global()->generateDouble();
    return static_cast<int>(std::floor(r * (high - low + 1) + low));
}

QString numberText(double number) {
    return QString::number(number, 'g', 15);
}

} // namespace tolvo
