// SPDX-License-Identifier: MIT
// What the windows for sharing PowerButtons have in common.
#pragma once

#include "powerbuttons/CPowerButton.h"

class QPlainTextEdit;
class QWidget;

namespace tolvo {

/// A text that can be read and copied from, but not changed; Tab leaves it.
[[nodiscard]] QPlainTextEdit *makeStepsView(const QString &objectName, const QString &accessibleName,
                                            QWidget *parent);

/// A place in the row as a choice: "3: Clean mail" or "4: empty".
[[nodiscard]] QString placeName(const CPowerButtonCollection &buttons, int number);

} // namespace tolvo
