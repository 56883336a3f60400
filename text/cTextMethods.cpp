// SPDX-License-Identifier: MIT
#include "text/cTextMethods.h"

#include "text/top_level_domains.h"

namespace tolvo {

cTextMethods::cTextMethods(TextHost &host, KnownExtension isKnownExtension)
    : m_host(host), m_addresses(std::move(isKnownExtension)) {
    setTopLevelDomains(shortTopLevelDomains());
}

void cTextMethods::setTopLevelDomains(const QString &list) {
    sTLD = list;
    m_addresses.setTopLevelDomains(list);
}

} // namespace tolvo
