// SPDX-License-Identifier: MIT
#include "platform/desktop/PlainTextBox.h"

#include "platform/text_positions.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
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

const QMimeData *mimeDataOf(QClipboard::Mode mode) {
    return QGuiApplication::clipboard()->mimeData(mode);
}

/// Whether what comes in is pasted, not dropped.
bool isPasted(const QMimeData *source) {
    return source == mimeDataOf(QClipboard::Clipboard) || source == mimeDataOf(QClipboard::Selection);
}

} // namespace

PlainTextBox::PlainTextBox(Lines lines, QWidget *parent) : QPlainTextEdit(parent), m_lines(lines) {
    setLineWrapMode(lines == Lines::Wrapped ? WidgetWidth : NoWrap);
    if (lines == Lines::Wrapped)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUndoRedoEnabled(false);
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
    cursor.setPosition(toDocument(snapBehind(m_text, end)), QTextCursor::KeepAnchor);
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
    setSelStart(static_cast<int>(snapBehind(m_text, start + inserted.size())));
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
    for (int behind = document()->blockCount(); behind - line > 1;) {
        const int middle = line + (behind - line) / 2;
        if (document()->findBlockByNumber(middle).position() + middle <= textPosition)
            line = middle;
        else
            behind = middle;
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

// What the user types, pastes and drops

QString PlainTextBox::fitting(const QString &text, int replaced) const {
    return cutToRoom(text, m_capacity, length() - SelLength() - replaced).toString();
}

/// What the user brings in, as far as there is room for it; the rest is reported once the event is over,
/// since a box in the middle of it would hold up who drops. Repeated keys into a full text are reported once.
QString PlainTextBox::fittingOfUser(const QString &text, int replaced, bool typed) {
    const QString kept = fitting(text, replaced);
    if (kept.size() == text.size() || (typed && m_fullIsTold))
        return kept;
    m_fullIsTold = true;
    reportCutLater(length() - SelLength() - replaced + text.size());
    return kept;
}

void PlainTextBox::reportCutLater(qint64 wanted) {
    QMetaObject::invokeMethod(
        this, [this, wanted] { reportCut(wanted, Writer::User); }, Qt::QueuedConnection);
}

void PlainTextBox::keyPressEvent(QKeyEvent *event) {
    const QScopedValueRollback inKey(m_inKey, true);
    const QString typed = typedText(*event);
    if (typed.isEmpty() || isReadOnly()) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    if (fittingOfUser(typed, 0, true) != typed) {
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
    const QString committed = fittingOfUser(event->commitString(), event->replacementLength(), true);
    prepareFor(committed);
    QInputMethodEvent fitting(event->preeditString(), event->attributes());
    fitting.setCommitString(m_standIns.encode(committed), event->replacementStart(),
                            event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&fitting);
    event->setAccepted(fitting.isAccepted());
}

/// What other programs own is not asked for what it is before it is pasted: its owner may hang.
bool PlainTextBox::canInsertFromMimeData(const QMimeData *source) const {
    return (readForPaste && isPasted(source)) || QPlainTextEdit::canInsertFromMimeData(source);
}

void PlainTextBox::insertFromMimeData(const QMimeData *source) {
    if (isReadOnly() || !source)
        return;
    if (readForPaste && isPasted(source)) {
        const bool selection = source == mimeDataOf(QClipboard::Selection);
        // Events go on while the clipboard is read: a menu that closes would be deleted under its own feet.
        if (m_inKey)
            pasteFromReader(selection);
        else
            QMetaObject::invokeMethod(
                this, [this, selection] { pasteFromReader(selection); }, Qt::QueuedConnection);
    } else if (source->hasText()) {
        const QScopedValueRollback atOnce(m_userEdit.atOnce, true);
        insertAsTyped(ClipboardLineEnds::comeIn(source->text()));
    }
}

void PlainTextBox::pasteFromReader(bool selection) {
    if (const auto text = readForPaste(selection)) {
        const QScopedValueRollback atOnce(m_userEdit.atOnce, true);
        insertAsTyped(*text);
    }
}

void PlainTextBox::dropEvent(QDropEvent *event) {
    const QScopedValueRollback atOnce(m_userEdit.atOnce, true);
    m_editing = true; // the caret moves to the place first
    QPlainTextEdit::dropEvent(event);
    m_editing = false;
    noteSelection();
}

std::unique_ptr<QMenu> PlainTextBox::contextMenu() {
    std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (const auto &name : {QStringLiteral("edit-undo"), QStringLiteral("edit-redo")})
        delete menu->findChild<QAction *>(name);
    menu->insertActions(menu->actions().value(0), m_undoActions);
    return menu;
}

void PlainTextBox::contextMenuEvent(QContextMenuEvent *event) {
    QMenu *menu = contextMenu().release();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

QMimeData *PlainTextBox::createMimeDataFromSelection() const {
    auto *mime = new QMimeData;
    mime->setText(m_lineEnds ? m_lineEnds->goOut(SelText()) : ClipboardLineEnds().goOut(SelText()));
    return mime;
}

void PlainTextBox::insertAsTyped(const QString &text) {
    const QString inserted = fittingOfUser(text, 0, false);
    prepareFor(inserted);
    QTextCursor cursor = textCursor();
    cursor.insertText(m_standIns.encode(inserted));
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

/// The selection in front of the next edit.
void PlainTextBox::noteSelection() {
    if (m_editing)
        return;
    m_userEdit.selStart = SelStart();
    m_userEdit.selLength = SelLength();
}

/// After every edit; those of our own report themselves.
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

/// Ways in that pass no door of ours (assistive technology, the menu of control characters): what they put in
/// above the capacity goes again.
void PlainTextBox::cutToCapacity() {
    const auto excess = [this] { return document()->characterCount() - 1 + blockCount() - 1 - m_capacity; };
    if (excess() <= 0 || m_editEnd <= m_editStart)
        return;
    reportCutLater(m_capacity + excess());
    const QScopedValueRollback own(m_ownEdit, true);
    const int start = m_editStart; // moves with our own edits
    QTextCursor cursor(document());
    cursor.setPosition(std::min(m_editEnd, document()->characterCount() - 1));
    while (excess() > 0 && cursor.position() > start)
        cursor.deletePreviousChar();
}

/// A CR and a LF that an edit has brought together are a line end like any other.
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

/// Takes over the document's text; whether it has changed.
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
