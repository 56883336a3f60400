// SPDX-License-Identifier: MIT
#include "platform/desktop/CommandKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace tolvo {

namespace {

bool isAsciiLetter(int character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// Qt's fields ignore the text of Ctrl with a key of the main block, but type that of the keypad.
bool typesNothing(const QKeyEvent &key) {
    const Qt::KeyboardModifiers held = key.modifiers();
    if (held.testAnyFlags(Qt::AltModifier | Qt::MetaModifier))
        return true;
    return held.testFlag(Qt::ControlModifier) && held.testFlag(Qt::KeypadModifier);
}

#if defined(Q_OS_WIN)
/// A letter or digit may have its plain text with Ctrl and Alt too; no layout has that on AltGr.
bool typesItsOwnCharacter(const QKeyEvent &key) {
    const bool plain = isAsciiLetter(key.key()) || (key.key() >= '0' && key.key() <= '9');
    return plain && key.text().size() == 1 && key.text().front().toUpper() == QChar(key.key());
}
#endif

} // namespace

bool holdsAltGr(const QKeyEvent &key) {
#if defined(Q_OS_WIN)
    return key.modifiers().testFlags(Qt::ControlModifier | Qt::AltModifier) && !typesItsOwnCharacter(key);
#else
    constexpr quint32 mod5 = 0x80; // Wayland reports AltGr by its native bit only
    return key.modifiers().testFlag(Qt::GroupSwitchModifier) || (key.nativeModifiers() & mod5) != 0;
#endif
}

CommandKeys::CommandKeys(LatinOfKey latinOfKey) : m_latinOfKey(std::move(latinOfKey)) {
    QCoreApplication::instance()->installEventFilter(this);
}

int CommandKeys::meaning(const QKeyEvent &key) const {
    const int given = key.key();
    const bool ctrl = key.modifiers().testFlag(Qt::ControlModifier);
    const bool beyondAscii = given >= 0x80 && given < Qt::Key_Escape;
    const bool sign =
        given > 0x20 && given < 0x7F && !isAsciiLetter(given) && !(given >= '0' && given <= '9');
    // Signs are commands with Ctrl, where the layout gives them; with Alt only letters and digits are.
    if (!beyondAscii && (ctrl || !sign))
        return given;
    const char16_t latin = m_latinOfKey(key.nativeScanCode(), key.nativeModifiers());
    if (isAsciiLetter(latin))
        return QChar(latin).toUpper().unicode();
    return latin != 0 && beyondAscii ? latin : given;
}

bool CommandKeys::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<QKeyEvent &>(*event);
    if (!key.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
#if defined(Q_OS_WIN)
    if (holdsAltGr(key))
        return false;
#endif
    const int meant = holdsAltGr(key) ? key.key() : meaning(key);
    if (meant == key.key() && (key.text().isEmpty() || !typesNothing(key)))
        return false;
    QKeyEvent command(QEvent::KeyPress, meant, key.modifiers(), key.nativeScanCode(), key.nativeVirtualKey(),
                      key.nativeModifiers(), QString(), key.isAutoRepeat(),
                      static_cast<quint16>(key.count()));
    QCoreApplication::sendEvent(watched, &command);
    event->accept(); // the parents of the control have had it already
    return true;
}

} // namespace tolvo
