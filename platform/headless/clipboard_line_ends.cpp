// SPDX-License-Identifier: MIT
#include "platform/headless/clipboard_line_ends.h"

#include "base/line_ends.h"

namespace tolvo {

QString ClipboardLineEnds::takeIn(const QString &foreign) {
    m_lineFeeds = !foreign.contains(u'\r');
    return comeIn(foreign);
}

QString ClipboardLineEnds::comeIn(const QString &foreign) {
    if (foreign.contains(u'\r'))
        return foreign;
    return lfToCrLf(foreign);
}

QString ClipboardLineEnds::goOut(const QString &own) const {
    if (!m_lineFeeds)
        return own;
    return crLfToLf(own);
}

} // namespace tolvo
