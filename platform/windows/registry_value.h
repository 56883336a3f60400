// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// GetKeyValue: the text of a value below HKEY_LOCAL_MACHINE; a 32-bit number comes as hexadecimal text with
/// "&h" before it. Empty if there is no such value, or one of another kind.
///   GetKeyValue(u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO")
[[nodiscard]] QString GetKeyValue(QStringView key, QStringView value);

} // namespace tolvo
