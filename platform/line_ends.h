// SPDX-License-Identifier: MIT
// Changes the line ends of a whole text in one pass.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Replaces every LF by CR LF, the LF of a CR LF too. In place if the text is moved in.
[[nodiscard]] QString lfToCrLf(QString text);

/// Replaces every CR LF by LF; a lone CR stays.
[[nodiscard]] QString crLfToLf(QStringView text);

} // namespace tolvo
