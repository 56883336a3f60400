// SPDX-License-Identifier: MIT
// Word wrap with hard line ends.
#include "base/numbers.h"
#include "base/strings.h"
#include "text/cTextMethods.h"
#include "text/lines.h"

#include <vector>

namespace tolvo {

namespace {

constexpr qsizetype tabStop = 8;

/// While justifying, marks the end of a line that ended in a line end of the text: it stays ragged.
constexpr QChar raggedMark(u'\0');

qsizetype toNextStop(qsizetype column) {
    return (column / tabStop + 1) * tabStop - column;
}

/// The smaller of two positions, -1 for not found. It is not symmetric: if only the first is not found, the
/// result is -1. So everything after the text's last blank comes through as one word, line ends included.
qsizetype FirstOf(qsizetype a, qsizetype b) {
    return b < 0 ? a : std::min(a, b);
}

/// The next occurrence of a needle, searched for again only after it has been passed.
class NextOf {
  public:
    NextOf(QStringView text, QStringView needle) : m_text(text), m_needle(needle) {}
    [[nodiscard]] qsizetype from(qsizetype position) {
        if (m_found >= 0 && m_found < position)
            m_found = m_text.indexOf(m_needle, position);
        return m_found;
    }

  private:
    QStringView m_text;
    QStringView m_needle;
    qsizetype m_found = m_text.indexOf(m_needle);
};

/// The output so far, and the column of its last line.
class WrappedText {
  public:
    WrappedText(qsizetype pageWidth, bool hanging, bool tab, qsizetype expectedSize)
        : m_pageWidth(pageWidth), m_hangingIndent(tab ? QStringLiteral("\t") : QString(tabStop, u' ')),
          m_hanging(hanging) {
        m_text.reserve(expectedSize);
    }

    void procOutput(QStringView word) {
        const bool isTab = word == u"\t";
        const qsizetype length = isTab ? toNextStop(m_column) : word.size();
        // The blank that may have to precede the word counts too.
        if (m_column + length + 1 <= m_pageWidth) {
            if (m_column > 0 && !isTab && !m_text.endsWith(u'\t')) {
                m_text += u' ';
                ++m_column;
            }
            m_text += word;
            m_column += length;
            return;
        }
        m_text += lineEnd;
        if (m_hanging)
            m_text += m_hangingIndent;
        m_column = m_hanging ? tabStop : 0;
        m_text += word;
        m_column += word.size();
    }

    void endLine(bool ragged) {
        if (ragged)
            m_text += raggedMark;
        m_text += lineEnd;
        m_column = 0;
    }

    [[nodiscard]] QString take() { return std::move(m_text); }

  private:
    qsizetype m_pageWidth;
    QString m_hangingIndent;
    bool m_hanging;
    QString m_text;
    qsizetype m_column = 0;
};

/// The width of the page after this indentation.
qsizetype widthAfter(QStringView indentation, qsizetype pageWidth) {
    qsizetype width = pageWidth - indentation.size();
    for (qsizetype i = 0; i < indentation.size(); ++i) {
        if (indentation.at(i) == u'\t')
            width -= toNextStop(i + 1);
    }
    return width;
}

/// Spreads the line over the page: each gap gets the same number of blanks, and some, at random, one more.
void JustifyLine(QString &result, QStringView line, qsizetype pageWidth) {
    const qsizetype lastTab = line.lastIndexOf(u'\t');
    const QStringView body = lastTab < 0 ? leftTrimWhiteSpace(line) : line.sliced(lastTab + 1);
    const QStringView indentation = line.first(line.size() - body.size());
    const qsizetype extra = widthAfter(indentation, pageWidth) - body.size();
    const qsizetype gaps = body.count(u' ');
    if (extra < 1 || gaps < 1) {
        result += line;
        return;
    }
    std::vector<bool> widened(static_cast<std::size_t>(gaps), false);
    for (qsizetype leftover = extra % gaps; leftover > 0;) {
        const auto gap = static_cast<std::size_t>(RandomInRange(0, static_cast<int>(gaps) - 1));
        if (!widened[gap])
            --leftover;
        widened[gap] = true;
    }
    result += indentation;
    std::size_t gap = 0;
    for (const QChar unit : body) {
        result += unit;
        if (unit == u' ')
            result.resize(result.size() + extra / gaps + (widened[gap++] ? 1 : 0), u' ');
    }
}

QString justified(QStringView text, qsizetype pageWidth) {
    QString result;
    result.reserve(text.size() * 2);
    forEachLine(text, [&](QStringView line, bool isLast) {
        if (line.endsWith(raggedMark))
            result += line.chopped(1);
        else if (isLast)
            result += line;
        else
            JustifyLine(result, line, pageWidth);
        if (!isLast)
            result += lineEnd;
    });
    return result;
}

} // namespace

QString cTextMethods::WordWrap(QStringView text, int pageWidth, bool hanging, bool tab, bool justify) const {
    WrappedText output(pageWidth, hanging, tab, text.size() + text.size() / 8);
    NextOf blank(text, u" ");
    NextOf endOfLine(text, lineEnd);
    NextOf tabulator(text, u"\t");
    qsizetype position = 0;
    for (;;) {
        const qsizetype next =
            FirstOf(FirstOf(blank.from(position), endOfLine.from(position)), tabulator.from(position));
        if (next < 0)
            break;
        output.procOutput(text.sliced(position, next - position));
        if (text.at(next) == u'\t')
            output.procOutput(u"\t");
        position = next + 1;
        if (text.sliced(next).startsWith(lineEnd)) {
            output.endLine(justify);
            position = next + 2;
        }
    }
    if (position < text.size())
        output.procOutput(text.sliced(position));
    const QString wrapped = output.take();
    return justify ? justified(wrapped, pageWidth) : wrapped;
}

} // namespace tolvo
