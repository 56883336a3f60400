// SPDX-License-Identifier: MIT
// What the user types, pastes and drops into the text box.
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
#include <QUrl>

namespace tolvo {

namespace {

bool isLineEndKey(const QKeyEvent &event) {
    return event.matches(QKeySequence::InsertParagraphSeparator) ||
           event.matches(QKeySequence::InsertLineSeparator);
}

/// The text that a key inserts; empty for a key that inserts nothing. Ctrl with Alt counts as AltGr.
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

/// Whether a text is pasted, not dropped.
bool isPasted(const QMimeData *source) {
    return source == mimeDataOf(QClipboard::Clipboard) || source == mimeDataOf(QClipboard::Selection);
}

QStringList localFiles(const QMimeData &data) {
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            paths += url.toLocalFile();
    }
    return paths;
}

} // namespace

QString PlainTextBox::fitting(const QString &text, int replaced) const {
    return cutToRoom(text, m_capacity, length() - SelLength() - replaced).toString();
}

/// The part of a text from the user that fits in. A cut is reported after the event, since a message box
/// within it would block the program that drops. Repeated keys into a full text are reported once.
QString PlainTextBox::fittingOfUser(const QString &text, int replaced, bool typed) {
    QString kept = fitting(text, replaced);
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
    // Shift-Enter would insert U+2028; the user means a line end.
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

/// Another program's text is not inspected before it is pasted: its owner may hang.
bool PlainTextBox::canInsertFromMimeData(const QMimeData *source) const {
    return (readForPaste && isPasted(source)) || QPlainTextEdit::canInsertFromMimeData(source);
}

void PlainTextBox::insertFromMimeData(const QMimeData *source) {
    if (isReadOnly() || !source)
        return;
    if (readForPaste && isPasted(source)) {
        const bool selection = source == mimeDataOf(QClipboard::Selection);
        // Events are handled while the clipboard is read: a menu that closes would be deleted while in use.
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
    if (const QStringList paths = localFiles(*event->mimeData()); onFilesDropped && !paths.isEmpty()) {
        QDragLeaveEvent left; // takes the mark of the place away
        QPlainTextEdit::dragLeaveEvent(&left);
        event->setDropAction(Qt::CopyAction); // the file stays where it is
        event->accept();
        QMetaObject::invokeMethod(
            this, [this, paths] { onFilesDropped(paths); }, Qt::QueuedConnection);
        return;
    }
    const QScopedValueRollback atOnce(m_userEdit.atOnce, true);
    m_editing = true; // the caret moves to the place of the drop first
    QPlainTextEdit::dropEvent(event);
    m_editing = false;
    noteSelection();
}

std::unique_ptr<QMenu> PlainTextBox::contextMenu() {
    std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (const auto &name : {QStringLiteral("edit-undo"), QStringLiteral("edit-redo")})
        delete menu->findChild<QAction *>(name);
    menu->insertActions(menu->actions().value(0), m_undoActions);
    if (!m_viewActions.isEmpty()) {
        menu->addSeparator();
        menu->addActions(m_viewActions);
    }
    if (extendMenu)
        extendMenu(*menu);
    return menu;
}

void PlainTextBox::contextMenuEvent(QContextMenuEvent *event) {
    QMenu *menu = contextMenu().release();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
}

QMimeData *PlainTextBox::createMimeDataFromSelection() const {
    if (onCopied)
        onCopied();
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

} // namespace tolvo
