// SPDX-License-Identifier: MIT
#include "shell/cut_notice.h"

#include "base/numbers.h"
#include "base/strings.h"

#include <algorithm>
#include <utility>

namespace tolvo {

void CutNotice::note(const TextBox &box, qint64 length, TextBox::Writer writer) {
    if (writer == TextBox::Writer::User) {
        m_boxes.show(
            {.text = FillTemplate(
                 QStringLiteral("There is no room for all that you typed, pasted or dropped: Tolvo can\r\n"
                                "process %0 characters, and the text would have %1.\r\n"
                                "Tolvo has truncated what you put in. Some characters have been lost."),
                 {groupedNumber(box.capacity()), groupedNumber(length)}),
             .icon = BoxIcon::Exclamation});
        return;
    }
    m_length = std::max(m_length, length);
    m_capacity = box.capacity();
    if (m_commands == 0)
        report();
}

void CutNotice::commandEnds() {
    if (--m_commands == 0)
        report();
}

void CutNotice::report() {
    const qint64 length = std::exchange(m_length, 0);
    if (length == 0)
        return;
    m_boxes.show({.text = FillTemplate(
                      QStringLiteral("The result exceeds the number of characters that Tolvo\r\n"
                                     "can process (%0). It had %1 characters.\r\n"
                                     "Tolvo has truncated the text. Some characters have been lost.\r\n"
                                     "Undo takes this back."),
                      {groupedNumber(m_capacity), groupedNumber(length)}),
                  .icon = BoxIcon::Exclamation});
}

} // namespace tolvo
