// SPDX-License-Identifier: MIT
// The way of a key from the window to KeyboardCommands.
#include "platform/desktop/enter_key.h"
#include "shell/frmMain.h"
#include "shell/ui/KeySheetWindow.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/key_strokes.h"
#include "shell/ui/part_walk.h"
#include "shell/ui/text_view.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <array>
#include <functional>

namespace tolvo {

/// Alt and a letter is found as mnemonics are: Qt knows on every platform which key of a layout without Latin
/// letters has the letter in another of the user's layouts.
void MainWindow::connectAltLetters() {
    for (const int letter : keyCode::AltLetters) {
        const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(letter));
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, letter] {
            // Some layouts have Latin letters with Shift: that is another key.
            const bool alone = !QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
            if (alone && !m_session->bSessionOver)
                m_keys->formKeyDown(letter, ShiftState::Alt);
        });
    }
}

/// The window's own keys, with what the sheet says of them.
struct MainWindow::OwnKey {
    Qt::Key key;
    Qt::KeyboardModifiers held;
    const char16_t *names;
    const char16_t *does;
    void (MainWindow::*run)();
};

std::span<const MainWindow::OwnKey> MainWindow::ownKeys() {
    static constexpr std::array keys{
        OwnKey{Qt::Key_F6, Qt::NoModifier, u"F6", u"Go to the next part of the window",
               &MainWindow::nextPart},
        OwnKey{Qt::Key_F6, Qt::ShiftModifier, u"Shift-F6", u"Go to the part before", &MainWindow::partBefore},
        // Where the sign is typed with Shift, that is held as well.
        OwnKey{Qt::Key_Question, Qt::ControlModifier, u"Ctrl-?", u"Show this list of keys",
               &MainWindow::showKeySheet},
        // Where Ctrl with the key of the sign is another command.
        OwnKey{Qt::Key_F1, Qt::ControlModifier, u"Ctrl-F1", u"Show this list of keys",
               &MainWindow::showKeySheet},
    };
    return keys;
}

bool MainWindow::ownKeyPressed(const QKeyEvent &event) {
    Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() == Qt::Key_Question)
        held.setFlag(Qt::ShiftModifier, false);
    for (const OwnKey &own : ownKeys()) {
        if (own.key == event.key() && own.held == held) {
            std::invoke(own.run, this);
            return true;
        }
    }
    return false;
}

/// Esc and Enter, where the focus is not in the text.
bool MainWindow::controlKeyPressed(const QKeyEvent &event) {
    if (event.key() == Qt::Key_Escape) {
        shownTextBox().setFocus();
        return true;
    }
    auto *button = qobject_cast<QAbstractButton *>(focusWidget());
    if (button == nullptr || !isEnter(event) || event.isAutoRepeat())
        return false;
    button->click();
    return true;
}

bool MainWindow::keyPressed(const QKeyEvent &event, bool inTextBox) {
    if (ToolFinderView::isKey(event)) {
        m_toolFinder->begin();
        return true;
    }
    if (!inTextBox && controlKeyPressed(event))
        return true;
    const KeyStroke stroke = keyStroke(event);
    if (m_keys->formKeyDown(stroke.code, stroke.shiftState))
        return true;
    if (inTextBox && m_keys->textKeyDown(stroke.code))
        return true;
    // After the commands: some layouts have the question mark on a digit.
    if (ownKeyPressed(event) || m_textView->keyPressed(event))
        return true;
    if (stroke.character >= 0 && m_keys->formKeyPress(stroke.character))
        return true;
    if (!inTextBox)
        return m_keys->commandFromElsewhere(stroke.code, stroke.character);
    return stroke.character >= 0 && m_keys->textKeyPress(stroke.character);
}

void MainWindow::nextPart() {
    walkParts(parts(), true);
}

void MainWindow::partBefore() {
    walkParts(parts(), false);
}

