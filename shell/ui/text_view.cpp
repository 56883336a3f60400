// SPDX-License-Identifier: MIT
#include "shell/ui/text_view.h"

#include "platform/desktop/PlainTextBox.h"
#include "platform/headless/clipboard_line_ends.h"
#include "preferences/settings_keys.h"
#include "shell/frmMain.h"
#include "shell/ui/GoToLine.h"
#include "shell/ui/status_bar.h"
#include "shell/zoom_levels.h"

#include <QAction>
#include <QKeyEvent>

namespace tolvo {

TextView::TextView(frmMain &session, std::array<PlainTextBox *, 2> boxes, StatusBar &statusBar,
                   const ClipboardLineEnds &lineEnds)
    : QObject(&statusBar), m_session(session), m_boxes(boxes), m_statusBar(statusBar), m_lineEnds(lineEnds),
      m_zoom(get(session.services().store, settingKeys.view.zoom)),
      m_marks(get(session.services().store, settingKeys.view.marks)) {
    m_refresh.setSingleShot(true);
    connect(&m_refresh, &QTimer::timeout, this, &TextView::showFacts);
    for (PlainTextBox *box : m_boxes) {
        connect(box, &QPlainTextEdit::textChanged, this, &TextView::refresh);
        connect(box, &QPlainTextEdit::selectionChanged, this, &TextView::refresh);
        connect(box, &QPlainTextEdit::cursorPositionChanged, this, &TextView::refresh);
        box->onZoom = [this](int steps) { zoomTo(zoomed(m_zoom, steps)); };
    }
    statusBar.onGoToLine = [this] { goToLine(); };
    statusBar.onOwnSize = [this] { zoomTo(ownSize); };
    offerInMenu();
    applyZoom();
    applyMarks();
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
    // Shift belongs to the signs on many layouts.
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::ControlModifier)
        return false;
    switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomTo(zoomed(m_zoom, 1));
        return true;
    case Qt::Key_Minus:
        zoomTo(zoomed(m_zoom, -1));
        return true;
    case Qt::Key_0:
        zoomTo(ownSize);
        return true;
    case Qt::Key_G:
        if (!shift)
            goToLine();
        return !shift;
    case Qt::Key_B:
        if (!shift)
            showMarks(!m_marks);
        return !shift;
    default:
        return false;
    }
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

void TextView::offerInMenu() {
    const auto action = [this](const QString &text, const auto &act) {
        auto *result = new QAction(text, this);
        connect(result, &QAction::triggered, this, act);
        return result;
    };
    m_marksAction =
        action(QStringLiteral("Show &blanks and line ends\tCtrl+B"), [this](bool on) { showMarks(on); });
    m_marksAction->setCheckable(true);
    const QList<QAction *> actions{
        m_marksAction, action(QStringLiteral("&Larger text\tCtrl++"), [this] { zoomTo(zoomed(m_zoom, 1)); }),
        action(QStringLiteral("S&maller text\tCtrl+-"), [this] { zoomTo(zoomed(m_zoom, -1)); }),
        action(QStringLiteral("&Own size\tCtrl+0"), [this] { zoomTo(ownSize); })};
    for (PlainTextBox *box : m_boxes)
        box->setViewActions(actions);
}

void TextView::zoomTo(int percent) {
    if (percent == m_zoom)
        return;
    m_zoom = percent;
    applyZoom();
    m_session.guarded(u"zoomTo", [this] { set(m_session.services().store, settingKeys.view.zoom, m_zoom); });
}

void TextView::applyZoom() {
    for (PlainTextBox *box : m_boxes)
        box->setZoom(m_zoom);
    m_statusBar.showZoom(m_zoom);
}

void TextView::showMarks(bool on) {
    m_marks = on;
    applyMarks();
    m_session.guarded(u"showMarks",
                      [this] { set(m_session.services().store, settingKeys.view.marks, m_marks); });
}

void TextView::applyMarks() {
    for (PlainTextBox *box : m_boxes)
        box->setMarks(m_marks);
    m_marksAction->setChecked(m_marks);
}

} // namespace tolvo
