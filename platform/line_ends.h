// SPDX-License-Identifier: MIT
// Changing the line ends of a whole text, in one pass.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Every LF becomes CR LF, the LF of a CR LF as well; in place, if the text is handed over.
[[nodiscard]] QString lfToCrLf(QString text);

/// Every CR LF becomes LF; a lone CR stays.
[[nodiscard]] QString crLfToLf(QStringView text);

} // namespace tolvo
