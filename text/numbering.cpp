// SPDX-License-Identifier: MIT
#include "text/numbering.h"

#include "base/code_page.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "text/cTextMethods.h"
#include "text/lines.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace tolvo {

namespace {

QString blanks(qsizetype count) {
    return QString(count, u' ');
}

int padWidth(int spaces) {
    return std::clamp(spaces, 1, mostSpaces);
}

QString numberInStyle(qint64 number, ListStyle style) {
    const int small = static_cast<int>(std::clamp<qint64>(number, 0, std::numeric_limits<int>::max()));
    switch (style) {
    case ListStyle::LowerLetters:
        return ToLetters(std::max(small, 1) - 1);
    case ListStyle::UpperLetters:
        return toUpper(ToLetters(std::max(small, 1) - 1));
    case ListStyle::LowerRoman:
        return toLower(ToRoman(small));
    case ListStyle::UpperRoman:
        return ToRoman(small);
    default:
        return QString::number(number);
    }
}

/// The level of a line in an outline, from 0: one for each group of `spaces` blanks (unless only TABs count),
/// then one for each TAB.
qsizetype ListLevel(QStringView line, bool tab, int spaces) {
    qsizetype level = 0;
    if (!tab) {
        const auto startsWithBlanks = [spaces](QStringView rest) {
            return rest.size() >= spaces && leftTrimBlanks(rest.first(spaces)).isEmpty();
        };
        for (; startsWithBlanks(line); ++level)
            line = line.sliced(spaces);
    }
    for (; line.startsWith(u'\t'); ++level)
        line = line.sliced(1);
    return level;
}

/// The counters of an outline: going deeper restarts the count, skipped levels hold 0.
class Outline {
  public:
    explicit Outline(qint64 firstNumber) { m_counters.push_back(firstNumber - 1); }

    void count(qsizetype level) {
        m_counters.resize(static_cast<std::size_t>(level) + 1, 0);
        ++m_counters.back();
    }
    [[nodiscard]] qsizetype depth() const { return static_cast<qsizetype>(m_counters.size()) - 1; }
    [[nodiscard]] QString mark() const {
        QString mark;
        for (const qint64 counter : m_counters)
            mark += QString::number(counter) + u'.';
        return mark;
    }

  private:
    std::vector<qint64> m_counters;
};

QString outlineNumbered(QStringView text, int firstNumber, bool tab, int spaces) {
    spaces = padWidth(spaces);
    Outline outline(firstNumber);
    return changeLines(text, [&](QStringView line, QString &result) {
        if (trimBlanks(line).isEmpty()) {
            result += line;
            return;
        }
        outline.count(ListLevel(line, tab, spaces));
        if (tab)
            result += QString(outline.depth(), u'\t') + outline.mark() + u'\t';
        else
            result += blanks(spaces * outline.depth()) + outline.mark().leftJustified(spaces, u' ', true);
        result += trimWhiteSpace(line);
    });
}

} // namespace

QString numlistFormatNumber(qint64 number, ListStyle style, FollowChar followChar, bool tab, int spaces) {
    const FollowCharacters &around = followCharacters[static_cast<std::size_t>(followChar)];
    const QString mark = around.before.toString() + numberInStyle(number, style) + around.after.toString();
    return tab ? mark + u'\t' : mark.leftJustified(padWidth(spaces), u' ', true);
}

QString cTextMethods::number(QStringView text, int firstNumber, ListStyle style, FollowChar followChar,
                             bool tab, int spaces) const {
    if (style == ListStyle::Outline)
        return outlineNumbered(text, firstNumber, tab, spaces);
    const QString continuation = tab ? QStringLiteral("\t") : blanks(padWidth(spaces));
    qint64 counter = qint64{firstNumber} - 1;
    return changeLines(text, [&](QStringView line, QString &result) {
        if (!trimBlanks(line).isEmpty()) {
            const bool indented = line.front() == u'\t' || line.front() == u' ';
            result +=
                indented ? continuation : numlistFormatNumber(++counter, style, followChar, tab, spaces);
        }
        result += line;
    });
}

QString cTextMethods::LineNumber(QStringView text, int start, int step, int every, bool numberBlankLines,
                                 bool pad, bool rangeRight) const {
    step = std::max(step, 1);
    every = std::max(every, 1);
    const qint64 lastIndex = text.count(lineEnd);
    const qsizetype width = QString::number(lastIndex * step + start).size();
    qint64 number = start;
    qint64 count = 1;
    return changeLines(text, [&](QStringView line, QString &result) {
        if (numberBlankLines || !leftTrimWhiteSpace(line).isEmpty()) {
            QString digits = QString::number(number);
            if (pad && rangeRight)
                digits = digits.rightJustified(width).last(width);
            else if (pad)
                digits = digits.leftJustified(width, u' ', true);
            // A hidden number leaves blanks in its place.
            result += count % every == 0 ? digits : blanks(digits.size());
            result += u' ';
            number += step;
            ++count;
        }
        result += line;
    });
}

} // namespace tolvo
