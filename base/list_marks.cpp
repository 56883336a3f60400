// SPDX-License-Identifier: MIT
#include "base/list_marks.h"

#include "base/character_sets.h"
#include "base/code_page.h"
#include "base/numbers.h"

#include <array>
#include <cmath>

namespace tolvo {

namespace {

/// The index from 0 of the first unit from `from` on that is not in `set`, at most `limit`.
qsizetype scan(QStringView line, QStringView set, qsizetype from, qsizetype limit) {
    while (from < limit && contains(set, line.at(from).unicode()))
        ++from;
    return from;
}

/// Eats one decimal place of a numeral: `nine` or `four`, else an optional `five` and up to three times
/// `one`.
void eatRomanPlace(QStringView &rest, QStringView nine, QStringView four, QStringView five, QStringView one) {
    const auto eat = [&rest](QStringView part) {
        if (!rest.startsWith(part))
            return false;
        rest = rest.sliced(part.size());
        return true;
    };
    if (eat(nine) || eat(four))
        return;
    eat(five);
    for (int i = 0; i < 3 && eat(one); ++i) {
    }
}

} // namespace

std::optional<ListMark> ParseDecimalMark(QStringView line) {
    const bool bracket = line.startsWith(u'(');
    const qsizetype start = bracket ? 1 : 0;
    qsizetype at = scan(line, u"0123456789.", start, line.size() - 1);
    if (at <= start || at >= line.size())
        return std::nullopt;
    QStringView number = line.sliced(start, at - start);
    if (number.endsWith(u'.')) {
        number.chop(1);
        --at;
    }
    const char16_t end = line.at(at).unicode();
    if (!contains(u" .)\t", end) || (bracket && end != u')'))
        return std::nullopt;
    const int tenths = end == u' ' ? 3 : 5;
    const double fifties = std::floor(ValueOf(number) / 50);
    return ListMark{number.toString(), at + 1, tenths - static_cast<int>(std::min(fifties, 1e6))};
}

std::optional<ListMark> ParseRomanMark(QStringView line) {
    const bool bracket = line.startsWith(u'(');
    const qsizetype start = bracket ? 1 : 0;
    const qsizetype at = scan(line, u"ivxlcdmIVXLCDM", start, line.size());
    if (at <= start || at >= line.size())
        return std::nullopt;
    const char16_t end = line.at(at).unicode();
    if (!contains(u".)\t", end) || (bracket && end != u')'))
        return std::nullopt;
    const QString number = toLower(line.sliced(start, at - start));
    if (!IsRomanNumeral(number))
        return std::nullopt;
    // These are also words or common abbreviations.
    static constexpr std::array<QStringView, 6> words = {u"i", u"mix", u"cd", u"dc", u"dx", u"iv"};
    const bool word = std::find(words.begin(), words.end(), QStringView(number)) != words.end();
    return ListMark{number, at + 1, (bracket ? 9 : 7) - (word ? 4 : 0)};
}

bool IsRomanNumeral(QStringView text) {
    const QString upper = toUpper(text);
    QStringView rest(upper);
    for (int i = 0; i < 3 && rest.startsWith(u'M'); ++i)
        rest = rest.sliced(1);
    eatRomanPlace(rest, u"CM", u"CD", u"D", u"C");
    eatRomanPlace(rest, u"XC", u"XL", u"L", u"X");
    eatRomanPlace(rest, u"IX", u"IV", u"V", u"I");
    return rest.isEmpty();
}

} // namespace tolvo
