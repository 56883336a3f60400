// SPDX-License-Identifier: MIT
#include "platform/desktop/PlainTextBox.h"

#include "platform/desktop/text_box_accessible.h"
#include "platform/text_positions.h"

#include <QScopedValueRollback>
#include <QTextBlock>

namespace tolvo {

namespace {

/// The search for a place to break takes time with the square of a run without blanks; runs above this length
/// are broken anywhere.
constexpr qsizetype longestUnbrokenRun = 2000;

/// Lines above this length keep their glyphs between two paints: making them takes longer than a frame.
constexpr qsizetype longestCheapLine = 2000;

constexpr int tabColumns = 8; // of the width of a blank

struct Extent {
    qsizetype longestRun = 0; ///< without a blank, in units
    qsizetype longestLine = 0;
};

Extent extentOf(QStringView text) {
    Extent extent;
    qsizetype run = 0;
    qsizetype line = 0;
    for (const QChar unit : text) {
        line = unit == u'\n' ? 0 : line + 1;
        run = unit == u' ' || unit == u'\t' || unit == u'\n' ? 0 : run + 1;
        extent.longestRun = std::max(extent.longestRun, run);
        extent.longestLine = std::max(extent.longestLine, line);
    }
    return extent;
}

} // namespace

PlainTextBox::PlainTextBox(Lines lines, QWidget *parent) : QPlainTextEdit(parent), m_lines(lines) {
    installTextBoxAccessible();
    setLineWrapMode(lines == Lines::Wrapped ? WidgetWidth : NoWrap);
    if (lines == Lines::Wrapped)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUndoRedoEnabled(false);
    m_textFont = font();
    chooseLayout({});
    placeTabStops();
    connect(document(), &QTextDocument::contentsChange, this, [this](int from, int, int added) {
        m_editStart = from;
        m_editEnd = from + added;
        m_editing = true;
    });
    connect(this, &QPlainTextEdit::selectionChanged, this, &PlainTextBox::noteSelection);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, &PlainTextBox::noteSelection);
    connect(this, &QPlainTextEdit::textChanged, this, &PlainTextBox::edited);
}

// Text and selection

void PlainTextBox::setText(const QString &text) {
    const QString kept = cutToRoom(text, m_capacity, 0).toString();
    if (kept == m_text) {
        setSelStart(0);
    } else {
        load(kept);
        if (rereadText())
            reportChange();
    }
    if (kept.size() < text.size())
        reportCut(text.size(), Writer::Code);
}

int PlainTextBox::SelStart() const {
    return toText(textCursor().selectionStart());
}

void PlainTextBox::setSelStart(int start) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(toDocument(snapBefore(m_text, start)));
    setTextCursor(cursor);
}

int PlainTextBox::SelLength() const {
    return toText(textCursor().selectionEnd()) - SelStart();
}

