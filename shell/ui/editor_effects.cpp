// SPDX-License-Identifier: MIT
#include "shell/ui/editor_effects.h"

#include "shell/frmMain.h"
#include "shell/powerbutton_effect.h"
#include "shell/powerbutton_preview.h"

namespace tolvo {

void EditorEffects::ask(const CPowerButton &button, int position, const Deliver &deliver) {
    PowerButtonTrial trial = powerButtonTrial(m_session, button, position);
    if (trial.pastes) {
        if (!m_clipboard)
            m_clipboard = m_session.services().clipboard.readText().value_or(QString());
        trial.clipboard = *m_clipboard;
    }
    m_job.start(
        [trial](const Cancellation &cancellation) {
            return effectOf(tryPowerButton(trial, [cancellation] { return cancellation.cancelled(); }));
        },
        deliver);
}

void EditorEffects::cancel() {
    m_job.cancel();
    m_clipboard.reset();
}

} // namespace tolvo
