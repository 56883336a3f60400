// SPDX-License-Identifier: MIT
#pragma once

#include "text/writing_settings.h"

namespace tolvo {

/// The text in capitals, small letters or title case by the rules of a language: see base/language_case.h,
/// for Irish text/irish_case.h.
///   with {Turkish, Upper}: u"iyi" gives "İYİ"
[[nodiscard]] QString caseByLanguage(QStringView text, const LanguageCaseSettings &settings);

} // namespace tolvo
