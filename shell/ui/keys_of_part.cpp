// SPDX-License-Identifier: MIT
#include "shell/ui/keys_of_part.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QShortcut>

namespace tolvo {

namespace {

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

bool isIn(const QWidget &part, const QWidget &widget) {
    return &widget == &part || part.isAncestorOf(&widget);
}

} // namespace

KeysOfPart::KeysOfPart(const QWidget &window, const QWidget &part) : m_window(window), m_part(part) {
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *focused) { follow(focused); });
    follow(QApplication::focusWidget());
}

KeysOfPart::~KeysOfPart() {
    restoreOthers();
}

void KeysOfPart::follow(const QWidget *focused) {
    if (focused == nullptr)
        return; // another program, or a menu: it comes back
    const bool inside = isIn(m_part, *focused);
    if (inside == m_silent)
        return;
    m_silent = inside;
    inside ? silenceOthers() : restoreOthers();
}

bool KeysOfPart::isOther(const QWidget &widget) const {
    return widget.window() == &m_window && !isIn(m_part, widget);
}

void KeysOfPart::silenceOthers() {
    for (auto *button : m_window.findChildren<QAbstractButton *>()) {
        if (!isOther(*button) || button->shortcut().isEmpty())
            continue;
        m_letters.emplace_back(button, button->shortcut());
        button->setShortcut({});
    }
    for (auto *shortcut : m_window.findChildren<QShortcut *>()) {
        const auto *owner = qobject_cast<QWidget *>(shortcut->parent());
        if (owner == nullptr || !isOther(*owner) || !shortcut->isEnabled())
            continue;
        m_shortcuts += shortcut;
        shortcut->setEnabled(false);
    }
}

void KeysOfPart::restoreOthers() {
    for (const auto &[button, letter] : std::exchange(m_letters, {})) {
        if (button)
            button->setShortcut(letter);
    }
    for (const QPointer<QShortcut> &shortcut : std::exchange(m_shortcuts, {})) {
        if (shortcut)
            shortcut->setEnabled(true);
    }
}

OnlyPart::OnlyPart(const QWidget &part) : m_part(part) {
    qApp->installEventFilter(this);
}

bool OnlyPart::eventFilter(QObject *watched, QEvent *event) {
    if (!isInput(event->type()) || !watched->isWidgetType())
        return false;
    const auto &widget = static_cast<const QWidget &>(*watched);
    if (widget.window() != m_part.window() || isIn(m_part, widget))
        return false;
    event->ignore();
    return true;
}

} // namespace tolvo
