// SPDX-License-Identifier: MIT
#pragma once

#include <QTextDocument>

namespace tolvo {

/// A tool tip that shows a text as it is even if it looks like markup, such as a name that the user chose.
[[nodiscard]] inline QString plainToolTip(const QString &text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace tolvo
