// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// The text without the difference between capitals and small letters (Unicode's full case folding, chapter
/// 3.13): texts that differ in case alone give the same.
///   caseFolded(u"Straße") == u"strasse"
[[nodiscard]] QString caseFolded(QStringView text);

} // namespace tolvo
