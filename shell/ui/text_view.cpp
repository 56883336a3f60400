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
#include <functional>

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
    statusBar.onOwnSize = [this] { showOwnSize(); };
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

std::span<const TextView::Key> TextView::keys() {
    static constexpr std::array all{
        Key{Qt::Key_G, false, u"Ctrl-G", u"Go to a line", &TextView::goToLine},
        Key{Qt::Key_B, false, u"Ctrl-B", u"Show spaces and line ends, or hide them", &TextView::invertMarks},
        Key{Qt::Key_Plus, true, u"Ctrl-+", u"Larger text", &TextView::larger},
        Key{Qt::Key_Equal, true, nullptr, nullptr, &TextView::larger},
        Key{Qt::Key_Minus, true, u"Ctrl--", u"Smaller text", &TextView::smaller},
        Key{Qt::Key_0, true, u"Ctrl-0", u"Text at its normal size", &TextView::showOwnSize},
    };
    return all;
}

bool TextView::keyPressed(const QKeyEvent &event) {
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::ControlModifier)
        return false;
    for (const Key &key : keys()) {
        if (key.key == event.key() && (!shift || key.mayHoldShift)) {
            std::invoke(key.run, this);
            return true;
        }
    }
    return false;
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
        action(QStringLiteral("&Show spaces and line ends\tCtrl+B"), [this](bool on) { showMarks(on); });
    m_marksAction->setCheckable(true);
    const QList<QAction *> actions{m_marksAction,
                                   action(QStringLiteral("&Larger text\tCtrl++"), [this] { larger(); }),
                                   action(QStringLiteral("S&maller text\tCtrl+-"), [this] { smaller(); }),
                                   action(QStringLiteral("&Normal size\tCtrl+0"), [this] { showOwnSize(); })};
    for (PlainTextBox *box : m_boxes)
        box->setViewActions(actions);
}

void TextView::larger() {
    zoomTo(zoomed(m_zoom, 1));
}

void TextView::smaller() {
    zoomTo(zoomed(m_zoom, -1));
}

void TextView::showOwnSize() {
    zoomTo(ownSize);
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
