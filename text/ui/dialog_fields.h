// SPDX-License-Identifier: MIT
// Fields of the dialogs of text tools, and one ear for all of them.
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QStringList>
#include <functional>

namespace tolvo {

[[nodiscard]] QCheckBox *makeCheck(const QString &name, const QString &caption, QWidget *parent);
[[nodiscard]] QLineEdit *makeLine(const QString &name, QWidget *parent);

/// What the orders of lines are called, by their numbers (text/line_settings.h).
[[nodiscard]] QStringList orderNames();

/// Calls when a button, a field, a number or a list of the dialog changes, as long as `context` lives; maybe
/// more than once for one event.
void whenAnythingChanges(const QWidget &dialog, const QObject *context, const std::function<void()> &then);

} // namespace tolvo
