// SPDX-License-Identifier: MIT
#pragma once

#include "platform/message_box.h"

#include <cstdio>
#include <vector>

namespace tolvo {

/// Answers boxes without showing them and keeps them: OK, or the next of `answers`, or No where there is a
/// choice.
class RecordingBoxes : public MessageBoxes {
  public:
    BoxAnswer show(const Box &box) override;

    std::vector<Box> shown;         ///< every box, in order
    std::vector<BoxAnswer> answers; ///< answers to the choices to come, the next one first
};

/// Says boxes on a stream, each line behind a prefix, and keeps them. A choice is answered by No.
class ConsoleBoxes final : public RecordingBoxes {
  public:
    explicit ConsoleBoxes(QString prefix = QStringLiteral("tolvo-pipe: "), std::FILE *stream = stderr)
        : m_prefix(std::move(prefix)), m_stream(stream) {}

    BoxAnswer show(const Box &box) override;
    /// Says a text that is no box, such as a status text.
    void say(const QString &text) const;

  private:
    QString m_prefix;
    std::FILE *m_stream;
};

} // namespace tolvo
