// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <memory>

namespace tolvo {

/// For work that blocks but keeps the windows painted: while a guard lives, the user's input reaches no
/// window of the program, the pointer shows the wait cursor, and Esc is recorded.
///
///     client.guardInput = [&] { return watch.guard(); };
///     client.cancelled = [&] { return watch.escapePressed(); };
class EscapeWatch final : public QObject {
    Q_OBJECT

  public:
    /// Starts a watch that lasts as long as the result, which must not outlive this object.
    [[nodiscard]] std::shared_ptr<void> guard();

    /// Whether Esc was pressed since the last guard was made.
    [[nodiscard]] bool escapePressed() const { return m_escape; }

    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    bool m_escape = false;
};

} // namespace tolvo
