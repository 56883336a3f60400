// SPDX-License-Identifier: MIT
// One session of tolvo-pipe: a text, the steps that run on it, and what comes back.
#pragma once

#include "base/application.h"
#include "platform/headless/ConsoleBoxes.h"
#include "powerbuttons/button_file.h"
#include "shell/headless/steps.h"
#include "text/statistics.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

namespace tolvo {

/// A text and the steps, or the PowerButton, that run on it.
struct PipeRequest {
    QString text; ///< as the session holds it
    int selStart = 0;
    int selLength = 0;
    QStringList steps;         ///< TOKEN or TOKEN:SETTINGS
    SharedButtons button = {}; ///< runs in place of the steps if there is one
    QString clipboard = {};
    int capacity = textLimit;
};

/// What a step that searches had to do, looked at just before it ran.
struct PipeSearch {
    int step = 0;           ///< from 0
    int matches = 0;        ///< in the whole text: those a Find All lists, or all that Replace All replaces
    QString error;          ///< why the request can't be carried out, in words; empty if it can
    qsizetype errorAt = -1; ///< where in its find text, from 0; -1 if no place is to blame
};

/// How the session ended. Positions count UTF-16 units from 0.
struct PipeReply {
    QString text;
    int selStart = 0;
    int selLength = 0;
    QString status;
    bool dirty = false;
    QString clipboard;
    std::vector<Box> messages;
    std::vector<PipeSearch> searches; ///< of the steps themselves, not of PowerButtons that they run
    std::optional<TextStatistics> statistics;
    bool toolWarned = false; ///< whatever the icon of its box was

    /// A tool reported a failure or a warning.
    [[nodiscard]] bool warned() const;
};

/// Runs the steps as the Actions of one PowerButton. `boxes` hears every message, `sayStatus` every status
/// text. Throws BadRequest for a step that is not a tool or that needs a window.
[[nodiscard]] PipeReply runPipe(const HeadlessWorld &world, const PipeRequest &request, RecordingBoxes &boxes,
                                const std::function<void(const QString &)> &sayStatus = {});

/// The reply as one line of JSON, without its line end.
[[nodiscard]] QString replyLine(const PipeReply &reply);

} // namespace tolvo
