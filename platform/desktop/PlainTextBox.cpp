// SPDX-License-Identifier: MIT
#include "platform/desktop/PlainTextBox.h"

#include "platform/text_positions.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextBlock>

namespace tolvo {

namespace {

/// Looking for a place to break at costs time with the square of a run without blanks; runs above this length
/// are broken anywhere.
constexpr qsizetype longestUnbrokenRun = 2000;

/// Lines above this length keep their glyphs between two paints: making them anew takes longer than a frame.
constexpr qsizetype longestCheapLine = 2000;

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

bool isLineEndKey(const QKeyEvent &event) {
    return event.matches(QKeySequence::InsertParagraphSeparator) ||
           event.matches(QKeySequence::InsertLineSeparator);
}

/// What a key would insert; empty for a key that inserts nothing. Ctrl and Alt together are AltGr.
QString typedText(const QKeyEvent &event) {
    if (isLineEndKey(event))
        return QStringLiteral("\r\n");
    const QString text = event.text();
    const Qt::KeyboardModifiers held = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (text.isEmpty() || held == Qt::ControlModifier)
        return {};
    const QChar first = text[0];
    const bool shows = first.isPrint() || first == u'\t' || first.isSurrogate() ||
                       first.category() == QChar::Other_Format || first.category() == QChar::Other_PrivateUse;
    return shows ? text : QString();
}

} // namespace

PlainTextBox::PlainTextBox(Lines lines, QWidget *parent) : QPlainTextEdit(parent), m_lines(lines) {
    setLineWrapMode(lines == Lines::Wrapped ? WidgetWidth : NoWrap);
    if (lines == Lines::Wrapped)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    chooseLayout({});
    connect(document(), &QTextDocument::contentsChange, this, [this](int from, int, int added) {
        m_editStart = from;
        m_editEnd = from + added;
    });
    connect(this, &QPlainTextEdit::textChanged, this, &PlainTextBox::edited);
}

// Text and selection

void PlainTextBox::setText(const QString &text) {
    const QString kept = text.left(m_capacity);
    if (kept == m_text) {
        setSelStart(0);
        return;
    }
    load(kept);
    if (rereadText())
        reportChange();
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
    cursor.setPosition(toDocument(snapBehind(m_text, end)), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

QString PlainTextBox::SelText() const {
    return m_text.mid(SelStart(), SelLength());
}

void PlainTextBox::setSelText(const QString &text) {
    const QString inserted = text.left(room());
    const int start = SelStart();
    if (inserted != SelText()) {
        prepareFor(inserted);
        editByCode([&] { textCursor().insertText(m_standIns.encode(inserted)); });
        joinLineEnds();
    }
    const bool changed = rereadText();
    setSelStart(static_cast<int>(snapBehind(m_text, start + inserted.size())));
    if (changed)
        reportChange();
}

bool PlainTextBox::hasTypingToTakeBack() const {
    return document()->isUndoAvailable();
}
bool PlainTextBox::hasTypingToRestore() const {
    return document()->isRedoAvailable();
}

// Positions: a line end is one unit in the document and two in the text.

int PlainTextBox::toText(int documentPosition) const {
    return documentPosition + document()->findBlock(documentPosition).blockNumber();
}

int PlainTextBox::toDocument(qint64 textPosition) const {
    int line = 0; // the last one that begins at or before the position
    for (int behind = document()->blockCount(); behind - line > 1;) {
        const int middle = line + (behind - line) / 2;
        if (document()->findBlockByNumber(middle).position() + middle <= textPosition)
            line = middle;
        else
            behind = middle;
    }
    return static_cast<int>(textPosition) - line;
}

// What the user types, pastes and drops

int PlainTextBox::room() const {
    return std::max(m_capacity - (length() - SelLength()), 0);
}

void PlainTextBox::keyPressEvent(QKeyEvent *event) {
    const QString typed = typedText(*event);
    if (typed.isEmpty() || isReadOnly()) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    if (typed.size() > room()) {
        event->accept();
        return;
    }
    prepareFor(typed);
    // Shift and Enter would insert a U+2028 where a line end is meant.
    const bool changedByDocument = !isLineEndKey(*event) && m_standIns.encode(typed) != typed;
    if (changedByDocument || event->matches(QKeySequence::InsertLineSeparator)) {
        insertAsTyped(typed);
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void PlainTextBox::inputMethodEvent(QInputMethodEvent *event) {
    const QString committed = event->commitString().left(room() + event->replacementLength());
    prepareFor(committed);
    QInputMethodEvent fitting(event->preeditString(), event->attributes());
    fitting.setCommitString(m_standIns.encode(committed), event->replacementStart(),
                            event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&fitting);
    event->setAccepted(fitting.isAccepted());
}

void PlainTextBox::insertFromMimeData(const QMimeData *source) {
    if (!isReadOnly() && source && source->hasText())
        insertAsTyped(ClipboardLineEnds::comeIn(source->text()));
}

QMimeData *PlainTextBox::createMimeDataFromSelection() const {
    auto *mime = new QMimeData;
    mime->setText(m_lineEnds ? m_lineEnds->goOut(SelText()) : ClipboardLineEnds().goOut(SelText()));
    return mime;
}

void PlainTextBox::insertAsTyped(const QString &text) {
    const QString fitting = text.left(room());
    prepareFor(fitting);
    QTextCursor cursor = textCursor();
    cursor.insertText(m_standIns.encode(fitting));
    setTextCursor(cursor);
    ensureCursorVisible();
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

/// The widget's own undo knows no text but the one that the user has typed into.
void PlainTextBox::editByCode(const std::function<void()> &edit) {
    const QScopedValueRollback own(m_ownEdit, true);
    setUndoRedoEnabled(false);
    edit();
    setUndoRedoEnabled(true);
}

/// After every edit that is not ours.
void PlainTextBox::edited() {
    if (m_ownEdit)
        return;
    cutToCapacity();
    joinLineEnds();
    if (rereadText())
        reportChange();
}

/// Ways in that pass no door of ours (assistive technology, the menu of control characters): what they put in
/// above the capacity goes again.
void PlainTextBox::cutToCapacity() {
    const auto excess = [this] { return document()->characterCount() - 1 + blockCount() - 1 - m_capacity; };
    if (excess() <= 0 || m_editEnd <= m_editStart)
        return;
    editByCode([&] {
        const int start = m_editStart; // moves with our own edits
        QTextCursor cursor(document());
        cursor.setPosition(std::min(m_editEnd, document()->characterCount() - 1));
        while (excess() > 0 && cursor.position() > start)
            cursor.deletePreviousChar();
    });
}

/// A CR and a LF that an edit has brought together are a line end like any other.
void PlainTextBox::joinLineEnds() {
    const QString loose = m_standIns.looseLineEnd();
    const QString raw = document()->toRawText();
    qsizetype at = raw.lastIndexOf(loose);
    if (at < 0)
        return;
    editByCode([&] {
        QTextCursor cursor(document());
        cursor.beginEditBlock();
        for (; at >= 0; at = at > 0 ? raw.lastIndexOf(loose, at - 1) : -1) {
            cursor.setPosition(static_cast<int>(at));
            cursor.setPosition(static_cast<int>(at) + 2, QTextCursor::KeepAnchor);
            cursor.insertBlock();
        }
        cursor.endEditBlock();
    });
}

/// Takes over the document's text; whether it has changed.
bool PlainTextBox::rereadText() {
    QString text = m_standIns.decode(document()->toRawText());
    if (text == m_text)
        return false;
    m_text = std::move(text);
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
