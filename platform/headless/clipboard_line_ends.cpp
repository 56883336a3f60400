// SPDX-License-Identifier: MIT
#include "platform/headless/clipboard_line_ends.h"

#include "platform/line_ends.h"

namespace tolvo {

QString ClipboardLineEnds::takeIn(QString foreign) {
    m_lineFeeds = !foreign.contains(u'\r') && (systemLineFeeds || foreign.contains(u'\n'));
    return comeIn(std::move(foreign));
}

QString ClipboardLineEnds::comeIn(QString foreign) {
    if (foreign.contains(u'\r'))
        return foreign;
    return lfToCrLf(std::move(foreign));
}

QString ClipboardLineEnds::goOut(const QString &own) const {
    if (!m_lineFeeds)
        return own;
    return crLfToLf(own);
}

} // namespace tolvo
