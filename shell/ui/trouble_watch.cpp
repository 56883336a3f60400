// SPDX-License-Identifier: MIT
#include "shell/ui/trouble_watch.h"

#include "preferences/settings_keys.h"
#include "shell/frmMain.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/hint_strip.h"
#include "widgets/announce.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QTextBlock>

namespace tolvo {

namespace {

bool types(const QEvent &event) {
    if (event.type() == QEvent::InputMethod)
        return !static_cast<const QInputMethodEvent &>(event).commitString().isEmpty();
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(event);
    if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
        return false;
    switch (key.key()) {
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        return true;
    default:
        return !key.text().isEmpty() && key.text().front().isPrint();
    }
}

/// Within a line; an empty line has none.
Stretch stretchOf(const PlainTextBox &box, const LinePart &part) {
    const QTextBlock block = box.document()->findBlockByNumber(part.line);
    const int column = std::min(part.column, block.length() - 1);
    return {block.position() + part.line + column, // a line end is two units of the text
            std::min(part.length, block.length() - 1 - column)};
}

} // namespace

TroubleWatch::TroubleWatch(frmMain &session, MainWindow &window)
    : m_session(session), m_window(window), m_job(window.worker()) {
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &TroubleWatch::look);
    for (PlainTextBox *box : {&window.txtText1(), &window.txtTextWW()}) {
        box->installEventFilter(this);
        box->viewport()->installEventFilter(this);
        connect(box, &QPlainTextEdit::textChanged, this, &TroubleWatch::textChanged);
    }
    freshText();
}

TroubleWatch::~TroubleWatch() {
    delete m_line; // it would report to nobody
}

void TroubleWatch::obeyOptions() {
    if (!get(m_session.services().store, settingKeys.hints.troubles))
        end(false);
}

void TroubleWatch::freshText() {
    m_watching = true;
    obeyOptions();
    for (PlainTextBox *box : {&m_window.txtText1(), &m_window.txtTextWW()})
        box->setRoomAbove(0);
    textChanged();
}

void TroubleWatch::textChanged() {
    m_job.cancel();
    mark(-1);
    if (m_watching && m_painted)
        m_later.start();
}

bool TroubleWatch::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Paint && !m_painted) {
        m_painted = true;
        m_later.start();
    } else if (m_watching && types(*event)) {
        end(true);
    }
    return QObject::eventFilter(watched, event);
}

void TroubleWatch::look() {
    const QString text = m_session.txtCurrent().Text();
    if (!m_watching || m_session.bSessionOver)
        return;
    m_job.start([text](const Cancellation &cancellation) { return textTroubles(text, cancellation); },
                [this](const QList<Trouble> &troubles) { show(troubles); });
}

void TroubleWatch::show(const QList<Trouble> &troubles) {
    m_troubles = troubles;
    const bool first = m_line == nullptr || m_line->isHidden();
    if (m_line == nullptr && !troubles.isEmpty()) {
        m_line =
            new HintStrip(QStringLiteral("troubles"), QStringLiteral("Looks like:"),
                          QStringLiteral("Close this line\nThe Options can turn it off for good"), &m_window);
        m_line->onClick = [this](int place) { mend(place); };
        m_line->onPointed = [this](int place) { mark(place); };
        m_line->onClose = [this] { end(false); };
        m_window.putOverText(*m_line);
    }
    if (m_line == nullptr)
        return;
    QList<HintStrip::Button> buttons;
    for (const Trouble &trouble : troubles) {
        const ToolPtr tool = m_session.services().oTools.tool(trouble.token);
        buttons += {trouble.words, tool ? tool->Name() + QStringLiteral("\n") + tool->Tooltip() : QString()};
    }
    m_line->setButtons(buttons);
    if (first)
        announce(m_line, m_line->isHidden() ? QString() : m_line->sentence());
}

void TroubleWatch::mend(int place) {
    const QString token = m_troubles.at(place).token;
    m_window.shownTextBox().setFocus(); // the button may go, and others move to its place
    m_session.bRightButton = true;      // without a dialog
    m_session.ToolDespatcher(token);
    m_session.bRightButton = false;
}

void TroubleWatch::mark(int place) {
    PlainTextBox &box = m_window.shownTextBox();
    QList<Stretch> marks;
    if (place >= 0 && place < m_troubles.size()) {
        for (const LinePart &part : m_troubles.at(place).places)
            marks += stretchOf(box, part);
    }
    for (PlainTextBox *one : {&m_window.txtText1(), &m_window.txtTextWW()})
        one->setTint(TintLayer::Troubles, one == &box ? marks : QList<Stretch>());
}

/// With `keepingPlace` the text stays where it is on the screen.
void TroubleWatch::end(bool keepingPlace) {
    m_watching = false;
    m_job.cancel();
    mark(-1);
    m_troubles.clear();
    if (m_line == nullptr || m_line->isHidden())
        return;
    PlainTextBox &box = m_window.shownTextBox();
    const int top = box.mapTo(&m_window, QPoint()).y();
    if (m_line->isAncestorOf(m_window.focusWidget()))
        box.setFocus();
    m_line->setButtons({});
    m_line->parentWidget()->layout()->activate();
    if (keepingPlace)
        box.setRoomAbove(top - box.mapTo(&m_window, QPoint()).y());
}

} // namespace tolvo
