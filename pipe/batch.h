// SPDX-License-Identifier: MIT
#pragma once

#include "pipe/session.h"

#include <QByteArray>

namespace tolvo {

/// Answers one line of --batch: a reply, or {"error": ...} for a request that can't be run.
[[nodiscard]] QString answerRequest(const HeadlessWorld &world, const QByteArray &line);

} // namespace tolvo
