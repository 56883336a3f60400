// SPDX-License-Identifier: MIT
// What the session says of text that was lost to the capacity of the text box.
#pragma once

#include "platform/message_box.h"
#include "platform/text_box.h"

namespace tolvo {

/// Reports each loss once: what a tool or a whole PowerButton lost when the command is over, what the user
/// brought in at once. Lengths count UTF-16 units.
class CutNotice {
  public:
    explicit CutNotice(MessageBoxes &boxes) : m_boxes(boxes) {}

    /// `box` has cut a text of that length to its capacity.
    void note(const TextBox &box, qint64 length, TextBox::Writer writer);

    /// Commands nest; what is noted meanwhile is reported at the end of the outermost one.
    void commandBegins() { ++m_commands; }
    void commandEnds();

    /// The length that is noted and not reported yet, 0 for none; to be put back if the text is put back.
    [[nodiscard]] qint64 pending() const { return m_length; }
    void setPending(qint64 length) { m_length = length; }

  private:
    void report();

    MessageBoxes &m_boxes;
    int m_commands = 0;
    int m_capacity = 0;
    qint64 m_length = 0; ///< of the longest result that was cut; 0 for none
};

} // namespace tolvo
