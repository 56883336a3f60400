// SPDX-License-Identifier: MIT
#include "text/statistics.h"

#include "base/character_sets.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "text/Tokens.h"
#include "text/cTextMethods.h"

#include <algorithm>

namespace tolvo {

namespace {

struct Measures {
    qint64 bytes = 0;
    qint64 characters = 0;
    qint64 printable = 0;
    qint64 words = 0;
    qint64 lines = 0;
    qint64 paragraphs = 0;
    qint64 sentences = 0;

    [[nodiscard]] QString averageSentence() const {
        const double average =
            sentences > 0 ? static_cast<double>(words) / static_cast<double>(sentences) : 0.0;
        return numberText(roundHalfToEven(average, 2)) + QStringLiteral(" words");
    }
};

/// A letter starts a word; letters, apostrophes and hyphens continue it.
qint64 countWords(QStringView text) {
    qint64 count = 0;
    bool inWord = false;
    for (const QChar c : text) {
        const bool letter = isLetterUnit(c.unicode());
        count += letter && !inWord ? 1 : 0;
        inWord = letter || (inWord && (c == u'\'' || c == u'-'));
    }
    return count;
}

/// Counts each run of sentence ends once. A stop inside an address doesn't count, one after an abbreviation
/// does.
qint64 CountSentences(QStringView text, const AddressRules &addresses) {
    Tokens tokens(text, addresses);
    qint64 count = 0;
    for (qsizetype i = 1; i <= text.size(); ++i) {
        const int c = unitAt(text, i);
        if (!isOneOf(sentenceEnds, c))
            continue;
        ++count;
        if (c == u'.' && tokens.isWebOrFileName(i)) {
            while (i <= text.size() && !isOneOf(u" \r\n", unitAt(text, i)))
                ++i;
            if (!isOneOf(sentenceEnds, unitAt(text, i - 1)))
                --count;
        }
        while (i < text.size() &&
               (isOneOf(sWhiteSpace, unitAt(text, i)) || isOneOf(sentenceEnds, unitAt(text, i))))
            ++i;
        // The character after such a run is skipped, whatever it is.
    }
    return count;
}

Measures measure(QStringView text, bool isSelection, const AddressRules &addresses) {
    Measures result;
    result.bytes = 2 * text.size();
    for (const QChar c : text) {
        // The selection's count includes its CRs, the full text's doesn't.
        result.characters += c == u'\n' || (c == u'\r' && !isSelection) ? 0 : 1;
        result.printable += isWhiteSpace(c.unicode()) ? 0 : 1;
    }
    result.words = countWords(text);
    forEachLine(text, [&result](QStringView line, bool) {
        ++result.lines;
        result.paragraphs += leftTrimWhiteSpace(line).isEmpty() ? 0 : 1;
    });
    result.sentences = CountSentences(text, addresses);
    return result;
}

} // namespace

TextStatistics cTextMethods::statistics(QStringView fullText, QStringView selection) const {
    const Measures full = measure(fullText, false, m_addresses);
    const Measures part = measure(selection, true, m_addresses);
    TextStatistics result;
    result.hasSelection = !selection.isEmpty();
    const auto addRow = [&](const QString &name, qint64 Measures::*value, bool bold) {
        result.rows.append({name, QString::number(full.*value), QString::number(part.*value), bold});
    };
    addRow(QStringLiteral("Bytes"), &Measures::bytes, false);
    addRow(QStringLiteral("Characters"), &Measures::characters, true);
    addRow(QStringLiteral("Printable Characters"), &Measures::printable, false);
    addRow(QStringLiteral("Words"), &Measures::words, true);
    addRow(QStringLiteral("Total lines"), &Measures::lines, false);
    addRow(QStringLiteral("Paragraphs"), &Measures::paragraphs, true);
    addRow(QStringLiteral("Sentences"), &Measures::sentences, false);
    result.rows.append(
        {QStringLiteral("Avg Sentence Length"), full.averageSentence(), part.averageSentence()});
    return result;
}

} // namespace tolvo
