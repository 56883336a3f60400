// SPDX-License-Identifier: MIT
// What a user does in windows.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace tolvo {

template <class Control>
Control &child(const QWidget &window, const char *name) {
    auto *control = dynamic_cast<Control *>(window.findChild<QObject *>(QLatin1StringView(name)));
    if (control == nullptr)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

/// Keys reach the active window only.
inline void activate(QWidget &window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window)) << "the window gets no focus";
}

/// With the mouse. Not in the middle: a check box is wider than its text, and reacts to that alone.
inline void click(QWidget &window, const char *name) {
    auto &button = child<QAbstractButton>(window, name);
    EXPECT_TRUE(button.isEnabled()) << name;
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, 8));
}

/// A button that is pressed by its letter stays down for a moment before it acts.
inline void press(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&widget, key, modifiers);
    EXPECT_TRUE(QTest::qWaitFor([&widget] {
        const auto buttons = widget.window()->findChildren<QAbstractButton *>();
        return std::none_of(buttons.begin(), buttons.end(), [](auto *button) { return button->isDown(); });
    }));
}

/// In place of what the field holds.
inline void type(QWidget &window, const char *name, const QString &text) {
    auto &field = child<QLineEdit>(window, name);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, text);
}

/// Runs `act` with the modal dialog of that class as soon as it is shown; a story that went wrong leaves no
/// dialog open for ever.
template <class Dialog>
void withModal(std::function<void(Dialog &)> act) {
    QTimer::singleShot(0, [act] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "another dialog, or none";
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        act(*dialog);
        if (dialog->isVisible())
            dialog->reject();
    });
}

} // namespace tolvo
