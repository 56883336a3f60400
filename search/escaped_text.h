// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

struct EscapedText {
    QString text;
    bool specialChars = false; ///< an escape is in it: special characters have to be allowed
};

/// A text as a search box holds it: a tab as "\t", CR LF as "\n", any other control character as "\xHH".
[[nodiscard]] EscapedText escapedControls(QStringView text);

} // namespace tolvo
