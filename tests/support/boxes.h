// SPDX-License-Identifier: MIT
#pragma once

#include "platform/headless/ConsoleBoxes.h"

#include <QStringList>
#include <utility>

namespace tolvo::test {

/// The texts of the boxes since the last call.
inline QStringList takeTexts(RecordingBoxes &boxes) {
    QStringList texts;
    for (const Box &box : std::exchange(boxes.shown, {}))
        texts += box.text;
    return texts;
}

} // namespace tolvo::test
