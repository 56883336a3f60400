// SPDX-License-Identifier: MIT
#pragma once

#include <QTextDocument>

namespace tolvo {

/// A tool tip that shows the text as it is, also where it looks like markup: a name of the user's, a line of
/// a data file.
[[nodiscard]] inline QString plainToolTip(const QString &text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace tolvo
