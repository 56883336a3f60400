// SPDX-License-Identifier: MIT
// One tool or PowerButton on the clipboard's text, without a window.
#pragma once

#include "platform/clipboard.h"
#include "platform/headless/ConsoleBoxes.h"
#include "shell/headless/HeadlessSession.h"
#include "shell/headless/steps.h"

#include <optional>

namespace tolvo {

/// What came of it.
struct CommandOutcome {
    bool done = false; ///< otherwise the clipboard is as it was
    QString message;   ///< what happened, in words
    /// The text that the result has taken the place of; nothing if the clipboard is as it was.
    std::optional<QString> before = {};
};

/// The command, read and checked when it is made, so that what is wrong is said before any clipboard is
/// asked.
class ClipboardCommand {
  public:
    /// `button` is the number of a PowerButton or its name, without regard to case; `step` is a step as in
    /// steps.h. One of them is empty. Throws BadRequest for a button that isn't defined and for a tool that
    /// isn't there or needs a window.
    ClipboardCommand(const HeadlessWorld &world, const QString &button, const QString &step);

    /// The name of the PowerButton or tool.
    [[nodiscard]] const QString &name() const { return m_name; }

    /// Takes the clipboard's text, whatever its length, runs the command on it and puts the result back. A
    /// tool that itself writes to the clipboard and leaves the text alone gives what it has written. Nothing
    /// is put back after a failure, a warning, or when nothing has changed.
    [[nodiscard]] CommandOutcome run(Clipboard &clipboard);

  private:
    void chooseButton(const Catalogue &catalogue, const QString &button);

    RecordingBoxes m_boxes;
    HeadlessWindows m_windows;
    HeadlessSession m_headless;
    std::shared_ptr<CAction> m_action;
    QString m_name;
};

} // namespace tolvo
