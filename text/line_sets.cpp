// SPDX-License-Identifier: MIT
#include "text/line_sets.h"

#include "base/case_folding.h"
#include "base/collation.h"
#include "text/lines.h"
#include "text/word_rules.h"

#include <QHash>
#include <QSet>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace tolvo {

namespace {

template <class Lines>
QString joinedLines(const Lines &lines) {
    QString result;
    for (qsizetype i = 0; i < std::ssize(lines); ++i) {
        if (i > 0)
            result += lineEnd;
        result += lines[i];
    }
    return result;
}

bool isBlank(QStringView line) {
    return trimWhiteSpace(line).isEmpty();
}

/// Counts texts in the order in which they come; they and what they count as must outlive it.
class Counts {
  public:
    void add(QStringView text) { add(text, text); }
    void add(QStringView text, QStringView countsAs) {
        const qsizetype place = m_places.value(countsAs, m_counts.size());
        if (place == m_counts.size()) {
            m_places.insert(countsAs, place);
            m_counts.append({0, text});
        }
        ++m_counts[place].number;
    }
    [[nodiscard]] QString asTable() {
        std::stable_sort(m_counts.begin(), m_counts.end(),
                         [](const Count &one, const Count &other) { return one.number > other.number; });
        QStringList rows;
        for (const Count &count : std::as_const(m_counts))
            rows += QString::number(count.number) + u'\t' + count.text.toString();
        return joinedLines(rows);
    }

  private:
    struct Count {
        int number;
        QStringView text;
    };
    QHash<QStringView, qsizetype> m_places;
    QList<Count> m_counts;
};

/// Before a name or a number.
bool isTitle(QStringView word) {
    static const WordList titles(QStringLiteral(",mr,mrs,ms,dr,prof,st,no,nr,fig,vs,cf,"));
    return titles.holds(word);
}

/// Whether the word before a place is an abbreviation, so that its full stop ends no sentence.
bool isAfterAbbreviation(QStringView text, qsizetype place) {
    constexpr qsizetype longest = 20; // abbreviations are short, and words may have no blank before them
    const QStringView before = rightTrimWhiteSpace(text.first(place));
    const QStringView tail = before.last(std::min(before.size(), longest));
    const QStringView word = tail.sliced(tail.lastIndexOf(u' ') + 1);
    if (!word.endsWith(u'.') || word.endsWith(u"..."))
        return false;
    return IsAbbreviation(word) || isTitle(word.chopped(1));
}

void addSentences(const QString &paragraph, QStringList &lines) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Sentence, paragraph);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        if (end < paragraph.size() && isAfterAbbreviation(paragraph, end))
            continue;
        const QStringView sentence = trimWhiteSpace(QStringView(paragraph).sliced(start, end - start));
        if (!sentence.isEmpty())
            lines += sentence.toString();
        start = end;
    }
}

} // namespace

QString withoutDuplicates(QStringView text) {
    QSet<QStringView> known;
    QList<QStringView> kept;
    forEachLine(text, [&](QStringView line, bool) {
        const qsizetype before = known.size();
        known.insert(line);
        if (known.size() > before)
            kept += line;
    });
    return joinedLines(kept);
}

QString naturallySorted(QStringView text) {
    return joinedLines(sortedByCollation(splitLines(text)));
}

QString shuffled(QStringView text, const std::function<quint32(quint32)> &below) {
    QList<QStringView> lines = splitLines(text);
    for (qsizetype i = lines.size(); i > 1; --i)
        lines.swapItemsAt(i - 1, below(static_cast<quint32>(i)));
    return joinedLines(lines);
}

QString countedLines(QStringView text) {
    Counts counts;
    forEachLine(text, [&](QStringView line, bool) {
        if (!isBlank(line))
            counts.add(line);
    });
    return counts.asTable();
}

QString countedWords(QStringView text) {
    Counts counts;
    const QString whole = text.toString().toLower();
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, whole);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        const QStringView word = QStringView(whole).sliced(start, end - start);
        if (std::any_of(word.begin(), word.end(), [](QChar c) { return c.isLetterOrNumber(); }))
            counts.add(word);
        start = end;
    }
    return counts.asTable();
}

QString countedTexts(const QStringList &texts, bool ignoresCase) {
    QStringList keys;
    for (const QString &text : texts)
        keys += ignoresCase ? caseFolded(text) : text;
    Counts counts;
    for (qsizetype i = 0; i < texts.size(); ++i)
        counts.add(texts.at(i), keys.at(i));
    return counts.asTable();
}

QString sentencesAsLines(QStringView text) {
    QStringList lines;
    QString paragraph;
    const auto end = [&] {
        addSentences(paragraph, lines);
        paragraph.clear();
    };
    forEachLine(text, [&](QStringView line, bool) {
        if (isBlank(line)) {
            end();
            lines += QString();
            return;
        }
        if (!paragraph.isEmpty())
            paragraph += u' ';
        paragraph += trimWhiteSpace(line);
    });
    end();
    return joinedLines(lines);
}

} // namespace tolvo
