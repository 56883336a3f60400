// SPDX-License-Identifier: MIT
// The half of text/reflow.h that breaks lines.
#include "text/lines.h"
#include "text/marked_lines.h"
#include "text/reflow.h"

namespace tolvo {

namespace {

constexpr char16_t firstWide = 0x1100;

/// A closing sign of East Asia begins no line, an opening one ends none.
bool isClosing(QChar c) {
    return QStringView(u"、。，．・：；？！゛゜）］｝〕〉》」』】ーぁぃぅぇぉっゃゅょァィゥェォッャュョ々")
        .contains(c);
}

bool isOpening(QChar c) {
    return QStringView(u"（［｛〔〈《「『【").contains(c);
}

/// The length of the piece at the front of a word that no line may part: all of it, or up to a place between
/// wide characters.
qsizetype pieceLength(QStringView word) {
    qsizetype at = 0;
    while (at < word.size()) {
        const bool pair = word[at].isHighSurrogate() && at + 1 < word.size();
        const qsizetype size = pair ? 2 : 1;
        const bool wide = word[at].unicode() >= firstWide && beginsWide(word.sliced(at, size));
        const qsizetype next = at + size;
        const bool opening = isOpening(word[at]);
        at = next;
        if (at == word.size())
            break;
        const bool joined = isClosing(word[at]) || word[at].isMark() || word[at] == u'\u200D' ||
                            word[at] == u'\uFE0F' || word[at - 1] == u'\u200D';
        const bool wideNext = word[at].unicode() >= firstWide &&
                              beginsWide(word.sliced(at, qMin<qsizetype>(2, word.size() - at)));
        if ((wide || wideNext) && !opening && !joined)
            break;
    }
    return at;
}

void wrapLine(QStringView line, qsizetype width, QString &result) {
    const MarkedLine marked = markedLine(line);
    if (columnsOf(line) <= width || marked.isBlank()) {
        result += line;
        return;
    }
    const QString next = marked.nextMark();
    const qsizetype nextColumns = columnsOf(next);
    result += marked.mark();
    qsizetype column = columnsOf(marked.mark());
    bool empty = true;
    QStringView rest = marked.words;
    while (!rest.isEmpty()) {
        qsizetype blanks = 0;
        while (blanks < rest.size() && (rest[blanks] == u' ' || rest[blanks] == u'\t'))
            ++blanks;
        qsizetype end = blanks;
        while (end < rest.size() && rest[end] != u' ' && rest[end] != u'\t')
            ++end;
        QStringView word = rest.sliced(blanks, end - blanks);
        QStringView space = rest.first(blanks);
        rest = rest.sliced(end);
        while (!word.isEmpty()) {
            const QStringView piece = word.first(pieceLength(word));
            word = word.sliced(piece.size());
            const qsizetype columns = columnsOf(piece);
            if (!empty && column + columnsOf(space) + columns > width) {
                result += lineEnd % next;
                column = nextColumns;
                space = {};
            }
            result += space;
            result += piece;
            column += columnsOf(space) + columns;
            space = {};
            empty = false;
        }
    }
}

} // namespace

QString wrappedParagraphs(QStringView text, const ParagraphWrapSettings &settings) {
    const QString filled = settings.fill ? unwrappedParagraphs(text) : QString();
    return changeLines(settings.fill ? QStringView(filled) : text,
                       [&](QStringView line, QString &result) { wrapLine(line, settings.width, result); });
}

} // namespace tolvo
