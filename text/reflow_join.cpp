// SPDX-License-Identifier: MIT
// The half of text/reflow.h that joins lines.
#include "text/lines.h"
#include "text/marked_lines.h"
#include "text/reflow.h"

#include <QSet>
#include <algorithm>

namespace tolvo {

namespace {

constexpr qsizetype widestLine = 200; // a longer one is no measure of the page

bool isHyphen(QChar c) {
    return c == u'-' || c == u'\u2010' || c == u'\u00AD';
}

bool endsInHyphen(QStringView line) {
    return line.size() > 1 && isHyphen(line.back()) && line[line.size() - 2].isLetter();
}

/// The letters at the front or at the end of a text, hyphens inside the word among them.
QStringView lettersAtFront(QStringView text) {
    qsizetype end = 0;
    while (end < text.size() && text[end].isLetter())
        ++end;
    return text.first(end);
}

QStringView lettersAtEnd(QStringView text) {
    qsizetype start = text.size();
    while (start > 0 && text[start - 1].isLetter())
        --start;
    return text.sliced(start);
}

/// A hyphen before one of these stands for a part that two words share: "in- and output".
bool isConjunction(const QString &word) {
    return QStringView(u" and or und oder bzw i lub et ou y o ").contains(QString(u' ' + word + u' '));
}

/// The words of a text in small letters, also those with a hyphen; parted ones at line ends are not among
/// them.
QSet<QString> wordsOf(const QList<MarkedLine> &lines) {
    QSet<QString> words;
    bool parted = false;
    for (const MarkedLine &line : lines) {
        const QStringView text = line.words;
        for (qsizetype at = 0; at < text.size();) {
            qsizetype end = at;
            while (end < text.size() && (text[end].isLetter() || (isHyphen(text[end]) && end > at)))
                ++end;
            const bool half = (parted && at == 0) || (end == text.size() && endsInHyphen(text));
            if (end > at && !half)
                words.insert(text.sliced(at, end - at).toString().toLower());
            at = std::max(end, at + 1);
        }
        parted = endsInHyphen(text);
    }
    return words;
}

/// How wide most lines of the text could be at least: nine of ten are no wider.
qsizetype usualWidth(const QList<MarkedLine> &lines) {
    QList<qsizetype> widths;
    for (const MarkedLine &line : lines) {
        const qsizetype width = columnsOf(line.mark()) + columnsOf(line.words);
        if (!line.isBlank() && width <= widestLine)
            widths += width;
    }
    if (widths.isEmpty())
        return 0;
    const auto place = widths.begin() + widths.size() * 9 / 10;
    std::nth_element(widths.begin(), place, widths.end());
    return *place;
}

/// "12", "- 12 -", "Page 3 of 10"
bool isPageNumber(QStringView words) {
    constexpr qsizetype longest = 24;
    if (words.size() > longest)
        return false;
    bool digits = false;
    QString letters;
    for (const QChar c : words) {
        digits = digits || c.isDigit();
        letters += c.isLetter() ? c.toLower() : QChar(u' ');
    }
    const QStringList names = letters.split(u' ', Qt::SkipEmptyParts);
    return digits && std::all_of(names.begin(), names.end(), [](const QString &name) {
               return QStringView(u" page p of seite von strona str z sur de página pág ")
                   .contains(QString(u' ' + name + u' '));
           });
}

class Joiner {
  public:
    Joiner(QStringView text, bool pdf) : m_pdf(pdf) {
        for (const QStringView line : splitLines(text)) {
            m_lines += markedLine(line);
            m_hard += line.endsWith(u"  ");
        }
        m_width = usualWidth(m_lines);
        if (pdf)
            m_words = wordsOf(m_lines);
        m_result.reserve(text.size());
    }

    QString join() {
        for (qsizetype i = 0; i < m_lines.size(); ++i) {
            const MarkedLine &line = m_lines.at(i);
            if (i > 0 && continues(i)) {
                append(m_lines.at(i - 1).words, line.words);
                continue;
            }
            if (i > 0)
                m_result += lineEnd;
            m_result += line.isBlank() ? line.mark().trimmed() : QString(line.mark() % line.words);
            m_first = i;
        }
        return m_result;
    }

  private:
    /// Whether a line carries on the one before.
    [[nodiscard]] bool continues(qsizetype at) const {
        const MarkedLine &first = m_lines.at(m_first);
        const MarkedLine &before = m_lines.at(at - 1);
        const MarkedLine &line = m_lines.at(at);
        if (before.isBlank() || line.isBlank() || !line.list.isEmpty() || (m_hard.at(at - 1) && !m_pdf) ||
            first.signs.trimmed() != line.signs.trimmed())
            return false;
        if (m_pdf && (isPageNumber(before.words) || isPageNumber(line.words)))
            return false;
        if (columnsOf(line.indent) > columnsOf(first.indent) + columnsOf(first.list))
            return false;
        return isFull(before, line.words);
    }

    /// The line ends only because the next word had no room on it.
    [[nodiscard]] bool isFull(const MarkedLine &line, QStringView next) const {
        constexpr qsizetype narrowestPage = 24;
        const qsizetype width = columnsOf(line.mark()) + columnsOf(line.words);
        if (m_width < narrowestPage || width > widestLine)
            return false;
        if (endsInHyphen(line.words))
            return true;
        const qsizetype blank = next.indexOf(u' ');
        const qsizetype word = beginsWide(next) ? 2 : columnsOf(blank < 0 ? next : next.first(blank));
        const bool sentence = QStringView(u".!?:").contains(line.words.back()) && !next.front().isLower();
        return (width + 1 + word) * 100 > m_width * (sentence ? 90 : 80);
    }

    void append(QStringView before, QStringView words) {
        const QString front = lettersAtFront(words).toString().toLower();
        const bool parted = endsInHyphen(before) && !isConjunction(front) && words.front().isLetterOrNumber();
        if (parted && m_pdf && words.front().isLower() && !keepsHyphen(before.chopped(1), front))
            m_result.chop(1);
        else if (!parted && !(endsWide(before) && beginsWide(words)))
            m_result += u' ';
        m_result += words;
    }

    /// Whether the halves of a word belong together with a hyphen.
    [[nodiscard]] bool keepsHyphen(QStringView before, const QString &back) const {
        const QString front = lettersAtEnd(before).toString().toLower();
        if (m_words.contains(front + u'-' + back))
            return true;
        return !m_words.contains(front + back) && m_words.contains(front) && m_words.contains(back);
    }

    bool m_pdf;
    QList<MarkedLine> m_lines;
    QList<bool> m_hard; ///< two blanks at the end: a break that is meant
    QSet<QString> m_words;
    qsizetype m_width = 0;
    qsizetype m_first = 0; ///< the line at which the paragraph begins
    QString m_result;
};

} // namespace

QString unwrappedParagraphs(QStringView text) {
    return Joiner(text, false).join();
}

QString joinedPdfLines(QStringView text) {
    return Joiner(text, true).join();
}

} // namespace tolvo
