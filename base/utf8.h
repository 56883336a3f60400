// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringView>

namespace tolvo {

/// A text in UTF-8 (RFC 3629), which has no half of a surrogate pair: a lone one becomes a question mark.
/// Left to the toolkit it would be that, or nothing, depending on its release.
///   utf8Of(u"a\xD800") == "a?"
[[nodiscard]] QByteArray utf8Of(QStringView text);

} // namespace tolvo
