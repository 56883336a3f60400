// SPDX-License-Identifier: MIT
#pragma once

#include "platform/background_job.h"
#include "powerbuttons/step_effects.h"

#include <optional>

namespace tolvo {

class frmMain;

/// The effects of steps on the session's text, worked out in another thread.
class EditorEffects final : public StepEffects {
  public:
    /// Both must outlive it.
    EditorEffects(frmMain &session, BackgroundWorker &worker) : m_session(session), m_job(worker) {}

    void ask(const CPowerButton &button, int position, const Deliver &deliver) override;
    void cancel() override;

  private:
    frmMain &m_session;
    BackgroundJob m_job;
    std::optional<QString> m_clipboard; ///< read once for each time that the editor is open
};

} // namespace tolvo
