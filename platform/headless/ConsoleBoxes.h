// SPDX-License-Identifier: MIT
#pragma once

#include "platform/message_box.h"

#include <cstdio>
#include <vector>

namespace tolvo {

/// Keeps boxes without showing them. Where there is a choice, the answer is the next of `answers`, or No;
/// else OK.
class RecordingBoxes : public MessageBoxes {
  public:
    BoxAnswer show(const Box &box) override;

    std::vector<Box> shown;         ///< every box, in order
    std::vector<BoxAnswer> answers; ///< for the next choices, in order
};

/// Writes boxes to a stream, each line after a prefix, and keeps them. The answer to a choice is No.
class ConsoleBoxes final : public RecordingBoxes {
  public:
    explicit ConsoleBoxes(QString prefix = QStringLiteral("tolvo-pipe: "), std::FILE *stream = stderr)
        : m_prefix(std::move(prefix)), m_stream(stream) {}

    BoxAnswer show(const Box &box) override;
    /// Writes a text that is not a box, such as a status text.
    void say(const QString &text) const;

  private:
    QString m_prefix;
    std::FILE *m_stream;
};

} // namespace tolvo
