// SPDX-License-Identifier: MIT
// The sizes that a user has given to dialogs, as the store remembers them for each kind of screen.
#pragma once

#include <QMap>
#include <QSize>
#include <QString>

namespace tolvo {

/// By the object name of the dialog; sizes in pixels without the scale of the screen.
using WindowSizes = QMap<QString, QSize>;

/// "dlgSpelling 800x600|frmStats 300x200"
[[nodiscard]] QString written(const WindowSizes &sizes);
/// Leaves out what is not a name with a size above 0.
[[nodiscard]] WindowSizes readSizes(const QString &text);

/// A size that was remembered, as far as contents and screen allow; contents that need more than the screen
/// has get what the screen has.
[[nodiscard]] QSize allowedSize(QSize remembered, QSize contents, QSize screen);

} // namespace tolvo
