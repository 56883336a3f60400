// SPDX-License-Identifier: MIT
#include "shell/text_state.h"

#include "platform/text_box.h"
#include "shell/text_edit.h"

namespace tolvo {

TextState textState(const TextBox &box) {
    return {box.Text(), box.SelStart(), box.SelLength()};
}

void restore(TextBox &box, const TextState &state) {
    const TextEdit edit = changeBetween(box.Text(), state.text);
    if (edit.removed.size() < box.length()) {
        select(box, edit.position, static_cast<int>(edit.removed.size()));
        box.setSelText(edit.inserted);
    }
    if (box.Text() != state.text)
        box.setText(state.text);
    select(box, state.selStart, state.selLength);
}

} // namespace tolvo
