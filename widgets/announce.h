// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace tolvo {

/// Has a screen reader say a text that has appeared in a control without the focus. Nothing for the empty
/// text.
void announce(QWidget *control, const QString &text);

} // namespace tolvo