/// The keys that no row of a table holds: those of the toolkit and the letters of captions.
void MainWindow::showKeySheet() {
    QList<KeySheetRow> rows;
    const auto add = [&rows](KeyGroup group, const QString &keys, const QString &does) {
        rows += {group, QString(keys).replace(u'+', u'-'), does};
    };
    for (const auto &[key, does] :
         {std::pair(QKeySequence::Cut, u"Cut"), std::pair(QKeySequence::Copy, u"Copy"),
          std::pair(QKeySequence::Paste, u"Paste")})
        add(KeyGroup::Edit, QKeySequence(key).toString(), QString::fromUtf16(does));
    for (const OwnKey &own : ownKeys())
        add(KeyGroup::Window, QString::fromUtf16(own.names), QString::fromUtf16(own.does));
    for (const TextView::Key &key : TextView::keys()) {
        if (key.names != nullptr)
            rows += {KeyGroup::Window, QString::fromUtf16(key.names), QString::fromUtf16(key.does)};
    }
    add(KeyGroup::Window, QStringLiteral("Ctrl-P"), QStringLiteral("Find a tool"));
    add(KeyGroup::Window, QStringLiteral("Ctrl-Tab"), QStringLiteral("Leave the text for the next control"));
    add(KeyGroup::Window, QStringLiteral("Esc"),
        QStringLiteral("Go back to the text from any other control"));
    add(KeyGroup::Window, QStringLiteral("Enter"), QStringLiteral("Press the button that has the focus"));
    add(KeyGroup::Window, QStringLiteral("Arrows, Home, End"),
        QStringLiteral("Move among favourites, tools or PowerButtons"));
    add(KeyGroup::Window, QStringLiteral("Left, Right"),
        QStringLiteral("Move the edge between the tools and the text, where F6 goes after the tools"));
    add(KeyGroup::Window, QStringLiteral("Menu"),
        QStringLiteral("Run a tool with its last settings, edit a PowerButton"));
    for (const auto *button : findChildren<QAbstractButton *>()) {
        if (button->window() == this && !button->shortcut().isEmpty()) // dialogs have letters of their own
            add(KeyGroup::Session, button->shortcut().toString(), button->text().remove(u'&'));
    }
    KeySheetWindow(keySheet(rows), this).exec();
}

/// The Tab key types a tab into the text; with Ctrl it goes on to the next control, with Shift too to the one
/// before.
bool MainWindow::leaveTextBox(const QKeyEvent &event) {
    const bool forward = event.key() == Qt::Key_Tab;
    if (!event.modifiers().testFlag(Qt::ControlModifier) || (!forward && event.key() != Qt::Key_Backtab))
        return false;
    return focusNextPrevChild(forward);
}

/// Buttons take arrows and Esc for themselves, whatever is held with them: the commands go first.
void MainWindow::watchButtons() {
    for (auto *button : findChildren<QAbstractButton *>())
        button->installEventFilter(this);
}

void MainWindow::keyPressEvent(QKeyEvent *event) {
    // A window that lives in this one has keys of its own; it can be left.
    if (isFocusInDock() && event->key() != Qt::Key_F6)
        return event->accept();
    // Keys that the control with the focus has no use for; the text box's own have been asked for already.
    if (m_session && !m_session->bSessionOver && keyPressed(*event, false))
        return;
    QWidget::keyPressEvent(event);
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event) {
    if (!m_session || m_session->bSessionOver)
        return QWidget::eventFilter(watched, event);
    const bool inTextBox = watched == &shownTextBox();
    switch (event->type()) {
    case QEvent::KeyPress:
        if (inTextBox && leaveTextBox(*static_cast<QKeyEvent *>(event)))
            return true;
        if (keyPressed(*static_cast<QKeyEvent *>(event), inTextBox))
            return true;
        break;
    case QEvent::KeyRelease:
        m_keys->formKeyUp(shiftState(static_cast<QKeyEvent *>(event)->modifiers()));
        break;
    case QEvent::InputMethod:
        if (inTextBox && !static_cast<QInputMethodEvent *>(event)->commitString().isEmpty())
            m_session->setStatus({});
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tolvo
