// SPDX-License-Identifier: MIT
#include "shell/ui/editor_effects.h"

#include "shell/powerbutton_effect.h"
#include "shell/powerbutton_preview.h"

namespace tolvo {

void EditorEffects::ask(const CPowerButton &button, int position, const Deliver &deliver) {
    m_job.start(
        [trial = powerButtonTrial(m_session, button, position)](const Cancellation &cancellation) {
            return effectOf(tryPowerButton(trial, [cancellation] { return cancellation.cancelled(); }));
        },
        deliver);
}

} // namespace tolvo