void PlainTextBox::setSelLength(int length) {
    QTextCursor cursor = textCursor();
    const qint64 end = static_cast<qint64>(SelStart()) + std::max(length, 0);
    cursor.setPosition(cursor.selectionStart());
    cursor.setPosition(toDocument(snapAfter(m_text, end)), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

QString PlainTextBox::SelText() const {
    return m_text.mid(SelStart(), SelLength());
}

void PlainTextBox::setSelText(const QString &text) {
    const QString inserted = fitting(text);
    const qint64 wanted = m_text.size() - SelLength() + text.size();
    const int start = SelStart();
    if (inserted != SelText()) {
        prepareFor(inserted);
        const QScopedValueRollback own(m_ownEdit, true);
        textCursor().insertText(m_standIns.encode(inserted));
        joinLineEnds();
    }
    const bool changed = rereadText();
    setSelStart(static_cast<int>(snapAfter(m_text, start + inserted.size())));
    if (changed)
        reportChange();
    if (inserted.size() < text.size())
        reportCut(wanted, Writer::Code);
}

// Positions: a line end is one unit in the document and two in the text.

int PlainTextBox::toText(int documentPosition) const {
    return documentPosition + document()->findBlock(documentPosition).blockNumber();
}

int PlainTextBox::toDocument(qint64 textPosition) const {
    int line = 0; // the last one that begins at or before the position
    for (int end = document()->blockCount(); end - line > 1;) {
        const int middle = line + (end - line) / 2;
        if (document()->findBlockByNumber(middle).position() + middle <= textPosition)
            line = middle;
        else
            end = middle;
    }
    return static_cast<int>(textPosition) - line;
}

void PlainTextBox::changeEvent(QEvent *event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        placeTabStops();
}

void PlainTextBox::placeTabStops() {
    setTabStopDistance(tabColumns * QFontMetricsF(font()).horizontalAdvance(u' '));
}

// The document

/// Makes sure that no character of a text to come is in use as a stand-in.
void PlainTextBox::prepareFor(const QString &inserted) {
    if (!m_standIns.clashWith(inserted))
        return;
    const int start = SelStart();
    const int selected = SelLength();
    const QScopedValueRollback own(m_ownEdit, true);
    m_standIns = StandIns(QString(m_text + inserted));
    setPlainText(m_standIns.encode(m_text));
    setSelStart(start);
    setSelLength(selected);
}

void PlainTextBox::load(const QString &text) {
    const QScopedValueRollback own(m_ownEdit, true);
    m_standIns = StandIns(text);
    chooseLayout(text);
    setPlainText(m_standIns.encode(text));
}

/// Records the selection before the next edit.
void PlainTextBox::noteSelection() {
    if (m_editing)
        return;
    m_userEdit.selStart = SelStart();
    m_userEdit.selLength = SelLength();
}

/// Runs after every edit; edits by this class report themselves.
void PlainTextBox::edited() {
    const bool own = m_ownEdit;
    UserEdit edit = m_userEdit;
    edit.before = m_text;
    if (!own) {
        cutToCapacity();
        joinLineEnds();
    }
    m_editing = false;
    noteSelection();
    if (own || !rereadText())
        return;
    if (onUserEdit)
        onUserEdit(edit);
    reportChange();
}

/// Some edits bypass the checks of this class (assistive technology, the menu of control characters): removes
/// what they insert above the capacity.
void PlainTextBox::cutToCapacity() {
    const auto excess = [this] { return document()->characterCount() - 1 + blockCount() - 1 - m_capacity; };
    if (excess() <= 0 || m_editEnd <= m_editStart)
        return;
    reportCutLater(m_capacity + excess());
    const QScopedValueRollback own(m_ownEdit, true);
    const int start = m_editStart; // moves with the edits below
    QTextCursor cursor(document());
    cursor.setPosition(std::min(m_editEnd, document()->characterCount() - 1));
    while (excess() > 0 && cursor.position() > start)
        cursor.deletePreviousChar();
}

/// Makes a CR and an LF that an edit has brought together a line end.
void PlainTextBox::joinLineEnds() {
    const QString loose = m_standIns.looseLineEnd();
    const QString raw = document()->toRawText();
    qsizetype at = raw.lastIndexOf(loose);
    if (at < 0)
        return;
    const QScopedValueRollback own(m_ownEdit, true);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    for (; at >= 0; at = at > 0 ? raw.lastIndexOf(loose, at - 1) : -1) {
        cursor.setPosition(static_cast<int>(at));
        cursor.setPosition(static_cast<int>(at) + 2, QTextCursor::KeepAnchor);
        cursor.insertBlock();
    }
    cursor.endEditBlock();
}

/// Reads the document's text; true if it has changed.
bool PlainTextBox::rereadText() {
    QString text = m_standIns.decode(document()->toRawText());
    if (text == m_text)
        return false;
    m_text = std::move(text);
    m_fullIsTold = false;
    const QScopedValueRollback own(m_ownEdit, true);
    chooseLayout(m_text);
    return true;
}

void PlainTextBox::reportChange() {
    if (onChange)
        onChange();
}

void PlainTextBox::chooseLayout(QStringView text) {
    const Extent extent = extentOf(text);
    const QTextOption::WrapMode mode = extent.longestRun > longestUnbrokenRun
                                           ? QTextOption::WrapAnywhere
                                           : QTextOption::WrapAtWordBoundaryOrAnywhere;
    if (wordWrapMode() != mode)
        setWordWrapMode(mode);
    if (extent.longestLine <= longestCheapLine)
        return;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block.length() > longestCheapLine)
            block.layout()->setCacheEnabled(true);
    }
}

} // namespace tolvo
