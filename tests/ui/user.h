// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace tolvo {

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

template <class Control>
Control &child(QWidget &parent, const char *name) {
    auto *control = parent.findChild<Control *>(QLatin1StringView(name));
    if (control == nullptr)
        throw std::runtime_error(std::string("no control ") + name);
    return *control;
}

} // namespace tolvo
