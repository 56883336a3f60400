// SPDX-License-Identifier: MIT
#include "shell/trouble_rules.h"

#include "base/strings.h"
#include "shell/line_matches.h"

#include <algorithm>

namespace tolvo {

namespace {

using Places = QList<LinePart>;

bool isBlank(QStringView line) {
    return trimWhiteSpace(line).isEmpty();
}

LinePart part(qsizetype line, qsizetype column, qsizetype length) {
    return {static_cast<int>(line), static_cast<int>(column), static_cast<int>(length)};
}

Places atLeast(qsizetype count, const Places &places) {
    return places.size() >= count ? places : Places();
}

/// The places of all that `matches` finds in the lines.
template <class Matches>
Places inLines(const TextLines &text, Matches matches) {
    Places places;
    for (qsizetype i = 0; i < text.lines.size(); ++i) {
        for (const LineMatch &match : matches(text.lines[i]))
            places += part(i, match.column, match.length);
    }
    return places;
}

Places anywhere(const TextLines &text, QStringView characters) {
    return inLines(text, [=](QStringView line) { return anyOf(line, characters); });
}

/// The numbers at the front of lines, where most go on counting from the one before.
Places countedMarks(const TextLines &text, qsizetype mostDigits, QStringView signs, qsizetype least) {
    const auto marks = [=](QStringView line) { return leadingNumber(line, mostDigits, signs); };
    const Places places = atLeast(least, inLines(text, marks));
    qsizetype steps = 0;
    for (qsizetype i = 1; i < places.size(); ++i) {
        const auto number = [&](const LinePart &place) {
            const QStringView mark = text.lines[place.line].sliced(place.column, place.length);
            return mark.first(countFrom(mark, 0, isAsciiDigit)).toInt();
        };
        steps += number(places[i]) == number(places[i - 1]) + 1 ? 1 : 0;
    }
    constexpr qsizetype most = 4; // fifths
    return steps * 5 >= (places.size() - 1) * most ? places : Places();
}

/// A line that goes on in the next one, for no reason but its width.
bool goesOn(QStringView line, QStringView next, qsizetype longest) {
    constexpr qsizetype shortest = 30;
    constexpr qsizetype fewestBlanks = 3; // prose, no list of names
    constexpr QStringView ends = u".!?:;|>";
    const QStringView trimmed = rightTrimWhiteSpace(line);
    return trimmed.size() >= shortest && trimmed.size() * 5 >= longest * 3 && next.size() > 1 &&
           next.front().isLetter() && !ends.contains(trimmed.back()) && trimmed.front().isLetterOrNumber() &&
           std::count(trimmed.begin(), trimmed.end(), u' ') >= fewestBlanks;
}

} // namespace

TextLines::TextLines(QStringView text) : lines(splitLines(text)) {
    int indented = 0;
    int statements = 0;
    for (const QStringView line : lines) {
        const QStringView trimmed = rightTrimWhiteSpace(line);
        if (trimmed.isEmpty())
            continue;
        ++filled;
        indented += trimmed.startsWith(u"  ") || trimmed.startsWith(u'\t') ? 1 : 0;
        statements += QStringView(u";{}").contains(trimmed.back()) ? 1 : 0;
    }
    // Prose has first lines that are indented, and a semicolon at a line end by chance.
    isListing = filled >= 4 && (indented * 5 >= filled * 2 || statements * 4 >= filled);
}

Places mailQuotes(const TextLines &text) {
    const Places places = atLeast(2, inLines(text, quoteMarks));
    return places.size() * 10 >= text.filled ? places : Places();
}

/// Lines of similar lengths that end within a sentence, most of whose next lines begin in small letters.
Places wrappedLines(const TextLines &text) {
    constexpr qsizetype least = 3;
    constexpr qsizetype widest = 120; // longer ones are paragraphs in one line
    qsizetype longest = 0;
    for (const QStringView line : text.lines)
        longest = std::max(longest, rightTrimWhiteSpace(line).size());
    if (text.isListing || longest > widest)
        return {};
    Places places;
    qsizetype pairs = 0;
    qsizetype smallLetters = 0;
    for (qsizetype i = 0; i + 1 < text.lines.size(); ++i) {
        const QStringView line = rightTrimWhiteSpace(text.lines[i]);
        const QStringView next = text.lines[i + 1];
        if (isBlank(line) || isBlank(next))
            continue;
        ++pairs;
        if (!goesOn(line, next, longest))
            continue;
        smallLetters += next.front().isUpper() ? 0 : 1;
        const qsizetype word = line.lastIndexOf(u' ') + 1;
        places += part(i, word, line.size() - word);
    }
    const bool most = places.size() * 2 >= pairs && smallLetters * 2 >= places.size();
    return most ? atLeast(least, places) : Places();
}

Places lineNumbers(const TextLines &text) {
    constexpr qsizetype least = 4;
    constexpr qsizetype mostDigits = 6;
    const Places places = countedMarks(text, mostDigits, {}, least);
    return places.size() * 5 >= qsizetype{text.filled} * 4 ? places : Places();
}

/// One is enough: it is nothing that anybody writes, but in the source of a web page.
Places htmlCodes(const TextLines &text) {
    if (std::any_of(text.lines.begin(), text.lines.end(), hasClosingTag))
        return {};
    return inLines(text, characterReferences);
}

/// Addresses in a text work as they are; one that was copied alone is to be read.
Places addressCodes(const TextLines &text) {
    if (text.filled != 1 || trimWhiteSpace(text.lines.front()).contains(u' '))
        return {};
    return atLeast(2, inLines(text, percentCodes));
}

Places allCapitals(const TextLines &text) {
    constexpr qsizetype fewestLetters = 30;
    constexpr qsizetype fewestWords = 5;
    qsizetype letters = 0;
    qsizetype capitals = 0;
    qsizetype words = 0;
    Places places;
    for (qsizetype i = 0; i < text.lines.size(); ++i) {
        const QStringView line = text.lines[i];
        letters +=
            std::count_if(line.begin(), line.end(), [](QChar c) { return c.isUpper() || c.isLower(); });
        capitals += std::count_if(line.begin(), line.end(), [](QChar c) { return c.isUpper(); });
        words += std::count(line.begin(), line.end(), u' ') + 1;
        if (!isBlank(line))
            places += part(i, 0, line.size());
    }
    const bool most = capitals * 10 >= letters * 9;
    return letters >= fewestLetters && words >= fewestWords && most ? places : Places();
}

Places mixedLineEnds(const TextLines &text) {
    return anywhere(text, u"\r\n");
}

Places doubleBlanks(const TextLines &text) {
    if (text.isListing)
        return {};
    Places places = inLines(text, innerBlanks);
    const qsizetype all = places.size();
    places.removeIf([](const LinePart &place) { return place.length > 2; });
    const bool columns = all > 2 * places.size();
    return columns ? Places() : atLeast(2, places);
}

/// The lines that a run of blank ones could do without; one run of two may be meant.
Places blankLines(const TextLines &text) {
    Places places;
    bool begun = false; // blank lines before the text are no gap
    for (qsizetype i = 0; i < text.lines.size(); ++i) {
        const bool blank = isBlank(text.lines[i]);
        begun = begun || !blank;
        if (begun && blank && i > 0 && isBlank(text.lines[i - 1]))
            places += part(i, 0, text.lines[i].size());
    }
    return atLeast(2, places);
}

Places listNumbers(const TextLines &text) {
    constexpr qsizetype least = 3;
    constexpr qsizetype mostDigits = 3;
    return countedMarks(text, mostDigits, u".)", least);
}

/// Those that another program has written: a minus sign or an asterisk may be the user's own.
Places bullets(const TextLines &text) {
    constexpr qsizetype least = 3;
    return atLeast(least, inLines(text, [](QStringView line) { return leadingSign(line, u"\u2022\u00B7"); }));
}

Places trailingBlanks(const TextLines &text) {
    return atLeast(2, inLines(text, blanksAtEnd));
}

Places curlyQuotes(const TextLines &text) {
    return atLeast(2, anywhere(text, u"\u2018\u2019\u201A\u201C\u201D\u201E"));
}

} // namespace tolvo
