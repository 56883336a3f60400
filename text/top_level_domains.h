// SPDX-License-Identifier: MIT
// The Internet's top level domains, which tell "example.org" from the end of a sentence. Source:
// https://www.iana.org/domains/root/db. Each list has a comma between the domains and at both ends, as
// cTextMethods::IsInList needs it: ",ac,ad,ae,".
#pragma once

#include <QString>

namespace tolvo {

/// The 247 domains that are not English words.
[[nodiscard]] QString shortTopLevelDomains();

/// The same, followed by 32 that are also English words or common abbreviations, such as "it" and "so". "no"
/// is in both parts.
[[nodiscard]] QString longTopLevelDomains();

} // namespace tolvo
