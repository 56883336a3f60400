// SPDX-License-Identifier: MIT
// The Internet's top level domains, by which "example.org" is told from the end of a sentence. Each list is
// delimited by commas, with a comma at both ends, as cTextMethods::IsInList wants it.
#pragma once

#include <QString>

namespace tolvo {

/// The 247 domains that are no English words.
[[nodiscard]] QString shortTopLevelDomains();

/// The same with 32 more that are also English words or common abbreviations, such as "it", "no", "so".
[[nodiscard]] QString longTopLevelDomains();

} // namespace tolvo
