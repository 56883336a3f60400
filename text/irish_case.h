// SPDX-License-Identifier: MIT
// Capitals in Irish, whose words may have a letter or two in front that grammar puts there: these stay small.
#pragma once

#include "text/writing_settings.h"

#include <QString>
#include <QStringView>

namespace tolvo {

/// Capitals, small letters or titles by the Irish rules (An Caighdeán Oifigiúil): the small b, bh, d, g, m, n
/// and t of words such as "bpáirc", "bhfear", "dtí", "gcrann", "mbád", "ndán" and "tslí" stay small, and so
/// does an n, t or h before a capital vowel; the hyphen of "n-" and "t-" stands before small vowels only.
///   upper: u"an t-uisce i dTír na nÓg" gives u"AN tUISCE I dTÍR NA nÓG"
///   lower: u"tUisce" gives u"t-uisce"
/// A text with the noncharacters from U+FDD0 to U+FDD7 has the capitals of any language.
[[nodiscard]] QString irishCase(QStringView text, LanguageCaseSettings::Kind kind);

} // namespace tolvo
