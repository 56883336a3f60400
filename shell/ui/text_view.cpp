// SPDX-License-Identifier: MIT
#include "shell/ui/text_view.h"

#include "platform/desktop/PlainTextBox.h"
#include "platform/headless/clipboard_line_ends.h"
#include "shell/frmMain.h"
#include "shell/ui/GoToLine.h"
#include "shell/ui/status_bar.h"

#include <QKeyEvent>

namespace tolvo {

TextView::TextView(frmMain &session, std::array<PlainTextBox *, 2> boxes, StatusBar &statusBar,
                   const ClipboardLineEnds &lineEnds)
    : QObject(&statusBar), m_session(session), m_boxes(boxes), m_statusBar(statusBar), m_lineEnds(lineEnds) {
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &TextView::showFacts);
    for (PlainTextBox *box : m_boxes) {
        connect(box, &QPlainTextEdit::textChanged, this, &TextView::refresh);
        connect(box, &QPlainTextEdit::selectionChanged, this, &TextView::refresh);
        connect(box, &QPlainTextEdit::cursorPositionChanged, this, &TextView::refresh);
    }
    statusBar.onGoToLine = [this] { goToLine(); };
    refresh();
}

void TextView::showFacts() {
    if (m_session.bSessionOver)
        return;
    m_statusBar.showFacts(textFacts(m_session.oTextMethods, m_session.txtCurrent()));
    m_statusBar.showLineEnds(m_lineEnds.lineFeeds());
    for (PlainTextBox *box : m_boxes) {
        const QString description = box->length() == 0 ? box->placeholderText() : QString();
        if (box->accessibleDescription() != description)
            box->setAccessibleDescription(description); // the hint is painted only
    }
}

bool TextView::keyPressed(const QKeyEvent &event) {
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (held != Qt::ControlModifier || event.key() != Qt::Key_G)
        return false;
    goToLine();
    return true;
}

void TextView::goToLine() {
    TextBox &box = m_session.txtCurrent();
    GoToLine dialog(lineCount(box.Text()), textFacts(m_session.oTextMethods, box).line, m_statusBar.window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (const auto start = placeOfLine(box.Text(), dialog.line()))
        box.setSelStart(*start);
    box.setFocus();
}

} // namespace tolvo
